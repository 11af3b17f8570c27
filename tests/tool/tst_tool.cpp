// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KMat.h"
#include "SampleModels.h"
#include "SmallGltf.h"
#include "TestSupport.h"
#include "ToolRun.h"

#include <QRegularExpression>

using TestSupport::readFile;
using TestSupport::source;
using TestSupport::writeFile;

/// The command line, as a shell would call it. What needs a display is in tst_toolrender.
class tst_Tool : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void wrongUsage_data();
    void wrongUsage();
    void optionsAreDescribedEverywhere_data();
    void optionsAreDescribedEverywhere();
    void completesVerbsAndFiles();
    void infoCountsRecords_data();
    void infoCountsRecords();
    void resaveKeepsBytes();
    void resaveLosesNothing();
    void importStatic();
    void importSkinnedWithAnimation();
    void importFailures();
    void exportAsObj();
    void rendersNothingWithoutDisplay();
    void namesInUtf8();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString put(const QString &name, const QByteArray &bytes) const
    {
        QDir(m_folder->path()).mkpath(QFileInfo(name).path());
        writeFile(path(name), bytes);
        return path(name);
    }
    QString putObj() const
    {
        return put(QStringLiteral("wedge.obj"), "v 0 0 0\nv 2 0 0\nv 0 4 0\nvt 0.5 0.25\nf 1/1 2/1 3/1\n");
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

namespace {
const QStringList verbs{QStringLiteral("info"),   QStringLiteral("check"),  QStringLiteral("resave"),
                        QStringLiteral("import"), QStringLiteral("export"), QStringLiteral("render")};

void addVerbRows()
{
    QTest::addColumn<QString>("verb");
    for (const QString &verb : verbs)
        QTest::newRow(qUtf8Printable(verb)) << verb;
}

QByteArray skinnedGltf()
{
    return SmallGltf().file(
        {{QStringLiteral("walk [7]"), {{2, false, {{0.0f, {1, 2, 3}}, {40.0f, {1, 2, 5}}}}}}});
}
} // namespace

void tst_Tool::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void tst_Tool::wrongUsage_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("complaint");
    QTest::newRow("nothing") << QString() << "verb is missing";
    QTest::newRow("verb") << "inform x.anim"
                          << "no verb 'inform'";
    QTest::newRow("help for no verb") << "help inform"
                                      << "no verb 'inform'";
    QTest::newRow("option") << "info --jason x.anim"
                            << "jason";
    QTest::newRow("no file") << "check --json"
                             << "PATH... is missing";
    QTest::newRow("folder that is not there") << "resave x.anim -o /nowhere"
                                              << "/nowhere";
    QTest::newRow("import to nowhere") << "import x.obj"
                                       << "-o FOLDER is missing";
    QTest::newRow("two imports") << "import x.obj y.obj -o /"
                                 << "y.obj";
    QTest::newRow("import at no scale") << "import x.obj -o / --scale big"
                                        << "'big'";
    QTest::newRow("material file elsewhere") << "import x.obj -o / --mod-path /tmp --kmat /etc/x.kmat"
                                             << "/etc/x.kmat";
    QTest::newRow("no mod folder") << "import x.obj -o / --mod-path /nowhere --create-kmat"
                                   << "/nowhere";
    QTest::newRow("export as what") << "export x.staticmesh -o x.fbx"
                                    << "x.fbx";
    QTest::newRow("no picture") << "render x.staticmesh"
                                << "-o FILE is missing";
    QTest::newRow("flat picture") << "render x.staticmesh -o x.png --size 0x200"
                                  << "0x200";
    QTest::newRow("colour") << "render x.staticmesh -o x.png --background bleu"
                            << "bleu";
    QTest::newRow("frame") << "render x.staticmesh -o x.png --frame -1"
                           << "'-1'";
    QTest::newRow("pitch") << "render x.staticmesh -o x.png --pitch 91"
                           << "'91'";
}

void tst_Tool::wrongUsage()
{
    QFETCH(QString, arguments);
    QFETCH(QString, complaint);
    const ToolRun run(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains(complaint), qUtf8Printable(run.err));
    QCOMPARE(run.out, QString());
}

