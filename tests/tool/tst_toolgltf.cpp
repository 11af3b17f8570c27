// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "ToolRun.h"

using TestSupport::readFile;
using TestSupport::source;

/// Models go out as glTF, and come back over what they were exported from.
class tst_ToolGltf : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }

    void exportAsGltf()
    {
        const QString mesh = source("samples/game/models/tinker/tinker.skinnedmesh");
        const auto clips = [this] {
            return QJsonDocument::fromJson(readFile(path("t.gltf")))["animations"].toArray().size();
        };
        const ToolRun all("export --gltf", {mesh, "-o", path()});
        QVERIFY2(all.exitCode == 0, qUtf8Printable(all.err));
        QCOMPARE(all.out, path("tinker.glb") + '\n');
        QVERIFY(readFile(path("tinker.glb")).startsWith("glTF"));
        // With the files beside it and one of the blocks, of the animation's mesh.
        const QStringList more{source("samples/game/anims/tinker/tinker.anim"), "-o", path("t.gltf")};
        QCOMPARE(ToolRun("export --block 1", more).exitCode, 0);
        QCOMPARE(clips(), 1);
        QVERIFY(QFileInfo::exists(path("t.bin")) && QFileInfo::exists(path("tinker.png")));
        // What stands there stays; the same again takes nothing's place.
        QCOMPARE(ToolRun("export --block 1", more).exitCode, 0);
        const ToolRun refused("export --block 0", more);
        QCOMPARE(refused.exitCode, 1);
        QVERIFY(refused.err.contains("t.gltf: The file exists already"));
        QCOMPARE(ToolRun("export --force --block 0 --block 1", more).exitCode, 0);
        QCOMPARE(clips(), 2);
        QVERIFY(ToolRun("export --force --block 99", more).err.contains("no block 99"));
        QCOMPARE(ToolRun("export --gltf -o", {path(), source("samples/game/models/crate/crate.staticmesh")})
                     .exitCode,
                 0);

        const QStringList pose{mesh, "-o", path("pose.obj"), "--pose"};
        QCOMPARE(ToolRun("export --block 1 --frame 3", pose).exitCode, 0);
        const QByteArray third = readFile(path("pose.obj"));
        QCOMPARE(ToolRun("export --force --block 1", pose).exitCode, 0);
        QVERIFY(third.contains("\nv ") && third != readFile(path("pose.obj")));
        QVERIFY(ToolRun("export --force --block 1 --frame 9999", pose).err.contains("no frame 9999"));
        QCOMPARE(
            ToolRun("export --pose -o", {path("x.obj"), source("samples/game/models/crate/crate.staticmesh")})
                .exitCode,
            1);
    }

    void exportAndUpdate()
    {
        QDir().mkdir(path("back"));
        const QString mesh = source("samples/game/models/tinker/tinker.skinnedmesh");
        const QString anim = source("samples/game/anims/tinker/tinker.anim");
        QCOMPARE(ToolRun("export --gltf", {mesh, "-o", path("tinker.glb")}).exitCode, 0);
        const QStringList more{mesh, path("tinker.glb"), "-o", path("back")};
        const ToolRun run("import --update", more);
        QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
        QCOMPARE(run.out, path("back/tinker.skinnedmesh") + '\n' + path("back/tinker.anim") + '\n');
        QCOMPARE(readFile(path("back/tinker.skinnedmesh")), readFile(mesh));
        QCOMPARE(readFile(path("back/tinker.anim")), readFile(anim));
        const ToolRun refused("import --update", more);
        QCOMPARE(refused.exitCode, 1);
        QVERIFY(refused.err.contains("tinker.anim: The file exists already"));
        const ToolRun turned("import --force --flip-uv --update", more);
        QVERIFY(turned.exitCode == 2 && turned.err.contains("--flip-uv means nothing with --update"));
        const ToolRun alone("import --force --drop-missing", more.mid(1));
        QVERIFY(alone.exitCode == 2 && alone.err.contains("need --update"));

        // As a new model, whose parts are named as links are.
        QCOMPARE(ToolRun("export --gltf", {mesh, "-o", path("two words.gltf")}).exitCode, 0);
        for (const char *words : {"import -o", "import --ready --force -o"}) {
            const ToolRun made(words, {path("back"), path("two words.gltf")});
            QVERIFY2(made.exitCode == 0, qUtf8Printable(made.err));
        }

        // One animation alone says nothing of the others; a model of another name is told of.
        QCOMPARE(ToolRun("export --gltf --force --block 1", {mesh, "-o", path("tinker.glb")}).exitCode, 0);
        QVERIFY(QFile::copy(mesh, path("other.skinnedmesh")));
        put("other.names.json", "{\"bones\": {\"0\": \"mine\"}}");
        const ToolRun other(
            "import --drop-missing --update",
            {path("other.skinnedmesh"), "--anim", anim, path("tinker.glb"), "--force", "-o", path("back")});
        QCOMPARE(other.exitCode, 0);
        QVERIFY(other.err.contains("exported from 'tinker', not from 'other'"));
        QVERIFY(readFile(path("back/other.names.json")).contains("mine")); // the mesh's own go along
        put("back/tinker.names.json", "{\"bones\": {\"0\": \"a stranger\"}}");
        QCOMPARE(ToolRun("import --force --update", more).exitCode, 0);
        QVERIFY(!readFile(path("back/tinker.names.json")).contains("stranger"));
        QCOMPARE(readFile(path("back/tinker.anim")), readFile(anim));

        // What is new has its name in the file of names, beside those that are there.
        AnimFile less;
        QVERIFY(!less.read(anim));
        const QByteArray gone = QByteArray::number(less.blocks.at(1).animId);
        less.blocks.resize(1);
        QVERIFY(!less.write(path("less.anim")));
        QStringList grown{path("other.skinnedmesh"), "--anim", anim, "-o", path("other.glb")};
        put("other.names.json", "{\"animations\": {\"" + gone + "\": \"dance\"}}");
        QCOMPARE(ToolRun("export --gltf", grown).exitCode, 0);
        put("other.names.json", "{\"bones\": {\"0\": \"mine\"}}");
        grown = QStringList{grown[0], "--anim", path("less.anim"), path("other.glb"), "-o", path("back")};
        QCOMPARE(ToolRun("import --force --update", grown).exitCode, 0);
        const QByteArray names = readFile(path("back/other.names.json"));
        QVERIFY2(names.contains("mine") && names.contains(gone + "\":\"dance\""), names);

        const QString crate = source("samples/game/models/crate/crate.staticmesh");
        QCOMPARE(ToolRun("export --gltf", {crate, "-o", path("crate.glb")}).exitCode, 0);
        QCOMPARE(ToolRun("import --update", {crate, path("crate.glb"), "-o", path("back")}).exitCode, 0);
        QCOMPARE(readFile(path("back/crate.staticmesh")), readFile(crate));
        const ToolRun wrong("import --force --update", {crate, path("tinker.glb"), "-o", path("back")});
        QCOMPARE(wrong.exitCode, 1);
        QVERIFY2(wrong.err.contains("Nothing in it comes from the model"), qUtf8Printable(wrong.err));
    }

private:
    QString path(const QString &name = {}) const { return m_folder->path(name); }
    QString put(const QString &name, const QByteArray &bytes) const { return m_folder->put(name, bytes); }

    std::optional<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(tst_ToolGltf)
#include "tst_toolgltf.moc"
