// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BrokenModels.h"
#include "TestSupport.h"
#include "ToolRun.h"

#include <set>

using TestSupport::readFile;
using TestSupport::source;
using TestSupport::writeFile;

/// What korvane-tool says of files that something is wrong with.
class tst_ToolCheck : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void unreadableFiles_data();
    void unreadableFiles();
    void checkWalksFolders();
    void checkFindsEveryFault();
    void checkListsAndCounts();

private:
    QString path(const QString &name) const { return m_folder->filePath(name); }
    QString put(const QString &name, const QByteArray &bytes) const
    {
        QDir(m_folder->path()).mkpath(QFileInfo(name).path());
        writeFile(path(name), bytes);
        return path(name);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_ToolCheck::unreadableFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("complaint");
    for (const QString &suffix : SampleModels::suffixes()) {
        const QByteArray half = SampleModels::bytesOfSample(suffix).left(50);
        QString reason;
        SampleModels::withModel(suffix,
                                [&](auto model) { QVERIFY(SampleModels::readBytes(model, half, &reason)); });
        QVERIFY(!reason.isEmpty());
        QTest::newRow(qUtf8Printable(QStringLiteral("half a ") + suffix))
            << QStringLiteral("half.") + suffix << half << reason;
    }
    QTest::newRow("negative count") << "n.staticmesh" << QByteArray(28, '\0') + QByteArray(4, '\xff')
                                    << "negative";
    QTest::newRow("material") << "m.kmat" << QByteArray("material a\nmaterial a\n") << "same name";
    QTest::newRow("other kind") << "a.txt" << QByteArray("text") << ".skinnedmesh, .anim";
    QTest::newRow("not there") << "*.anim" << QByteArray() << "no such file";
}

void tst_ToolCheck::unreadableFiles()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, complaint);
    const QString file = bytes.isEmpty() ? path(name) : put(name, bytes);

    const ToolRun text({QStringLiteral("info"), file});
    QCOMPARE(text.exitCode, 1);
    QCOMPARE(text.out, QString());
    QVERIFY2(text.err.contains(file) && text.err.contains(complaint), qUtf8Printable(text.err));

    const ToolRun json({QStringLiteral("info"), QStringLiteral("--json"), file});
    QCOMPARE(json.exitCode, 1);
    QVERIFY(json.first().value(QStringLiteral("error")).toString().contains(complaint));

    const ToolRun check({QStringLiteral("check"), file});
    QCOMPARE(check.exitCode, 1);
    QVERIFY2(check.out.contains(complaint), qUtf8Printable(check.out));
}

void tst_ToolCheck::checkWalksFolders()
{
    QCOMPARE(ToolRun({QStringLiteral("check"), m_folder->path()}).exitCode, 1);
    put(QStringLiteral("a/good.staticmesh"),
        readFile(source(QStringLiteral("samples/game/models/crate/crate.staticmesh"))));
    put(QStringLiteral("a/notes.txt"), "nothing to do with it");
    const QString broken = put(QStringLiteral("a/ü ñ/deep/BROKEN.ANIM"), "nothing");

    const ToolRun bad({QStringLiteral("check"), QStringLiteral("--json"), m_folder->path()});
    QCOMPARE(bad.exitCode, 1);
    QCOMPARE(bad.json().size(), 2);
    QJsonObject findings;
    for (const QJsonValue file : bad.json()) {
        const QJsonArray list = file.toObject().value(QStringLiteral("findings")).toArray();
        for (const QJsonValue &finding : list) {
            if (finding.toObject().value(QStringLiteral("rule")) == QLatin1String("unreadable"))
                findings.insert(file.toObject().value(QStringLiteral("file")).toString(), finding);
        }
    }
    QCOMPARE(findings.keys(), QStringList{broken});
    QCOMPARE(findings.value(broken).toObject().value(QStringLiteral("severity")).toString(),
             QStringLiteral("error"));

    QVERIFY(QFile::remove(broken));
    QCOMPARE(ToolRun({QStringLiteral("check"), source(QStringLiteral("samples"))}).exitCode, 0);
}