void tst_Tool::optionsAreDescribedEverywhere_data()
{
    addVerbRows();
}

void tst_Tool::optionsAreDescribedEverywhere()
{
    QFETCH(QString, verb);
    const ToolRun run({verb, QStringLiteral("--help")});
    QCOMPARE(run.exitCode, 0);
    QVERIFY(run.out.startsWith(QStringLiteral("Usage: korvane-tool %1 ").arg(verb)));
    QCOMPARE(ToolRun({QStringLiteral("help"), verb}).out, run.out);

    QString manual = QString::fromUtf8(readFile(source(QStringLiteral("packaging/korvane-tool.1"))));
    manual.remove(QLatin1Char('\\'));
    const QString section = manual.mid(manual.indexOf(QStringLiteral(".SH ") + verb.toUpper()))
                                .section(QStringLiteral("\n.SH "), 0, 0);
    const QByteArray zsh = readFile(source(QStringLiteral("packaging/completions/_korvane-tool")));
    QProcess bash;
    bash.start(QStringLiteral("bash"),
               {QStringLiteral("-c"),
                QStringLiteral("source '%1'; COMP_WORDS=(korvane-tool %2 --); COMP_CWORD=2; _korvane_tool; "
                               "echo \"${COMPREPLY[@]}\"")
                    .arg(source(QStringLiteral("packaging/completions/korvane-tool.bash")), verb)});
    QVERIFY(bash.waitForFinished());
    const QStringList completed = QString::fromUtf8(bash.readAll()).trimmed().split(QLatin1Char(' '));

    QStringList options;
    auto matches =
        QRegularExpression(QStringLiteral("^  (?:-[a-z], )?(--[a-z-]+)"), QRegularExpression::MultilineOption)
            .globalMatch(run.out);
    while (matches.hasNext())
        options += matches.next().captured(1);
    QVERIFY(options.size() >= 2);
    for (const QString &option : qAsConst(options)) {
        QVERIFY2(completed.contains(option), qUtf8Printable(option));
        QVERIFY2(zsh.contains(option.toUtf8()), qUtf8Printable(option));
        QVERIFY2(option == QLatin1String("--help") || section.contains(option), qUtf8Printable(option));
    }
    QCOMPARE(completed.size(), options.size());
}

void tst_Tool::completesVerbsAndFiles()
{
    put(QStringLiteral("a fox.anim"), "x");
    put(QStringLiteral("fox.staticmesh"), "x");
    put(QStringLiteral("fox.txt"), "x");
    put(QStringLiteral("folder/x"), "x");
    const auto complete = [this](const QString &words) {
        QProcess bash;
        bash.setWorkingDirectory(m_folder->path());
        bash.start(QStringLiteral("bash"),
                   {QStringLiteral("-c"),
                    QStringLiteral(
                        "source '%1'; COMP_WORDS=(korvane-tool %2); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); "
                        "_korvane_tool; printf '%s\n' \"${COMPREPLY[@]}\" | sort | paste -sd ,")
                        .arg(source(QStringLiteral("packaging/completions/korvane-tool.bash")), words)});
        bash.waitForFinished();
        return QString::fromUtf8(bash.readAll()).trimmed();
    };
    QCOMPARE(complete(QStringLiteral("re")), QStringLiteral("render,resave"));
    QCOMPARE(complete(QStringLiteral("info ''")), QStringLiteral("a fox.anim,folder,fox.staticmesh"));
    QCOMPARE(complete(QStringLiteral("export ''")), QStringLiteral("folder,fox.staticmesh"));
    QCOMPARE(complete(QStringLiteral("render fox.staticmesh --anim ''")),
             QStringLiteral("a fox.anim,folder"));
    QCOMPARE(complete(QStringLiteral("render --game-path f")), QStringLiteral("folder"));
}

void tst_Tool::infoCountsRecords_data()
{
    QTest::addColumn<QString>("suffix");
    for (const QString &suffix : SampleModels::suffixes())
        QTest::newRow(qUtf8Printable(suffix)) << suffix;
    QTest::newRow("kmat") << "kmat";
}

