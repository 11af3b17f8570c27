// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "KMat.h"
#include "ModelNames.h"
#include "SampleModels.h"
#include "SmallGltf.h"
#include "ToolRun.h"

using TestSupport::readFile;
using TestSupport::source;

namespace {
/// What bash offers for the last of `words` behind the program's name, in a folder.
QStringList completed(const QString &words, const QString &folder = {})
{
    QProcess bash;
    bash.setWorkingDirectory(folder);
    bash.start("bash", {"-c", QStringLiteral("source '%1'; COMP_WORDS=(korvane-tool %2); "
                                             "COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _korvane_tool; "
                                             "printf '%s\n' \"${COMPREPLY[@]}\" | sort")
                                  .arg(source("packaging/completions/korvane-tool.bash"), words)});
    bash.waitForFinished();
    return QString::fromUtf8(bash.readAll()).split('\n', Qt::SkipEmptyParts);
}
} // namespace

/// The command line, as a shell would call it. What needs a display is in tst_toolrender.
class tst_Tool : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }
    void wrongUsage()
    {
        struct Row
        {
            const char *arguments, *complaint;
        };
        const Row rows[] = {
            {"", "verb is missing"},
            {"inform x.anim", "no verb 'inform'"},
            {"help inform", "no verb 'inform'"},
            {"info --jason x.anim", "jason"},
            {"check --json", "PATH... is missing"},
            {"resave x.anim -o /nowhere", "/nowhere"},
            {"dump x.anim y.anim", "y.anim"},
            {"dump --schema kmat", "not 'kmat'"},
            {"build x.json", "-o FILE is missing"},
            {"set x.anim", "a value"},
            {"set x.anim a 1 b", "no value for 'b'"},
            {"animate x.anim", "A file and a command"},
            {"animate reverse --all", "A file and a command"},
            {"animate x.anim trim 3 --all", "trim FIRST LAST"},
            {"animate x.anim resample many --all", "'many' is not FRAMES"},
            {"animate x.anim shift -3 --all --around often", "'often'"},
            {"animate x.anim renumber 1=2=3 --all", "'1=2=3'"},
            {"animate x.anim reverse", "--block or --all"},
            {"animate x.anim reverse --block x", "'x'"},
            {"animate x.anim reverse --all --in-place -o y.anim", "-o or --in-place"},
            {"animate x.anim y.anim reverse --all -o /nowhere", "/nowhere"},
            {"import x.obj", "-o FOLDER is missing"},
            {"import x.obj y.obj -o /", "y.obj"},
            {"import x.obj -o / --scale big", "'big'"},
            {"import x.obj -o / --scale auto", "'auto'"},
            {"import x.obj -o / --clips 1", "need --ready"},
            {"import x.obj -o / --extra-bones", "need --ready"},
            {"import x.obj -o / --ready --up x", "y, z or auto, not 'x'"},
            {"import x.obj -o / --ready --static --clips 1", "has no animations"},
            {"import x.glb -o / --update x --extra-bones", "means nothing with --update"},
            {"import x.obj -o / --ready --static --extra-bones", "has no bones"},
            {"import x.obj -o / --ready --rate 0", "--rate"},
            {"import x.obj -o / --ready --flip-uv", "--flip-uv"},
            {"import x.obj -o / --mod-path /tmp --kmat /etc/x.kmat", "/etc/x.kmat"},
            {"import x.obj -o / --mod-path /nowhere --create-kmat", "/nowhere"},
            {"export x.staticmesh -o x.fbx", "x.fbx"},
            {"export x.staticmesh -o x.obj --gltf", "x.obj"},
            {"export x.skinnedmesh -o x.glb --pose", "OBJ, not glTF"},
            {"export x.skinnedmesh -o x.glb --block 0 --block -1", "'-1'"},
            {"export x.skinnedmesh -o x.glb --frame 1", "--pose"},
            {"export x.skinnedmesh -o /nowhere/x.glb", "/nowhere"},
            {"render x.staticmesh", "-o FILE is missing"},
            {"render x.staticmesh y.staticmesh -o x.png", "Several files need --each"},
            {"render --each x.staticmesh", "-o FOLDER is missing"},
            {"render --each x.staticmesh -o /nowhere", "/nowhere"},
            {"render --each x.staticmesh -o / --anim x.anim", "--anim"},
            {"render x.staticmesh -o x.png --size 0x200", "0x200"},
            {"render x.staticmesh -o x.png --background bleu", "bleu"},
            {"render x.staticmesh -o x.png --shading unlit", "textured, lit or normals, not 'unlit'"},
            {"render x.staticmesh -o x.png --frame -1", "'-1'"},
            {"render x.staticmesh -o x.png --pitch 91", "'91'"},
        };
        for (const Row &row : rows) {
            const ToolRun run(row.arguments);
            QVERIFY2(run.exitCode == 2 && run.out.isEmpty(), row.arguments);
            // Paths are told as the system writes them.
            QVERIFY2(QDir::fromNativeSeparators(run.err).contains(row.complaint),
                     qUtf8Printable(row.arguments + run.err));
        }
    }

    void optionsAreDescribedEverywhere()
    {
        QString manual = QString::fromUtf8(readFile(source("packaging/korvane-tool.1")));
        manual.remove('\\');
        const QByteArray zsh = readFile(source("packaging/completions/_korvane-tool"));
        const QRegularExpression line("^  (?:-[a-z], )?(--[a-z-]+)", QRegularExpression::MultilineOption);
        for (const QString verb : {"info", "check", "resave", "dump", "build", "set", "animate", "diff",
                                   "pack", "import", "export", "render"}) {
            const ToolRun run(verb, {"--help"});
            QCOMPARE(run.exitCode, 0);
            QVERIFY(run.out.startsWith(QStringLiteral("Usage: korvane-tool %1 ").arg(verb)));
            QCOMPARE(ToolRun("help", {verb}).out, run.out);

            const QString section =
                manual.mid(manual.indexOf(".SH " + verb.toUpper())).section("\n.SH ", 0, 0);
            QStringList options;
            for (auto found = line.globalMatch(run.out); found.hasNext();)
                options += found.next().captured(1);
            QVERIFY(options.size() >= 2);
            for (const QString &option : qAsConst(options)) {
                const QString which = verb + ' ' + option;
                QVERIFY2(zsh.contains(option.toUtf8()), qUtf8Printable(which));
                QVERIFY2(option == "--help" || section.contains(option), qUtf8Printable(which));
            }
            options.sort();
            QCOMPARE(completed(verb + " --"), options);
        }
    }

    void completesVerbsAndFiles()
    {
        for (const char *name : {"a fox.anim", "fox.staticmesh", "fox.txt", "folder/x"})
            put(name, "x");
        const auto complete = [this](const char *words) { return completed(words, path()); };
        QCOMPARE(complete("re"), QStringList({"render", "replace", "resave"}));
        QCOMPARE(complete("info ''"), QStringList({"a fox.anim", "folder", "fox.staticmesh"}));
        QCOMPARE(complete("export ''"), QStringList({"a fox.anim", "folder", "fox.staticmesh"}));
        QCOMPARE(complete("render fox.staticmesh --anim ''"), QStringList({"a fox.anim", "folder"}));
        QCOMPARE(complete("render --game-path f"), QStringList({"folder"}));
    }

    void infoCountsRecords()
    {
        QStringList files;
        for (const QString &suffix : SampleModels::suffixes() + QStringList("kmat"))
            files += TestSupport::modelFiles(suffix);
        const ToolRun run("info --json", files);
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.err, QString());
        const QJsonArray array = run.json();
        QCOMPARE(array.size(), files.size());
        for (int i = 0; i < array.size(); ++i) {
            const QString &file = files[i];
            const QString suffix = QFileInfo(file).suffix();
            const QJsonObject object = array.at(i).toObject();
            const auto count = [&object](const char *key) {
                return size_t(object["counts"].toObject().value(key).toInt(-1));
            };
            QCOMPARE(object["file"].toString(), file);
            QCOMPARE(object["kind"].toString(), suffix);
            QCOMPARE(qint64(object["size"].toDouble()), QFileInfo(file).size());
            const auto countsMesh = [&](const auto &mesh) {
                QCOMPARE(count("surfaces"), mesh.surfaces.size());
                QCOMPARE(count("vertices"), mesh.vertices.size());
                const QJsonObject surface = object["surfaces"].toArray().at(0).toObject();
                QCOMPARE(surface["material"].toString(), mesh.surfaces[0].materialPath);
                QCOMPARE(size_t(surface["triangles"].toInt()), mesh.surfaces[0].triangleIndexes.size() / 3);
                const QJsonArray corner = object["bounds"].toObject().value("max").toArray();
                QCOMPARE(float(corner.at(2).toDouble()), mesh.bbMax.z());
            };
            if (suffix == "kmat") {
                MaterialTable table;
                QCOMPARE(readKMat(file, table), QString());
                QCOMPARE(count("materials"), table.size());
            } else if (suffix == "anim") {
                AnimFile anim;
                QVERIFY(!anim.read(file));
                QCOMPARE(count("blocks"), anim.blocks.size());
                const QJsonObject last = object["blocks"].toArray().last().toObject();
                QCOMPARE(last["id"].toInt(), anim.blocks.back().animId);
                QCOMPARE(last["frames"].toInt(), anim.blocks.back().frameCount());
                QCOMPARE(last["actions"].toInt(), int(anim.blocks.back().actions.size()));
            } else if (suffix == "skinnedmesh") {
                SkinnedMesh mesh;
                QVERIFY(!mesh.read(file));
                QCOMPARE(count("bones"), mesh.nodes.size());
                QCOMPARE(count("hotPoints"), mesh.hotPoints.size());
                countsMesh(mesh);
            } else {
                StaticMesh mesh;
                QVERIFY(!mesh.read(file));
                countsMesh(mesh);
            }
        }
        const ToolRun text("info", {files.first()});
        QCOMPARE(text.exitCode, 0);
        QVERIFY(text.out.startsWith(files.first() + '\n'));
    }

    void resaveKeepsBytes()
    {
        const QString out = path("out");
        QDir().mkdir(out);
        for (const QString &suffix : SampleModels::suffixes()) {
            const QByteArray bytes = SampleModels::bytesOfSample(suffix);
            const QString file = put("odd." + suffix, bytes);
            const ToolRun inPlace("resave", {file});
            QCOMPARE(inPlace.exitCode, 0);
            QVERIFY(inPlace.out.contains("the same bytes"));
            QCOMPARE(readFile(file), bytes);
            QCOMPARE(ToolRun("resave -o", {out, file}).exitCode, 0);
            QCOMPARE(readFile(path("out/odd." + suffix)), bytes);
        }

        // Another file is not replaced unasked.
        const QByteArray other = SampleModels::bytesOf(SampleModels::plainAnim());
        const QStringList arguments{out, put("b/odd.anim", other)};
        QCOMPARE(ToolRun("resave -o", arguments).exitCode, 1);
        QCOMPARE(readFile(path("out/odd.anim")), SampleModels::bytesOfSample("anim"));
        QCOMPARE(ToolRun("resave --force -o", arguments).exitCode, 0);
        QCOMPARE(readFile(path("out/odd.anim")), other);

        // A count below zero is read as none, and written so.
        AnimFile anim;
        anim.blocks.resize(1);
        const QByteArray none = SampleModels::bytesOf(anim);
        QByteArray negative = none;
        negative.replace(32, 4, "\xff\xff\xff\xff");
        const QString file = put("negative.anim", negative);
        const ToolRun changed("resave", {file});
        QCOMPARE(changed.exitCode, 0);
        QCOMPARE(changed.out, file + ": changed\n");
        QCOMPARE(readFile(file), none);
    }

    void resaveLosesNothing()
    {
        const QByteArray whole = SampleModels::bytesOf(SampleModels::plainStatic());
        for (const QByteArray &bytes : {whole.left(whole.size() - 1), whole + "more"}) {
            const QString file = put("x.staticmesh", bytes);
            const ToolRun run("resave", {file});
            QCOMPARE(run.exitCode, 1);
            QVERIFY(run.err.contains(file));
            QCOMPARE(readFile(file), bytes);
        }
        // Two files of one name go into one folder only once.
        QDir().mkdir(path("out"));
        const ToolRun twice("resave --force -o",
                            {path("out"), put("a/y.staticmesh", whole), put("b/y.staticmesh", whole)});
        QCOMPARE(twice.exitCode, 1);
        QCOMPARE(twice.out.count('\n'), 1);
    }

    void importStatic()
    {
        QDir().mkpath(path("mod/materials"));
        const QString words = "import --static --no-rotate --scale 2 --create-kmat --mod-path";
        const QStringList more{path("mod"), "-o", path(),
                               put("wedge.obj", "v 0 0 0\nv 2 0 0\nv 0 4 0\nvt 0.5 0.25\nf 1/1 2/1 3/1\n")};
        QCOMPARE(ToolRun(words, more).exitCode, 0);
        StaticMesh mesh;
        QVERIFY(!mesh.read(path("wedge.staticmesh")));
        QCOMPARE(mesh.vertices.size(), size_t(3));
        QCOMPARE(mesh.bbMax, QVector3D(4, 8, 0));
        QCOMPARE(mesh.surfaces[0].materialPath, QString("materials/mat_wedge/surf_0_white"));
        QVERIFY(QFileInfo::exists(path("mod/materials/mat_wedge.kmat")));

        // Nothing of that is replaced unasked.
        const QString result = put("wedge.staticmesh", "mine");
        const QString kmat = put("mod/materials/mat_wedge.kmat", "material glow { }\n");
        const ToolRun again(words, more);
        QCOMPARE(again.exitCode, 1);
        QVERIFY(again.err.contains(result) && again.err.contains("mat_wedge.kmat"));
        QCOMPARE(readFile(result), QByteArray("mine"));
        QCOMPARE(ToolRun(words, more + QStringList{"--force", "--keep-materials"}).exitCode, 0);
        QVERIFY(readFile(result) != QByteArray("mine"));
        QVERIFY(readFile(kmat).startsWith("material glow { }\nmaterial surf_0_white {"));
        QCOMPARE(ToolRun(words, more + QStringList("--force")).exitCode, 0);
        QVERIFY(!readFile(kmat).contains("glow"));
    }

    void importSkinnedWithAnimation()
    {
        const QString model =
            put("small.gltf",
                SmallGltf().file({{"walk [7]", {{2, false, {{0.0f, {1, 2, 3}}, {40.0f, {1, 2, 5}}}}}}}));
        const ToolRun run("import -o", {path(), model});
        QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
        SkinnedMesh mesh;
        QVERIFY(!mesh.read(path("small.skinnedmesh")));
        QCOMPARE(mesh.nodes.size(), size_t(3));
        AnimFile anim;
        QVERIFY(!anim.read(path("small.anim")));
        QCOMPARE(anim.blocks[0].animId, 7);
        QCOMPARE(anim.blocks[0].frameCount(), 41);

        // Names of another model do not stick to it.
        const QString names = put("other.names.json", "{\"bones\": {\"0\": \"mine\"}}");
        const QString other = put("other.obj", "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n");
        const ToolRun refused("import -o", {path(), other});
        QVERIFY2(refused.exitCode == 1 && refused.err.contains("other.names.json"),
                 qUtf8Printable(refused.err));
        QCOMPARE(ToolRun("import --force -o", {path(), other}).exitCode, 0);
        ModelNames none;
        QVERIFY(!none.read(names) && none.isEmpty());
    }

    void importReady()
    {
        const QString model =
            put("rig.gltf", SmallGltf().file({{"walk [7]", {{2, false, {{0, {0, 0, 0}}, {500, {0, 0, 5}}}}}},
                                              {"run", {{2, false, {{0, {0, 0, 0}}, {100, {0, 0, 5}}}}}}}));
        const QString mine = put("rig.names.json", "{\"bones\": {\"0\": \"mine\"}}");
        const ToolRun refused("import --ready -o", {path(), model});
        QCOMPARE(refused.exitCode, 1);
        QVERIFY2(refused.err.contains("rig.names.json"), qUtf8Printable(refused.err));
        QVERIFY(readFile(mine).contains("mine") && !QFileInfo::exists(path("rig.skinnedmesh")));

        const ToolRun unknown("import --ready --force --clips 1,crawl -o", {path(), model});
        QCOMPARE(unknown.exitCode, 2);
        QVERIFY2(unknown.err.contains("'crawl'. It has 2: walk [7], run"), qUtf8Printable(unknown.err));
        // By number and by name.
        const ToolRun taken("import --ready --force --scale auto --rate 20 --clips",
                            {"1,walk [7]", "-o", path(), model});
        QVERIFY2(taken.exitCode == 0, qUtf8Printable(taken.err));
        SkinnedMesh mesh;
        AnimFile anim;
        ModelNames names;
        QVERIFY(!mesh.read(path("rig.skinnedmesh")) && !anim.read(path("rig.anim")) && !names.read(mine));
        QCOMPARE(anim.blocks.size(), size_t(2));
        QCOMPARE(anim.blocks[0].frameCount(), 3);
        QCOMPARE(anim.blocks[1].frameCount(), 11);
        QCOMPARE(anim.blocks[1].animId, 7);
        QCOMPARE(names.bones.value(1), QString("arm"));
        QCOMPARE(names.animations.value(7), QString("walk"));
        QVERIFY((mesh.bbMax - mesh.bbMin).length() > 100.0f);

        // A file that was made with z up.
        const QString solid =
            put("wall.stl", "solid wall\nfacet normal 0 -1 0\nouter loop\nvertex 0 0 0\n"
                            "vertex 9 0 0\nvertex 0 0 40\nendloop\nendfacet\nendsolid wall\n");
        StaticMesh wall;
        for (const char *axis : {"auto", "z"}) {
            const ToolRun turned("import --static --ready --force --up", {axis, "-o", path(), solid});
            QVERIFY2(turned.exitCode == 0, qUtf8Printable(turned.err));
            QVERIFY(!wall.read(path("wall.staticmesh")));
            QCOMPARE(wall.bbMax, QVector3D(9, 0, 40));
        }
        QCOMPARE(ToolRun("import --static --ready --force -o", {path(), solid}).exitCode, 0);
        QVERIFY(!wall.read(path("wall.staticmesh")));
        QCOMPARE(wall.bbMin, QVector3D(0, -40, 0));
    }

    void importFailures()
    {
        const ToolRun broken("import -o", {path(), put("x.gltf", "{")});
        QCOMPARE(broken.exitCode, 1);
        QVERIFY2(broken.err.contains("Could not read file"), qUtf8Printable(broken.err));
        QVERIFY(!QFileInfo::exists(path("x.skinnedmesh")));
        const ToolRun missing("import -o", {path(), path("none.obj")});
        const ToolRun unnamed("import --kmat materials/кот -o", {path(), path("x.gltf")});
        QCOMPARE(unnamed.exitCode, 2);
        QVERIFY(unnamed.err.contains("outside of Latin-1"));
        QCOMPARE(missing.exitCode, 1);
        QVERIFY(missing.err.contains("none.obj: There is no such file"));
    }

    void exportAsObj()
    {
        const QStringList more{source("samples/game/models/crate/crate.staticmesh"), "-o", path("box.obj")};
        const ToolRun run("export", more);
        QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
        QVERIFY(readFile(path("box.obj")).contains("mtllib box.mtl"));
        QVERIFY(readFile(path("box.mtl")).contains("crate.png"));
        // The folder that the file lies in was found to be the game's.
        QVERIFY(QFileInfo::exists(path("crate.png")));

        for (const QString name : {"box.mtl", "crate.png"}) {
            QDir(path()).remove("box.obj");
            QDir(path()).remove("box.mtl");
            put(name, "mine");
            const ToolRun refused("export", more);
            QCOMPARE(refused.exitCode, 1);
            QVERIFY(refused.err.contains(name + ": The file exists already"));
            QCOMPARE(readFile(path(name)), QByteArray("mine"));
            QVERIFY(!QFileInfo::exists(path("box.obj")));
            QCOMPARE(ToolRun("export --force", more).exitCode, 0);
            QVERIFY(readFile(path(name)) != QByteArray("mine"));
        }

        const ToolRun anim("export -o", {path(), source("samples/game/anims/tinker/tinker.anim")});
        QCOMPARE(anim.exitCode, 1);
        QVERIFY(anim.err.contains("with --pose; glTF has all"));
    }

    void fullDisk()
    {
        QDir().mkpath(path("game/materials"));
        QCOMPARE(writeKMat(path("game/materials/m.kmat"), {{"a", "big.png"}}), QString());
        const QByteArray texture(100000, 'x');
        put("game/big.png", texture);
        StaticMesh mesh = SampleModels::plainStatic();
        mesh.surfaces = {{QStringLiteral("materials/m/a"), {0, 1, 2}}};
        const QStringList more{path("game"), put("x.staticmesh", SampleModels::bytesOf(mesh)), "-o", path()};
        const QStringList names{"x.obj", "x.mtl", "big.png"};
        // Room for nothing, for the job, for the OBJ file, for all but the end of the texture.
        for (const int limit : {0, 700, 5000, texture.size() - 1}) {
            for (const QString &name : names)
                put(name, "old");
            const FullDisk disk(limit);
            const ToolRun run("export --force --game-path", more);
            QVERIFY2(run.exitCode == 1 && !run.err.isEmpty(), qUtf8Printable(QString::number(limit)));
            QCOMPARE(readFile(path("big.png")), QByteArray("old"));
            QVERIFY(limit < 5000 || readFile(path("x.obj")).contains("mtllib"));
        }
        QCOMPARE(ToolRun("export --force --game-path", more).exitCode, 0);
        QCOMPARE(readFile(path("big.png")), texture);
    }

    void rendersNothingWithoutDisplay()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
            environment.remove(variable);
        const auto refuses = [&] {
            const ToolRun run("render -o",
                              {path("x.png"), source("samples/game/models/crate/crate.staticmesh")},
                              environment);
            return run.exitCode == 3 && run.err.contains("xvfb-run");
        };
        QVERIFY(refuses());
        QCOMPARE(ToolRun("render --help", {}, environment).exitCode, 0);
        // One that is named and not there must not abort it.
        environment.insert("DISPLAY", ":9999");
        QVERIFY(refuses());
        QVERIFY(!QFileInfo::exists(path("x.png")));
    }

    void namesInUtf8()
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("LC_ALL", "C");
        const QString file =
            put("größe/クレート.staticmesh", SampleModels::bytesOf(SampleModels::plainStatic()));
        const ToolRun run("info --json", {file}, environment);
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.first()["file"].toString(), file);
    }

private:
    QString path(const QString &name = {}) const { return m_folder->path(name); }
    QString put(const QString &name, const QByteArray &bytes) const { return m_folder->put(name, bytes); }

    std::optional<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(tst_Tool)
#include "tst_tool.moc"