/// A folder of broken models, made from the samples and the real models, of which each has one fault.
void tst_ToolCheck::checkFindsEveryFault()
{
    int folders = 0;
    std::set<Rule> written;
    for (const auto &base : BrokenModels::bases()) {
        const QString root = QStringLiteral("%1/").arg(folders++);
        QStringList expected;
        const auto putBroken = [&](const QString &suffix, auto model) {
            using Model = decltype(model);
            int number = 0;
            for (const auto &breakage : BrokenModels::breakages<Model>()) {
                model = base->template model<Model>();
                breakage.apply(model);
                const QByteArray bytes = SampleModels::bytesOf(model);
                // Some faults cannot be saved, or not be read back.
                Model back;
                if (bytes.isEmpty() || SampleModels::readBytes(back, bytes) ||
                    SampleModels::bytesOf(back) != bytes)
                    continue;
                const QString name =
                    QStringLiteral("%1%2 %3/x.").arg(root, suffix, QString::number(number++));
                expected << put(name + suffix, bytes) + QLatin1Char(' ') + ruleId(breakage.rule);
                written.insert(breakage.rule);
                // What an animation is checked against.
                if (suffix == QLatin1String("anim"))
                    put(name + QStringLiteral("skinnedmesh"),
                        SampleModels::bytesOf(base->template model<SkinnedMesh>()));
            }
        };
        putBroken(QStringLiteral("skinnedmesh"), SkinnedMesh());
        putBroken(QStringLiteral("anim"), AnimFile());
        putBroken(QStringLiteral("staticmesh"), StaticMesh());

        const ToolRun run({QStringLiteral("check"), QStringLiteral("--json"), path(root),
                           QStringLiteral("--game-path"), base->folders().gamePath,
                           QStringLiteral("--mod-path"), base->folders().outputDir});
        QCOMPARE(run.exitCode, 1);
        QStringList found;
        for (const QJsonValue file : run.json()) {
            for (const QJsonValue finding : file.toObject().value(QStringLiteral("findings")).toArray()) {
                const QJsonObject object = finding.toObject();
                found << file.toObject().value(QStringLiteral("file")).toString() + QLatin1Char(' ') +
                             object.value(QStringLiteral("rule")).toString();
                QVERIFY(!object.value(QStringLiteral("text")).toString().isEmpty());
                QVERIFY(object.value(QStringLiteral("record")).toObject().contains(QLatin1String("kind")));
            }
        }
        expected.sort();
        found.sort();
        QCOMPARE(found, expected);
    }
    // Empty models cannot be saved, and the reserved index ends the list that it stands in.
    const std::set<Rule> inMemoryOnly{Rule::NoBones, Rule::NoAnimations, Rule::NoSurfaces,
                                      Rule::TriangleIndexReserved};
    for (const Rule rule : allRules())
        QVERIFY2(written.count(rule) != inMemoryOnly.count(rule), ruleId(rule).latin1());
}

void tst_ToolCheck::checkListsAndCounts()
{
    StaticMesh mesh = SampleModels::plainStatic();
    mesh.surfaces.resize(1);
    mesh.vertices.resize(100);
    for (StaticMeshVertex &vertex : mesh.vertices)
        vertex.normal = {};
    const QString file = put(QStringLiteral("x.staticmesh"), SampleModels::bytesOf(mesh));

    const ToolRun text({QStringLiteral("check"), file});
    QCOMPARE(text.exitCode, 0);
    QCOMPARE(text.out.count(QStringLiteral("[normal-zero]")), ListedFindings + 1);
    QVERIFY(text.out.endsWith(QStringLiteral("1 file checked: 0 errors, 100 warnings, 0 notes\n")));
    QVERIFY(text.err.contains(QStringLiteral("--game-path")));

    const QJsonArray all =
        ToolRun({QStringLiteral("check"), QStringLiteral("--json"), QStringLiteral("--all"), file})
            .first()
            .value(QStringLiteral("findings"))
            .toArray();
    QCOMPARE(all.size(), 100);
    QCOMPARE(all.at(30).toObject().value(QStringLiteral("record")).toObject(),
             (QJsonObject{{QStringLiteral("kind"), QStringLiteral("vertex")},
                          {QStringLiteral("index"), QJsonArray{30}}}));
}

QTEST_GUILESS_MAIN(tst_ToolCheck)
#include "tst_toolcheck.moc"