void tst_Tool::infoCountsRecords()
{
    QFETCH(QString, suffix);
    const QStringList files = TestSupport::modelFiles(suffix);
    QVERIFY(!files.isEmpty());
    const ToolRun run(QStringList{QStringLiteral("info"), QStringLiteral("--json")} + files);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err, QString());
    const QJsonArray array = run.json();
    QCOMPARE(array.size(), files.size());
    for (int i = 0; i < array.size(); ++i) {
        const QJsonObject object = array.at(i).toObject();
        const QJsonObject counts = object.value(QStringLiteral("counts")).toObject();
        const auto count = [&counts](const char *key) {
            return size_t(counts.value(QLatin1String(key)).toInt(-1));
        };
        QCOMPARE(object.value(QStringLiteral("file")).toString(), files.at(i));
        QCOMPARE(object.value(QStringLiteral("kind")).toString(), suffix);
        QCOMPARE(qint64(object.value(QStringLiteral("size")).toDouble()), QFileInfo(files.at(i)).size());
        if (suffix == QLatin1String("kmat")) {
            MaterialTable table;
            QCOMPARE(readKMat(files.at(i), table), QString());
            QCOMPARE(count("materials"), table.size());
        } else if (suffix == QLatin1String("anim")) {
            AnimFile file;
            QVERIFY(!file.read(files.at(i)));
            QCOMPARE(count("blocks"), file.blocks.size());
            const QJsonArray blocks = object.value(QStringLiteral("blocks")).toArray();
            QCOMPARE(size_t(blocks.size()), file.blocks.size());
            const QJsonObject last = blocks.last().toObject();
            QCOMPARE(last.value(QStringLiteral("id")).toInt(), file.blocks.back().animId);
            QCOMPARE(last.value(QStringLiteral("frames")).toInt(), file.blocks.back().frameCount());
            QCOMPARE(last.value(QStringLiteral("actions")).toInt(), int(file.blocks.back().actions.size()));
        } else {
            const auto holdsMesh = [&](const auto &mesh) {
                QCOMPARE(count("surfaces"), mesh.surfaces.size());
                QCOMPARE(count("vertices"), mesh.vertices.size());
                const QJsonObject surface =
                    object.value(QStringLiteral("surfaces")).toArray().at(0).toObject();
                QCOMPARE(surface.value(QStringLiteral("material")).toString(), mesh.surfaces[0].materialPath);
                QCOMPARE(size_t(surface.value(QStringLiteral("triangles")).toInt()),
                         mesh.surfaces[0].triangleIndexes.size() / 3);
                const QJsonArray corner =
                    object.value(QStringLiteral("bounds")).toObject().value(QStringLiteral("max")).toArray();
                QCOMPARE(float(corner.at(2).toDouble()), mesh.bbMax.z());
            };
            if (suffix == QLatin1String("skinnedmesh")) {
                SkinnedMesh mesh;
                QVERIFY(!mesh.read(files.at(i)));
                QCOMPARE(count("bones"), mesh.nodes.size());
                QCOMPARE(count("hotPoints"), mesh.hotPoints.size());
                holdsMesh(mesh);
            } else {
                StaticMesh mesh;
                QVERIFY(!mesh.read(files.at(i)));
                holdsMesh(mesh);
            }
        }
    }
    const ToolRun text({QStringLiteral("info"), files.first()});
    QCOMPARE(text.exitCode, 0);
    QVERIFY(text.out.startsWith(files.first() + QLatin1Char('\n')));
}

