// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "SampleModels.h"
#include "ToolRun.h"

using TestSupport::readFile;

/// Models as text on the command line.
class tst_ToolJson : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }

    void dumpAndBuild()
    {
        for (const QString &suffix : SampleModels::suffixes()) {
            // With bytes that no record owns.
            const QByteArray bytes = SampleModels::bytesOfSample(suffix) + '\0' + "more";
            const QString file = put("odd." + suffix, bytes);
            const ToolRun dumped("dump", {file});
            QCOMPARE(dumped.exitCode, 0);
            QCOMPARE(dumped.err, QString());
            const QString text = path(suffix + ".json");
            QCOMPARE(ToolRun("dump -o", {text, file}).exitCode, 0);
            QCOMPARE(QString::fromUtf8(readFile(text)), dumped.out);
            const QString built = path("built." + suffix);
            const ToolRun run("build", {text, "-o", built});
            QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
            QCOMPARE(readFile(built), bytes);

            // Neither replaces anything unasked.
            put("built." + suffix, "mine");
            put("mine.json", "mine");
            QCOMPARE(ToolRun("build", {text, "-o", built}).exitCode, 1);
            QCOMPARE(ToolRun("dump", {file, "-o", path("mine.json")}).exitCode, 1);
            QCOMPARE(readFile(built) + readFile(path("mine.json")), QByteArray("minemine"));
            QCOMPARE(ToolRun("build --force", {text, "-o", built}).exitCode, 0);
            QCOMPARE(readFile(built), bytes);
            QCOMPARE(ToolRun("dump --force", {file, "-o", path("mine.json")}).exitCode, 0);
            QCOMPARE(ToolRun("dump --schema", {suffix}).first(), QJsonObject()); // no array of objects
            QVERIFY(ToolRun("dump --schema", {suffix}).out.contains("\"const\": \"" + suffix + '"'));
        }
    }

    void setFields()
    {
        AnimFile sample = SampleModels::plainAnim();
        sample.blocks[0].actions.clear();
        const QString file = put("x.anim", SampleModels::bytesOf(sample) + "more");
        const ToolRun run("set", {file, "block 1 speed", "-5", "block 2 frame scale", "-=.5"});
        QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
        QCOMPARE(run.out, file + "\n  block 1 speed: 1 -> -5\n  block 2 frameScale: 1 -> 0.5\n");
        // A value is what stands behind a field, whatever it looks like; options stand where they like.
        StaticMesh mesh = SampleModels::plainStatic();
        const QString rigid = put("x.staticmesh", SampleModels::bytesOf(mesh));
        const ToolRun named("set", {rigid, "surface 0 material", "-o", "surface 1 material", "--force", "-o",
                                    path("z.staticmesh")});
        QVERIFY2(named.exitCode == 0, qUtf8Printable(named.err));
        QVERIFY(!mesh.read(path("z.staticmesh")));
        QCOMPARE(mesh.surfaces[0].materialPath + mesh.surfaces[1].materialPath, QString("-o--force"));
        AnimFile anim;
        QVERIFY(!anim.read(file));
        QCOMPARE(anim.blocks[1].speed, -5.0f);
        QCOMPARE(anim.bytesBehind, 4);

        // All or nothing.
        const QByteArray bytes = readFile(file);
        const ToolRun refused("set", {file, "block 0 speed", "2", "block 0 blend end", "-1"});
        QVERIFY2(refused.exitCode == 1 && refused.err.contains("blendEnd: -1 is not from 0"),
                 qUtf8Printable(refused.err));
        QCOMPARE(readFile(file), bytes);
        QCOMPARE(ToolRun("set", {file, "block 0 speed", "=x"}).out, QString("  No value changed.\n"));
        QCOMPARE(ToolRun("set", {file, "block 1 speed", "2*x-i"}).exitCode, 0);
        QCOMPARE(ToolRun("set", {file, "block 1 speed", "50-x*6"}).out,
                 file + "\n  block 1 speed: -10 -> 110\n");
        QCOMPARE(ToolRun("set", {file, "block 1 speed", "-5"}).exitCode, 0);
        QCOMPARE(readFile(file), bytes);
        for (const QStringList &wrong : {QStringList{"block 0 blend end", "131070.8/2"},
                                         {"block 2-1 speed", "2"},
                                         {"block 0 action * frame", "2"},
                                         {"block 70000 speed", "2"}})
            QCOMPARE(ToolRun("set", QStringList(file) + wrong).exitCode, 1);
        QCOMPARE(ToolRun("set -o", {path("new.skinnedmesh"), file, "block 0 speed", "2"}).exitCode, 1);
        QCOMPARE(ToolRun("dump --force -o", {file, file}).exitCode, 1);
        QCOMPARE(readFile(file), bytes);
        const QString other = put("y.anim", "mine");
        QCOMPARE(ToolRun("set", {file, "Block * action ALL frame", "*=1", "-o", path("new.anim")}).exitCode,
                 0);
        const QStringList words{"-o", other, file, "block 0 speed", "2"};
        QCOMPARE(ToolRun("set", words).exitCode, 1);
        QCOMPARE(readFile(other), QByteArray("mine"));
        QCOMPARE(ToolRun("set --force", words).exitCode, 0);
        QVERIFY(readFile(file) == bytes && readFile(other).size() == bytes.size());
    }

    /// The names beside a skinned mesh.
    void names()
    {
        SkinnedMesh mesh = SampleModels::plainMesh();
        const QString file = put("x.skinnedmesh", SampleModels::bytesOf(mesh));
        const QByteArray bytes = readFile(file);
        QCOMPARE(ToolRun("set", {file, "bone 2 name", "hips", "animation 12 name", "walk"}).exitCode, 0);
        QCOMPARE(readFile(file), bytes);
        const QByteArray names = readFile(path("x.names.json"));
        QCOMPARE(names,
                 QByteArray("{\n    \"animations\": {\n        \"12\":\"walk\"\n    },\n    \"bones\": {\n "
                            "       \"2\":\"hips\"\n    }\n}\n"));
        // They go with the text, and do not replace others unasked.
        QCOMPARE(ToolRun("dump -o", {path("x.json"), file}).exitCode, 0);
        put("y.names.json", "{\"bones\": {\"0\": \"mine\"}}");
        const ToolRun refused("build", {path("x.json"), "-o", path("y.skinnedmesh")});
        QVERIFY2(refused.exitCode == 1 && refused.err.contains("y.names.json"), qUtf8Printable(refused.err));
        QVERIFY(!QFileInfo::exists(path("y.skinnedmesh")));
        QCOMPARE(ToolRun("build --force", {path("x.json"), "-o", path("y.skinnedmesh")}).exitCode, 0);
        QCOMPARE(readFile(path("y.names.json")), names);
        QCOMPARE(ToolRun("diff", {file, path("y.skinnedmesh")}).exitCode, 0);
        QCOMPARE(ToolRun("set", {path("y.skinnedmesh"), "bone 2 name", "", "bone 0 name", "root"}).exitCode,
                 0);
        const ToolRun diff("diff", {file, path("y.skinnedmesh")});
        QCOMPARE(diff.exitCode, 1);
        QCOMPARE(diff.out, QString("  names\n    bone 0: \"\" -> \"root\"\n    bone 2: \"hips\" -> \"\"\n"));
        // What says nothing of names leaves them as they are; a copy has them, too.
        QCOMPARE(ToolRun("set -o", {path("z.skinnedmesh"), file, "bone 1 flags", "1"}).exitCode, 0);
        QCOMPARE(readFile(path("z.names.json")), names);
        put("z.names.json", "damaged");
        const ToolRun damaged("dump", {path("z.skinnedmesh")});
        QVERIFY(damaged.exitCode == 0 && damaged.err.contains("z.names.json' are damaged"));
        QCOMPARE(ToolRun("set", {path("z.skinnedmesh"), "bone 1 name", "x"}).exitCode, 1);
        QCOMPARE(readFile(path("z.names.json")), QByteArray("damaged"));
        const QString plain = put("p.skinnedmesh", bytes);
        QCOMPARE(ToolRun("dump -o", {path("p.json"), plain}).exitCode, 0);
        QCOMPARE(ToolRun("build --force", {path("p.json"), "-o", file}).exitCode, 0);
        QCOMPARE(readFile(path("x.names.json")), names);
    }

    void findRecords()
    {
        SkinnedMesh mesh = SampleModels::plainMesh();
        mesh.nodes[3].name = QStringLiteral("claw");
        AnimFile anim = SampleModels::plainAnim();
        anim.blocks[1].actions[2].args[0] = 12.5f;
        anim.blocks[1].actions[2].node = 3;
        const QString file = put("x.anim", SampleModels::bytesOf(anim));
        const QString model = path("x.skinnedmesh");
        QVERIFY(!mesh.write(model));
        put("x.names.json", ModelNames::of(mesh).toJson());
        const ToolRun run("find", {file, model, "sound > 12 or bones bone = claw"});
        QVERIFY2(run.exitCode == 0 && run.err.isEmpty(), qUtf8Printable(run.err));
        QCOMPARE(run.out, QString("%1: block 0 bone 3\n%1: block 1 bone 3\n%1: block 2 bone 3\n"
                                  "%1: block 1 action 2: arg1 12.5\n%2: bone 3\n")
                              .arg(file, model));
        const QJsonObject first = ToolRun("find --json", {path(), "actions bone = claw"}).first();
        QCOMPARE(first["record"].toString() + first["field"].toString() + first["file"].toString(),
                 "block 1 action 2" + QString("bone") + file);
        QCOMPARE(first["value"].toDouble(), 3.0);
        const ToolRun none("find", {file, "sound = 13"});
        QVERIFY(none.exitCode == 1 && none.out.isEmpty() && none.err.isEmpty());
        const ToolRun unread("find", {file, "sound = 13 13"});
        QVERIFY2(unread.exitCode == 2 && unread.err.contains("x.anim: Character 9: "),
                 qUtf8Printable(unread.err));
        QCOMPARE(ToolRun("find", {path("none.anim"), "sound = 13"}).exitCode, 2);
        QCOMPARE(ToolRun("find", {"sound = 13"}).exitCode, 2);

        // What is found can be set, and only all of it.
        const QString wanted = "actions block 1, frame 0";
        const ToolRun set("set", {file, "sound", "7", "--where", wanted, "frame", "=2*i", "bone", "claw"});
        QVERIFY2(set.exitCode == 0, qUtf8Printable(set.err));
        QVERIFY2(set.out.startsWith(file + "\n  block 1 action 0 arg1: 0 -> 7\n") &&
                     set.out.contains("block 1 action 2 frame: 0 -> 4\n") &&
                     set.out.endsWith("block 1 action 1 bone: 65535 -> 3\n"),
                 qUtf8Printable(set.out));
        const QByteArray bytes = readFile(file);
        const ToolRun refused("set --where", {wanted, file, "sound", "1", "frame", "-5"});
        QVERIFY2(refused.exitCode == 1 && refused.err.contains("block 1 action 0: -5 is not from 0"),
                 qUtf8Printable(refused.err));
        QCOMPARE(ToolRun("set --where", {"sound = 99", file, "sound", "1"}).out,
                 QString("  No value changed.\n"));
        QCOMPARE(ToolRun("set --where", {"sound =", file, "sound", "1"}).exitCode, 1);
        QCOMPARE(readFile(file), bytes);
    }

    void diffs()
    {
        const QString file = put("x.anim", SampleModels::bytesOf(SampleModels::plainAnim()));
        const QString other = path("y.anim");
        QCOMPARE(
            ToolRun("set -o", {other, file, "block 1 speed", "2", "block 2 action 0 frame", "7"}).exitCode,
            0);
        const ToolRun run("diff", {file, other});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.out, QString("  block 1 (id 0)\n    speed: 1 -> 2\n  block 2 (id 0)\n    action 0\n     "
                                  " frame: 0 -> 7\n"));
        const QJsonObject first = ToolRun("diff --json", {file, other}).first();
        QCOMPARE(first["record"].toString(), QString("block 1 (id 0)"));
        QCOMPARE(first["fields"].toArray().at(0).toObject()["new"].toString(), QString("2"));
        const ToolRun same("diff", {file, file});
        QVERIFY(same.exitCode == 0 && same.out.isEmpty());
        QCOMPARE(ToolRun("diff", {file, put("z.anim", readFile(file) + "more")}).exitCode, 1);
        // A long list is cut off.
        StaticMesh mesh = SampleModels::plainStatic();
        mesh.vertices.resize(50);
        const QString from = put("a.staticmesh", SampleModels::bytesOf(mesh));
        QCOMPARE(ToolRun("set -o", {path("b.staticmesh"), from, "vertex * uv x", "1"}).exitCode, 0);
        const ToolRun cut("diff", {from, path("b.staticmesh")});
        QVERIFY2(cut.out.endsWith("  vertex 19\n    uv: [0, 0] -> [1, 0]\n  and 30 more; --all lists them\n"),
                 qUtf8Printable(cut.out));
        QCOMPARE(ToolRun("diff --all", {from, path("b.staticmesh")}).out.count("uv:"), 50);
        for (const QStringList &files : {QStringList{file, from}, {file, path("none.anim")}, {file}}) {
            const ToolRun trouble("diff", files);
            QVERIFY(trouble.exitCode == 2 && !trouble.err.isEmpty());
        }
    }

    void refusals()
    {
        const QString anim = put("x.anim", SampleModels::bytesOf(SampleModels::plainAnim()));
        QString text = ToolRun("dump", {anim}).out;
        const ToolRun other("build", {put("x.json", text.toUtf8()), "-o", path("y.staticmesh")});
        QVERIFY2(other.exitCode == 1 && other.err.contains("y.staticmesh: The name does not end in .anim"),
                 qUtf8Printable(other.err));
        const QString broken = put("b.json", text.replace("\"speed\": 1", "\"speed\": fast").toUtf8());
        const ToolRun refused("build", {broken, "-o", path("y.anim")});
        QVERIFY2(refused.exitCode == 1 &&
                     refused.err.contains(broken + ":12:13: A number is wanted here, not 'fast'."),
                 qUtf8Printable(refused.err));
        const QString none =
            put("n.json", "{\"kind\": \"anim\", \"schema\": 1, \"version\": 1, \"blocks\": []}");
        const ToolRun unsaved("build", {none, "-o", path("y.anim")});
        QVERIFY2(unsaved.exitCode == 1 && unsaved.err.contains("without an animation"),
                 qUtf8Printable(unsaved.err));
        QVERIFY(!QFileInfo::exists(path("y.anim")));
        QCOMPARE(ToolRun("build", {path("none.json"), "-o", path("y.anim")}).exitCode, 1);

        // What would not come back is told of.
        AnimFile block;
        block.blocks.resize(1);
        QByteArray negative = SampleModels::bytesOf(block);
        negative.replace(32, 4, "\xff\xff\xff\xff");
        const ToolRun told("dump", {put("negative.anim", negative)});
        QVERIFY(told.exitCode == 0 && told.err.contains("warning: A count below zero"));
        const ToolRun material("dump", {put("x.kmat", "material a { }\n")});
        QVERIFY(material.exitCode == 1 && material.err.contains("text already"));
    }

    void fullDisk()
    {
        const QString anim = put("x.anim", SampleModels::bytesOf(SampleModels::plainAnim()));
        QCOMPARE(ToolRun("dump", {anim, "-o", path("x.json")}).exitCode, 0);
        put("old.json", "old");
        const FullDisk disk(100);
        QCOMPARE(ToolRun("dump --force", {anim, "-o", path("old.json")}).exitCode, 1);
        QCOMPARE(readFile(path("old.json")), QByteArray("old"));
        QCOMPARE(ToolRun("build --force", {path("x.json"), "-o", anim}).exitCode, 1);
        QCOMPARE(readFile(anim), SampleModels::bytesOf(SampleModels::plainAnim()));
    }

private:
    QString path(const QString &name = {}) const { return m_folder->path(name); }
    QString put(const QString &name, const QByteArray &bytes) const { return m_folder->put(name, bytes); }

    std::optional<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(tst_ToolJson)
#include "tst_tooljson.moc"
