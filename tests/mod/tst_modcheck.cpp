// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModCheck.h"
#include "SampleModels.h"
#include "SpecialFiles.h"
#include "TestArchive.h"
#include "TestSupport.h"

#include <QImage>

using TestSupport::readFile;
using TestSupport::source;

/// What is wrong with a mod as a whole, and what silences that.
class tst_ModCheck : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        copy("samples/game/models/tinker/tinker.skinnedmesh", "game/models/tinker/tinker.skinnedmesh");
        copy("samples/game/anims/tinker/tinker.anim", "game/anims/tinker/tinker.anim");
        copy("samples/game/materials/mat_tinker.kmat", "game/materials/mat_tinker.kmat");
        copy("samples/game/textures/tinker.png", "game/textures/tinker.png");
        for (const char *name :
             {"materials/mat_tinker_scarf.kmat", "textures/tinker_scarf.png", "textures/tinker_glow.png"})
            m_folder->put(QStringLiteral("game/") + name,
                          readFile(source(QStringLiteral("samples/mod/") + name)));
        copy("samples/mod/textures/lantern.png", "mod/textures/lantern.png");
        QCOMPARE(found(), QStringList());
    }

    void everyRuleHasItsFault()
    {
        SkinnedMesh mesh = sampleMesh();
        mesh.nodes.emplace_back().parentNode = 0;
        mesh.nodes[0].childNodes.push_back(quint16(mesh.nodes.size() - 1));
        m_folder->save("mod/models/tinker/tinker.skinnedmesh", mesh);
        expect("models/tinker/tinker.skinnedmesh animation-bone-count");

        // With animations in the mod it is these that do not fit, and are told of.
        copy("samples/game/anims/tinker/tinker.anim", "mod/anims/tinker/tinker.anim");
        expect("anims/tinker/tinker.anim bone-count-mismatch, anims/tinker/tinker.anim same-as-game");
        m_folder->save("mod/models/tinker/tinker.skinnedmesh", sampleMesh());
        expect("anims/tinker/tinker.anim same-as-game, models/tinker/tinker.skinnedmesh same-as-game");
        QVERIFY(QFile::remove(path("mod/anims/tinker/tinker.anim")));
        QVERIFY(QFile::remove(path("mod/models/tinker/tinker.skinnedmesh")));

        picture("mod/textures/even.png", {64, 128});
        picture("mod/textures/odd.png", {64, 100});
        picture("mod/textures/large.png", {8192, 1});
        picture("mod/looks.png", {3, 3}); // nobody's texture
        copy("samples/game/textures/tinker.png", "mod/textures/tinker.png.bak");
        copy("samples/game/textures/tinker.png", "game/textures/tinker.png.bak");
        m_folder->put("mod/textures/none.tga", "no picture");
        m_folder->put("mod/models/half.staticmesh", "half");
        expect("models/half.staticmesh unreadable, textures/large.png texture-too-large, "
               "textures/none.tga texture-unreadable, textures/odd.png texture-not-power-of-two");

        // By their case; what is in folders that clash is not told of once more.
        if (!QFile::exists(path("MOD"))) {
            QVERIFY(QDir(path("mod")).removeRecursively());
            for (const char *name : {"mod/b/x.txt", "mod/B/x.txt", "mod/c/y.txt", "mod/c/Y.txt"})
                m_folder->put(name, name);
            expect("b name-clash, c/y.txt name-clash");
        }
    }

    void materialsThatNobodyNames()
    {
        const QByteArray two = "material worn {\n sampler \"diffuse\" 0 \"textures/tinker_glow.png\"\n}\n"
                               "material bare {\n sampler \"diffuse\" 0 \"textures/tinker_glow.png\"\n}\n";
        m_folder->put("mod/materials/mat_new.kmat", two);
        expect("materials/mat_new.kmat material-unused, materials/mat_new.kmat material-unused");
        QVERIFY(run().findings[0].text.contains("'bare'"));

        StaticMesh mesh = SampleModels::plainStatic();
        mesh.surfaces.resize(1);
        mesh.surfaces[0].materialPath = "Materials/MAT_new/worn";
        const QString model = m_folder->save("mod/models/hat.staticmesh", mesh);
        QCOMPARE(found().count("materials/mat_new.kmat material-unused"), 1);
        // A model of the game may name what only the mod has; and one that cannot be read may name anything.
        mesh.surfaces[0].materialPath = "materials/mat_new/bare";
        const QString game = m_folder->save("game/models/cap.staticmesh", mesh);
        QCOMPARE(found().count("materials/mat_new.kmat material-unused"), 0);
        mesh.surfaces[0].materialPath = "materials/mat_tinker/body_of_another";
        QVERIFY(!mesh.write(game));
        QCOMPARE(found().count("materials/mat_new.kmat material-unused"), 1);
        QVERIFY(TestSupport::writeFile(model, "half"));
        QCOMPARE(found().count("materials/mat_new.kmat material-unused"), 0);
        // What the game has of the name may be meant for what is no model.
        QVERIFY(QFile::remove(model));
        m_folder->put("game/materials/MAT_NEW.kmat", "material worn {\n}\n");
        QCOMPARE(found().count("materials/mat_new.kmat material-unused"), 0);
    }

    void archivesAreModsToo()
    {
        picture("mod/textures/odd.png", {64, 100});
        m_folder->put("mod/.korvane.json",
                      R"({"check": {"silence": [{"rule": "texture-not-power-of-two", "why": "so"}]}})");
        TestArchive archive;
        archive.addFolder(path("mod"));
        archive.add(".korvane.json", readFile(path("mod/.korvane.json")));
        archive.add("textures/tinker.png", readFile(path("game/textures/tinker.png")));
        const QString file = m_folder->put("mod.kpf", archive.bytes());
        const ModReport report = ModCheck({path("game"), file}, {}).run();
        QCOMPARE(names(report), QStringList({"textures/odd.png texture-not-power-of-two (so)",
                                             "textures/tinker.png same-as-game"}));
    }

    void silences_data()
    {
        QTest::addColumn<QByteArray>("check");
        QTest::addColumn<bool>("silences");
        QTest::addColumn<int>("doubts");
        const auto row = [](const char *files, bool silences) {
            QTest::newRow(files)
                << QByteArray(R"([{"rule": "texture-not-power-of-two", "files": "%"}])").replace("%", files)
                << silences << 0;
        };
        for (const char *files : {"textures/hud/odd.png", "Textures/HUD/*", "textures/**", "**/odd.png", "**",
                                  "textures/hud/o?d.png", "textures/**/odd.png", "**/hud/**"})
            row(files, true);
        for (const char *files : {"*", "odd.png", "textures/*", "textures/hud", "textures/hud/odd",
                                  "textures/hud/o?.png", "textures/hud/.dd.png"})
            row(files, false);
        QTest::newRow("everywhere") << QByteArray(R"([{"rule": "texture-not-power-of-two"}])") << true << 0;
        // What is not understood silences nothing.
        for (const char *list :
             {R"([{"rule": "texture"}])", R"([{"file": "x", "rule": "texture-not-power-of-two"}])",
              R"([{"files": 7, "rule": "texture-not-power-of-two"}])", R"([{"files": "**"}])",
              R"([{"rule": "texture-not-power-of-two", "files": ""}])", R"(["texture-not-power-of-two"])",
              R"({"rule": "texture-not-power-of-two"})", R"([{"rule": "settings-unknown"}])"})
            QTest::newRow(list) << QByteArray(list) << false << 1;
        const QByteArray entry = R"({"rule": "texture-not-power-of-two", "files": "%"})";
        const QByteArray stars = QByteArray("*a").repeated(499);
        QTest::newRow("stars") << '[' + QByteArray(entry).replace('%', stars + 'b') + ']' << false << 0;
        QTest::newRow("too long") << '[' + QByteArray(entry).replace('%', "**" + stars + "*") + ']' << false
                                  << 1;
        QTest::newRow("too many") << '[' + (QByteArray(entry).replace('%', "x") + ',').repeated(1000) +
                                         QByteArray(entry).replace('%', "**") + ']'
                                  << false << 1;
    }
    void silences()
    {
        QFETCH(QByteArray, check);
        QFETCH(bool, silences);
        QFETCH(int, doubts);
        picture("mod/textures/hud/odd.png", {64, 100});
        m_folder->put("mod/.korvane.json", "{\"check\": {\"silence\": " + check + "}}");
        const ModReport report = run();
        int silenced = 0, settings = 0;
        for (const ModFinding &finding : report.findings) {
            silenced += finding.isSilenced ? 1 : 0;
            settings += finding.name == CheckSettings::FileName ? 1 : 0;
        }
        QCOMPARE(silenced, silences ? 1 : 0);
        QCOMPARE(settings, doubts);
    }

    void damagedSettingsAreToldOf()
    {
        picture("mod/textures/large.png", {1024, 16});
        const auto settings = [this](const QByteArray &text) {
            m_folder->put("mod/.korvane.json", text);
            return found();
        };
        QCOMPARE(settings("{\n\"check\": {\n"), QStringList(".korvane.json settings-damaged"));
        QVERIFY(run().findings[0].text.contains("line 3"));
        QCOMPARE(settings("[]"), QStringList(".korvane.json settings-damaged"));
        QCOMPARE(settings(QByteArray(2 << 20, ' ')), QStringList(".korvane.json settings-damaged"));
        QCOMPARE(settings(R"({"chekc": 1, "check": 2})").size(), 2);
        QCOMPARE(settings(R"({"check": {"largestTexture": 512}})"),
                 QStringList("textures/large.png texture-too-large"));
        QCOMPARE(settings(R"({"check": {"largestTexture": 0.5}})"),
                 QStringList(".korvane.json settings-unknown"));
    }

    /// Rules are silenced and heard again; all else of the file stays as it is written.
    void settingsAreEdited_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after");
        const QByteArray entry = "{\"rule\": \"same-as-game\", \"files\": \"a \\\"b\\\".png\"}";
        const QByteArray fresh = "\"silence\": [\n      " + entry + "\n    ]";
        QTest::newRow("none") << QByteArray() << "{\n  \"check\": {\n    " + fresh + "\n  }\n}\n";
        QTest::newRow("empty") << QByteArray("{ }") << "{\"check\": {\n    " + fresh + "\n  } }";
        QTest::newRow("list") << QByteArray("{\"check\":{\"silence\":[ ]}}")
                              << "{\"check\":{\"silence\":[" + entry + " ]}}";
        const QByteArray before =
            "\xef\xbb\xbf{ \"z\" : [1e3, \"}\\\"{\"],\r\n\t\"\\u0063heck\" : {\"silence\":[\r\n"
            "\t\t{\"rule\" : \"unreadable\"}\r\n\t] , \"largestTexture\":8},\"y\":null}";
        QByteArray after = before;
        after.replace("dable\"}", "dable\"},\r\n\t\t" + entry);
        QTest::newRow("odd") << before << after;
        QTest::newRow("line") << QByteArray(R"({"check": {"silence": [{"rule": "x"}], "a": 1}, "z": 2})")
                              << R"({"check": {"silence": [{"rule": "x"}, )" + entry +
                                     R"(], "a": 1}, "z": 2})";
        for (const char *other : {"[", "[]", R"({"check": 1})", R"({"check": {"silence": 1}})",
                                  "{\"\xef\xbb\xbf"
                                  "check\": {\"silence\": [{\"rule\": \"same-as-game\"}]}}"})
            QTest::newRow(other) << QByteArray(other) << QByteArray();
    }
    void settingsAreEdited()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const QByteArray edited = CheckSettings::withSilences(before, {{"same-as-game", "a \"b\".png"}});
        QCOMPARE(edited, after);
        if (after.isEmpty())
            return;
        const CheckSettings settings = CheckSettings::read(edited);
        const auto *silence = settings.silenceOf(QLatin1String("same-as-game"), "A \"b\".png");
        QVERIFY(silence);
        const QByteArray back = CheckSettings::withoutSilences(edited, {silence->place});
        QVERIFY(!CheckSettings::read(back).silenceOf(QLatin1String("same-as-game"), "a \"b\".png"));
        if (before.contains("silence"))
            QCOMPARE(back, before);
        // From the beginning of a list, too.
        const QByteArray two = CheckSettings::withSilences(edited, {{"unreadable", {}}});
        const CheckSettings last = CheckSettings::read(CheckSettings::withoutSilences(two, {silence->place}));
        QVERIFY(last.silenceOf(QLatin1String("unreadable"), "x"));
        QVERIFY(!last.silenceOf(QLatin1String("same-as-game"), "a \"b\".png"));
        // Several at once, in whatever order.
        const QByteArray more = CheckSettings::withSilences(
            before, {{"unreadable", "a"}, {"unreadable", "b"}, {"unreadable", "c"}});
        const int first = int(CheckSettings::read(more).silences().size()) - 3;
        const auto without = [&](const std::set<int> &numbers) {
            std::set<int> places;
            for (const int number : numbers)
                places.insert(CheckSettings::read(more).silences()[size_t(first + number)].place);
            const CheckSettings left = CheckSettings::read(CheckSettings::withoutSilences(more, places));
            QString names;
            for (size_t i = size_t(first); i < left.silences().size(); ++i)
                names += left.silences()[i].files;
            return names;
        };
        QCOMPARE(without({}), QString("abc"));
        QCOMPARE(without({0, 1}), QString("c"));
        QCOMPARE(without({0, 2}), QString("b"));
        QCOMPARE(without({1, 2}), QString("a"));
        QCOMPARE(without({0, 1, 2}), QString());
    }

    /// What is passed over may be what is wrong.
    void tellsOfWhatIsPassedOver()
    {
        SpecialFiles::withNameWithoutText(path("mod/textures"), [this] { expect("textures unreadable"); });
        QVERIFY(QFile::setPermissions(path("mod/textures"), QFile::WriteOwner));
        if (!QFileInfo(path("mod/textures")).isReadable()) // as it is for who may do all
            expect("textures unreadable");
        QVERIFY(QFile::setPermissions(path("mod/textures"),
                                      QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
        expect("");
    }

    void endsWhenItIsTold()
    {
        for (int i = 0; i < 20; ++i)
            picture(qPrintable(QStringLiteral("mod/textures/%1.png").arg(i)), {3, 3});
        qint64 most = 0;
        const auto until = [&most](qint64 last) {
            return [&most, last](qint64 done, qint64) {
                most = std::max(most, done);
                return done < last;
            };
        };
        QCOMPARE(ModCheck(folders(), {}, ListedFindings, until(5)).run().files, 0);
        QCOMPARE(most, 5);
        QCOMPARE(ModCheck(folders(), {}, ListedFindings, until(100)).run().files, 21);
    }

private:
    QString path(const char *name) const { return m_folder->path(name); }
    void copy(const char *from, const char *to) const { m_folder->put(to, readFile(source(from))); }
    void picture(const char *name, const QSize &size) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::red);
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()) && image.save(path(name)));
    }
    SkinnedMesh sampleMesh() const
    {
        SkinnedMesh mesh;
        if (mesh.read(path("game/models/tinker/tinker.skinnedmesh")))
            qFatal("no sample");
        return mesh;
    }

    MaterialFolders folders() const { return {path("game"), path("mod")}; }
    ModReport run() const { return ModCheck(folders(), {}).run(); }
    static QStringList names(const ModReport &report)
    {
        QStringList all;
        for (const ModFinding &finding : report.findings)
            all << finding.name + ' ' + finding.rule.id +
                       (finding.isSilenced ? QStringLiteral(" (%1)").arg(finding.why) : QString());
        return all;
    }
    QStringList found() const { return names(run()); }
    void expect(const char *list) const { QCOMPARE(found().join(", "), QString(list)); }

    std::optional<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(tst_ModCheck)
#include "tst_modcheck.moc"