void tst_Tool::resaveKeepsBytes()
{
    QDir(m_folder->path()).mkdir(QStringLiteral("out"));
    for (const QString &suffix : SampleModels::suffixes()) {
        const QByteArray bytes = SampleModels::bytesOfSample(suffix);
        const QString file = put(QStringLiteral("odd.") + suffix, bytes);
        const ToolRun inPlace({QStringLiteral("resave"), file});
        QCOMPARE(inPlace.exitCode, 0);
        QVERIFY(inPlace.out.contains(QStringLiteral("the same bytes")));
        QCOMPARE(readFile(file), bytes);

        const ToolRun elsewhere(
            {QStringLiteral("resave"), file, QStringLiteral("-o"), path(QStringLiteral("out"))});
        QCOMPARE(elsewhere.exitCode, 0);
        QCOMPARE(readFile(path(QStringLiteral("out/odd.") + suffix)), bytes);
    }

    // Another file is not replaced unasked.
    const QStringList other{
        QStringLiteral("resave"),
        put(QStringLiteral("b/odd.anim"), SampleModels::bytesOf(SampleModels::plainAnim())),
        QStringLiteral("-o"), path(QStringLiteral("out"))};
    QCOMPARE(ToolRun(other).exitCode, 1);
    QCOMPARE(readFile(path(QStringLiteral("out/odd.anim"))),
             SampleModels::bytesOfSample(QStringLiteral("anim")));
    QCOMPARE(ToolRun(other + QStringList(QStringLiteral("--force"))).exitCode, 0);
    QCOMPARE(readFile(path(QStringLiteral("out/odd.anim"))), readFile(other.at(1)));

    // A count below zero is read as none, and written so.
    AnimFile anim;
    anim.blocks.resize(1);
    const QByteArray none = SampleModels::bytesOf(anim);
    QByteArray negative = none;
    negative.replace(32, 4, "\xff\xff\xff\xff");
    const QString file = put(QStringLiteral("negative.anim"), negative);
    const ToolRun changed({QStringLiteral("resave"), file});
    QCOMPARE(changed.exitCode, 0);
    QCOMPARE(changed.out, file + QStringLiteral(": changed\n"));
    QCOMPARE(readFile(file), none);
}

void tst_Tool::resaveLosesNothing()
{
    const QByteArray whole = SampleModels::bytesOf(SampleModels::plainStatic());
    for (const QByteArray &bytes : {whole.left(whole.size() - 1), whole + "more"}) {
        const QString file = put(QStringLiteral("x.staticmesh"), bytes);
        const ToolRun run({QStringLiteral("resave"), file});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.err.contains(file));
        QCOMPARE(readFile(file), bytes);
    }
    // Two files of one name go into one folder only once.
    QDir(m_folder->path()).mkdir(QStringLiteral("out"));
    const ToolRun twice({QStringLiteral("resave"), put(QStringLiteral("a/y.staticmesh"), whole),
                         put(QStringLiteral("b/y.staticmesh"), whole), QStringLiteral("--force"),
                         QStringLiteral("-o"), path(QStringLiteral("out"))});
    QCOMPARE(twice.exitCode, 1);
    QCOMPARE(twice.out.count(QLatin1Char('\n')), 1);
}

void tst_Tool::importStatic()
{
    QDir(m_folder->path()).mkpath(QStringLiteral("mod/materials"));
    const QStringList arguments{
        QStringLiteral("import"),     QStringLiteral("--static"), putObj(),
        QStringLiteral("-o"),         m_folder->path(),           QStringLiteral("--no-rotate"),
        QStringLiteral("--scale"),    QStringLiteral("2"),        QStringLiteral("--create-kmat"),
        QStringLiteral("--mod-path"), path(QStringLiteral("mod"))};
    const ToolRun run(arguments);
    QCOMPARE(run.exitCode, 0);
    StaticMesh mesh;
    QVERIFY(!mesh.read(path(QStringLiteral("wedge.staticmesh"))));
    QCOMPARE(mesh.vertices.size(), size_t(3));
    QCOMPARE(mesh.bbMax, QVector3D(4, 8, 0));
    QCOMPARE(mesh.surfaces[0].materialPath, QStringLiteral("materials/mat_wedge/surf_0_white"));
    QVERIFY(QFileInfo::exists(path(QStringLiteral("mod/materials/mat_wedge.kmat"))));

    // Nothing of that is replaced unasked.
    const QString result = put(QStringLiteral("wedge.staticmesh"), "mine");
    const ToolRun again(arguments);
    QCOMPARE(again.exitCode, 1);
    QVERIFY(again.err.contains(result) && again.err.contains(QStringLiteral("mat_wedge.kmat")));
    QCOMPARE(readFile(result), QByteArray("mine"));
    QCOMPARE(ToolRun(arguments + QStringList(QStringLiteral("--force"))).exitCode, 0);
    QVERIFY(readFile(result) != QByteArray("mine"));
}

