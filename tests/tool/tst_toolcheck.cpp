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
    void unreadableFiles()
    {
        const auto check = [this](const QString &name, const QByteArray &bytes, const QString &complaint) {
            const QString file = bytes.isEmpty() ? path(name) : put(name, bytes);
            const ToolRun text("info", {file});
            QCOMPARE(text.exitCode, 1);
            QCOMPARE(text.out, QString());
            QVERIFY2(text.err.contains(file) && text.err.contains(complaint), qUtf8Printable(text.err));

            const ToolRun json("info --json", {file});
            QCOMPARE(json.exitCode, 1);
            QVERIFY2(json.first()["error"].toString().contains(complaint), qUtf8Printable(file));

            const ToolRun checked("check", {file});
            QCOMPARE(checked.exitCode, 1);
            QVERIFY2(checked.out.contains(complaint), qUtf8Printable(checked.out));
        };
        for (const QString &suffix : SampleModels::suffixes()) {
            const QByteArray half = SampleModels::bytesOfSample(suffix).left(50);
            QString reason;
            SampleModels::withModel(
                suffix, [&](auto model) { QVERIFY(SampleModels::readBytes(model, half, &reason)); });
            QVERIFY(!reason.isEmpty());
            check("half." + suffix, half, reason);
        }
        check("n.staticmesh", QByteArray(28, '\0') + QByteArray(4, '\xff'), "negative");
        check("m.kmat", "material a\nmaterial a\n", "same name");
        check("a.txt", "text", ".skinnedmesh, .anim");
        check("*.anim", {}, "no such file");
    }

    void checkWalksFolders()
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

    /// Files of which each has one fault. Each is checked against what belongs to it: folders, and the mesh
    /// beside an animation.
    void checkFindsEveryFault()
    {
        const auto base = std::move(BrokenModels::bases().front());
        const QByteArray mesh = SampleModels::bytesOf(base->model<SkinnedMesh>());
        QStringList expected;
        // Empty models cannot be saved, and the reserved index ends the list that it stands in.
        std::set<Rule> written{Rule::NoBones, Rule::NoAnimations, Rule::NoSurfaces,
                               Rule::TriangleIndexReserved, Rule::TextNotKept};
        const auto fileOf = [](const auto &model) {
            const QByteArray bytes = SampleModels::bytesOf(model);
            return bytes.isEmpty() ? bytes : bytes + QByteArray(int(model.bytesBehind), 'x');
        };
        const auto putBroken = [&](const QString &suffix, auto model) {
            using Model = decltype(model);
            for (const auto &breakage : BrokenModels::breakages<Model>()) {
                model = base->template model<Model>();
                breakage.apply(model);
                const QByteArray bytes = fileOf(model);
                Model back;
                if (bytes.isEmpty() || breakage.rule == Rule::TextNotKept ||
                    SampleModels::readBytes(back, bytes) || fileOf(back) != bytes)
                    continue;
                const QString name = QStringLiteral("%1/x.").arg(expected.size());
                if (suffix == QLatin1String("anim"))
                    put(name + "skinnedmesh", mesh);
                expected << put(name + suffix, bytes) + ' ' + ruleId(breakage.rule);
                written.insert(breakage.rule);
            }
        };
        putBroken("skinnedmesh", SkinnedMesh());
        putBroken("anim", AnimFile());
        putBroken("staticmesh", StaticMesh());
        QCOMPARE(written.size(), allRules().size());

        const MaterialFolders folders = base->folders();
        const ToolRun run("check --json --game-path",
                          {folders.gamePath, "--mod-path", folders.outputDir, path()});
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

        // Material files have textures, and no records.
        const QString materials = folders.outputDir + "/materials";
        const ToolRun kmats("check --game-path",
                            {folders.gamePath, "--mod-path", folders.outputDir, materials});
        QCOMPARE(kmats.exitCode, 0);
        for (const char *fault : {"mat_no_picture.kmat: warning: Material 'lost'",
                                  "mat_no_sampler.kmat: warning: Material 'bare'", "0 errors, 2 warnings"})
            QVERIFY2(kmats.out.contains(fault), qUtf8Printable(kmats.out));
    }

    void checkListsAndCounts()
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
        QCOMPARE(all.at(30)["record"].toObject(),
                 (QJsonObject{{"kind", "vertex"}, {"index", QJsonArray{30}}}));
    }

private:
    QString path(const QString &name = {}) const { return m_folder->path(name); }
    QString put(const QString &name, const QByteArray &bytes) const { return m_folder->put(name, bytes); }

    std::optional<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(tst_ToolCheck)
#include "tst_toolcheck.moc"
