// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BrokenModels.h"
#include "ToolRun.h"

#include <set>

using TestSupport::readFile;
using TestSupport::source;

/// What korvane-tool says of files that something is wrong with.
class tst_ToolCheck : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_folder.emplace(); }
    void unreadableFiles_data();
    void unreadableFiles();
    void checkWalksFolders();
    void checkFindsEveryFault();
    void checkListsAndCounts();

private:
    QString path(const QString &name = {}) const { return m_folder->path(name); }
    QString put(const QString &name, const QByteArray &bytes) const { return m_folder->put(name, bytes); }

    std::optional<TestFolder> m_folder;
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

    const ToolRun text("info", {file});
    QCOMPARE(text.exitCode, 1);
    QCOMPARE(text.out, QString());
    QVERIFY2(text.err.contains(file) && text.err.contains(complaint), qUtf8Printable(text.err));

    const ToolRun json("info --json", {file});
    QCOMPARE(json.exitCode, 1);
    QVERIFY(json.first()["error"].toString().contains(complaint));

    const ToolRun check("check", {file});
    QCOMPARE(check.exitCode, 1);
    QVERIFY2(check.out.contains(complaint), qUtf8Printable(check.out));
}

void tst_ToolCheck::checkWalksFolders()
{
    QCOMPARE(ToolRun("check", {path()}).exitCode, 1);
    put("a/good.staticmesh", readFile(source("samples/game/models/crate/crate.staticmesh")));
    put("a/notes.txt", "nothing to do with it");
    const QString broken = put("a/ü ñ/deep/BROKEN.ANIM", "nothing");

    const ToolRun bad("check --json", {path()});
    QCOMPARE(bad.exitCode, 1);
    QCOMPARE(bad.json().size(), 2);
    QStringList unreadable;
    for (const QJsonValue file : bad.json()) {
        for (const QJsonValue finding : file["findings"].toArray()) {
            if (finding["rule"] == "unreadable")
                unreadable << file["file"].toString() + ' ' + finding["severity"].toString();
        }
    }
    QCOMPARE(unreadable, QStringList{broken + " error"});
    QCOMPARE(ToolRun("check", {source("samples")}).exitCode, 0);
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

        const ToolRun run("check --json", {path(root), "--game-path", base->folders().gamePath, "--mod-path",
                                           base->folders().outputDir});
        QCOMPARE(run.exitCode, 1);
        QStringList found;
        for (const QJsonValue file : run.json()) {
            for (const QJsonValue finding : file["findings"].toArray()) {
                found << file["file"].toString() + ' ' + finding["rule"].toString();
                QVERIFY(!finding["text"].toString().isEmpty());
                QVERIFY(finding["record"].toObject().contains("kind"));
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
    const QString file = put("x.staticmesh", SampleModels::bytesOf(mesh));

    const ToolRun text("check", {file});
    QCOMPARE(text.exitCode, 0);
    QCOMPARE(text.out.count("[normal-zero]"), ListedFindings + 1);
    QVERIFY(text.out.endsWith("1 file checked: 0 errors, 100 warnings, 0 notes\n"));
    QVERIFY(text.err.contains("--game-path"));

    const QJsonArray all = ToolRun("check --json --all", {file}).first()["findings"].toArray();
    QCOMPARE(all.size(), 100);
    QCOMPARE(all.at(30)["record"].toObject(), (QJsonObject{{"kind", "vertex"}, {"index", QJsonArray{30}}}));
}

QTEST_GUILESS_MAIN(tst_ToolCheck)
#include "tst_toolcheck.moc"