void tst_Tool::importSkinnedWithAnimation()
{
    const QString model = put(QStringLiteral("small.gltf"), skinnedGltf());
    const ToolRun run({QStringLiteral("import"), model, QStringLiteral("-o"), m_folder->path()});
    QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
    const ToolRun info({QStringLiteral("info"), QStringLiteral("--json"),
                        path(QStringLiteral("small.skinnedmesh")), path(QStringLiteral("small.anim"))});
    QCOMPARE(info.exitCode, 0);
    QCOMPARE(info.first().value(QStringLiteral("counts")).toObject().value(QStringLiteral("bones")).toInt(),
             3);
    const QJsonObject block =
        info.json().at(1).toObject().value(QStringLiteral("blocks")).toArray().at(0).toObject();
    QCOMPARE(block.value(QStringLiteral("id")).toInt(), 7);
    QCOMPARE(block.value(QStringLiteral("frames")).toInt(), 41);
}

void tst_Tool::importFailures()
{
    const ToolRun broken({QStringLiteral("import"), put(QStringLiteral("x.gltf"), "{"), QStringLiteral("-o"),
                          m_folder->path()});
    QCOMPARE(broken.exitCode, 1);
    QVERIFY2(broken.err.contains(QStringLiteral("Could not read file")), qUtf8Printable(broken.err));
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("x.skinnedmesh"))));

    const ToolRun missing(
        {QStringLiteral("import"), path(QStringLiteral("none.obj")), QStringLiteral("-o"), m_folder->path()});
    QCOMPARE(missing.exitCode, 1);
    QVERIFY(missing.err.contains(QStringLiteral("none.obj: There is no such file")));
}

void tst_Tool::exportAsObj()
{
    const QString crate = source(QStringLiteral("samples/game/models/crate/crate.staticmesh"));
    const QStringList arguments{QStringLiteral("export"), crate, QStringLiteral("-o"),
                                path(QStringLiteral("box.obj"))};
    const ToolRun run(arguments);
    QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
    QVERIFY(readFile(path(QStringLiteral("box.obj"))).contains("mtllib box.mtl"));
    QVERIFY(readFile(path(QStringLiteral("box.mtl"))).contains("crate.png"));
    // The folder that the file lies in was found to be the game's.
    QVERIFY(QFileInfo::exists(path(QStringLiteral("crate.png"))));

    put(QStringLiteral("box.mtl"), "mine");
    QCOMPARE(ToolRun(arguments).exitCode, 1);
    QCOMPARE(readFile(path(QStringLiteral("box.mtl"))), QByteArray("mine"));
    QCOMPARE(ToolRun(arguments + QStringList(QStringLiteral("--force"))).exitCode, 0);

    const ToolRun anim({QStringLiteral("export"),
                        source(QStringLiteral("samples/game/anims/tinker/tinker.anim")), QStringLiteral("-o"),
                        m_folder->path()});
    QCOMPARE(anim.exitCode, 1);
    QVERIFY(anim.err.contains(QStringLiteral("Only static meshes")));
}

void tst_Tool::rendersNothingWithoutDisplay()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(variable));
    const QStringList arguments{QStringLiteral("render"), QStringLiteral("-o"), path(QStringLiteral("x.png")),
                                source(QStringLiteral("samples/game/models/crate/crate.staticmesh"))};
    const auto refuses = [&] {
        const ToolRun run(arguments, environment);
        return run.exitCode == 3 && run.err.contains(QStringLiteral("xvfb-run"));
    };
    QVERIFY(refuses());
    QCOMPARE(ToolRun({QStringLiteral("render"), QStringLiteral("--help")}, environment).exitCode, 0);
    // One that is named and not there must not abort it.
    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":9999"));
    QVERIFY(refuses());
    QVERIFY(!QFileInfo::exists(path(QStringLiteral("x.png"))));
}

void tst_Tool::namesInUtf8()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    const QString file =
        put(QStringLiteral("größe/クレート.staticmesh"), SampleModels::bytesOf(SampleModels::plainStatic()));
    const ToolRun run({QStringLiteral("info"), QStringLiteral("--json"), file}, environment);
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.first().value(QStringLiteral("file")).toString(), file);
}

QTEST_GUILESS_MAIN(tst_Tool)
#include "tst_tool.moc"
