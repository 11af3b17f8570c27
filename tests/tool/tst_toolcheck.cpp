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

    void checksAModAsAWhole()
    {
        const QString scarf =
            put("mod/materials/mat x.kmat", readFile(source("samples/mod/materials/mat_tinker_scarf.kmat")));
        put("mod/textures/tinker_scarf.png", readFile(source("samples/mod/textures/tinker_scarf.png")));
        const QString broken = put("mod/models/half.anim", "half");
        put("mod/.korvane.json", "{\"check\": {\"silence\": [{\"rule\": \"material-unused\", \"files\": "
                                 "\"materials/*\", \"why\": \"for levels\"}]}}");
        const QString game = source("samples/game");
        const QStringList rest{"--mod", path("mod"), "--game-path", game};

        const ToolRun text("check", rest);
        QCOMPARE(text.exitCode, 1);
        QVERIFY2(text.out.contains(broken + ": error: ") && text.out.contains(" [unreadable]\n"),
                 qUtf8Printable(text.out));
        QVERIFY(!text.out.contains("material-unused"));
        QVERIFY(text.out.endsWith("3 files checked: 1 error, 0 warnings, 0 notes, 1 silenced\n"));
        const ToolRun silenced("check --silenced", rest);
        QVERIFY(silenced.out.contains("[material-unused] (silenced: for levels)\n"));

        const QJsonArray files = ToolRun("check --json --silenced", rest).json();
        QCOMPARE(files.size(), 2);
        QCOMPARE(files[0]["file"].toString(), scarf);
        QCOMPARE(files[0]["findings"][0]["silenced"].toString(), QStringLiteral("for levels"));
        QCOMPARE(ToolRun("check --format json --silenced", rest).json(), files);

        // Paths are those below the folder in which the tool runs.
        const QString here = QDir::currentPath();
        QVERIFY(QDir::setCurrent(path()));
        const ToolRun log("check --format sarif --silenced --mod mod --game-path", {game});
        QVERIFY(QDir::setCurrent(here));
        QCOMPARE(log.exitCode, 1);
        const QJsonObject sarif = QJsonDocument::fromJson(log.out.toUtf8()).object();
        QCOMPARE(sarif["version"].toString(), QStringLiteral("2.1.0"));
        const QJsonValue run = sarif["runs"][0];
        QCOMPARE(run["results"].toArray().size(), 2);
        QStringList results;
        for (const QJsonValue result : run["results"].toArray()) {
            const QJsonValue rule = run["tool"]["driver"]["rules"][result["ruleIndex"].toInt()];
            QCOMPARE(rule["id"], result["ruleId"]);
            QCOMPARE(rule["defaultConfiguration"]["level"], result["level"]);
            results << result["level"].toString() + ' ' +
                           result["locations"][0]["physicalLocation"]["artifactLocation"]["uri"].toString() +
                           ' ' + result["suppressions"][0]["justification"].toString();
        }
        QCOMPARE(results,
                 QStringList({"note mod/materials/mat%20x.kmat for levels", "error mod/models/half.anim "}));

        // Without errors, whatever is silenced.
        QVERIFY(QFile::remove(broken));
        QCOMPARE(ToolRun("check", rest).exitCode, 0);
        for (const char *words : {"check --mod a b", "check --mod --mod-path x y", "check --silenced a",
                                  "check --format xml a", "check --json --format sarif a"})
            QCOMPARE(ToolRun(words).exitCode, 2);
        for (const QString &none : {path("nothing"), scarf}) {
            const ToolRun refused("check --mod", {none});
            QCOMPARE(refused.exitCode, 1);
            QVERIFY(refused.err.contains("neither a folder nor an archive"));
        }
    }

private:
    QString path(const QString &name = {}) const { return m_folder->path(name); }
    QString put(const QString &name, const QByteArray &bytes) const { return m_folder->put(name, bytes); }

    std::optional<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(tst_ToolCheck)
#include "tst_toolcheck.moc"
