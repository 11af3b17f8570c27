// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "PictureTests.h"
#include "TestArchive.h"

using namespace PictureTests;

/// Pictures that korvane-tool draws.
class tst_ToolRender : public QObject
{
    Q_OBJECT

private slots:
    void framesTheWholeModel()
    {
        struct Row
        {
            QString file;
            QSize size;
        };
        // Mesh and animation each bring what belongs to them.
        for (const Row &row : {Row{Crate, {256, 256}}, Row{TinkerAnim, {256, 256}}, Row{Crate, {300, 100}},
                               Row{Tinker, {100, 300}}}) {
            const QImage image = draw(
                QStringLiteral("%1 --size %2x%3").arg(row.file).arg(row.size.width()).arg(row.size.height()));
            QCOMPARE(image.size(), row.size);
            // Nothing is cut off, and the picture is filled in one direction.
            const QRect rectangle = covered(image);
            QVERIFY(image.rect().adjusted(1, 1, -1, -1).contains(rectangle));
            QVERIFY(rectangle.width() > 0.85 * image.width() || rectangle.height() > 0.85 * image.height());
            // A model without its textures has but a few.
            QVERIFY2(distinctColours(image) > 200, qUtf8Printable(row.file));
        }
    }

    /// The game's archive is as good as its folder: the same picture byte for byte, the animation found, all
    /// of it checked, and nothing written into it.
    void readsTheArchive()
    {
        TestFolder folder;
        const QString game = TestSupport::source("samples/game");
        const QString archive = folder.path("game.kpf");
        TestArchive made;
        made.addFolder(game);
        QVERIFY(made.write(archive));
        const QByteArray before = TestSupport::readFile(archive);
        const QString tinker = Tinker.mid(4);
        for (const QString &root : {game, archive}) {
            const ToolRun run("render --size 200 -o",
                              {folder.path(QFileInfo(root).fileName() + ".png"), root + tinker});
            QVERIFY2(run.exitCode == 0, qPrintable(run.err));
        }
        QCOMPARE(TestSupport::readFile(folder.path("game.kpf.png")),
                 TestSupport::readFile(folder.path("game.png")));
        const ToolRun there("check --game-path", {archive, "--mod-path", game, archive + "/Models"});
        const ToolRun here("check --game-path", {game, "--mod-path", game, game + "/models"});
        QCOMPARE(there.exitCode, here.exitCode);
        QCOMPARE(there.out.section('\n', -2), here.out.section('\n', -2));
        QVERIFY(ToolRun("info --json", {archive + tinker.toUpper()}).first()["size"].toDouble() > 1000);
        for (const ToolRun &written :
             {ToolRun("set", {archive + tinker, "bone 0 damage scale", "2"}),
              ToolRun("resave", {archive + tinker}), ToolRun("fit-boxes --in-place", {archive + tinker}),
              ToolRun("dump", {archive + tinker, "-o", archive + "/tinker.json"}),
              ToolRun("render", {archive + tinker, "-o", archive + "/models/tinker.png"}),
              ToolRun("export", {archive + tinker, "-o", archive + "/tinker.glb"})}) {
            QVERIFY(written.exitCode > 0);
            QVERIFY2(written.err.contains("Nothing is written into archives."), qUtf8Printable(written.err));
        }
        QCOMPARE(TestSupport::readFile(archive), before);
    }

    void posesByBlockAndFrame()
    {
        const auto at = [this](const char *pose) {
            return draw(Tinker + " --size 128 --anim " + TinkerAnim + pose);
        };
        const QImage start = at(" --block 0 --frame 0");
        QVERIFY(!start.isNull());
        QCOMPARE(draw(Tinker + " --size 128"), start);
        QVERIFY(at(" --block 0 --frame 6") != start);
        QVERIFY(at(" --block 2 --frame 0") != start);
        // In the last one it has sat down.
        const QRect standing = covered(start);
        const QRect sitting = covered(at(" --block 4 --frame 60"));
        QVERIFY(sitting.width() * standing.height() > 1.3 * standing.width() * sitting.height());
    }

    void coloursAndFormats()
    {
        const QString blue = Crate + " --size 64 --background #0000ff";
        const QImage png = draw(blue);
        QCOMPARE(png.pixelColor(0, 0), QColor(0, 0, 255));
        QVERIFY(png.pixelColor(32, 32) != QColor(0, 0, 255));
        QCOMPARE(qAlpha(draw(Crate + " --size 64").pixel(0, 0)), 0);

        const QImage plain = draw(Tinker + " --size 64");
        QCOMPARE(draw(Tinker + " --size 64 --shading textured"), plain);
        for (const char *shading : {" --size 64 --shading lit", " --size 64 --shading normals"}) {
            const QImage shaped = draw(Tinker + shading);
            QVERIFY(shaped != plain);
            QCOMPARE(covered(shaped), covered(plain));
        }

        QVERIFY(!draw(blue, "x.jpg").isNull());
        QVERIFY(TestSupport::readFile(m_folder.path("x.jpg")).startsWith("\xff\xd8"));
        // File managers ask for a name without an extension.
        QVERIFY(!draw(blue, "thumbnail.X1").isNull());
        QVERIFY(TestSupport::readFile(m_folder.path("thumbnail.X1")).startsWith("\x89PNG"));
    }

    void turnsAround()
    {
        const auto seenFrom = [this](const char *direction) {
            return draw(Tinker + " --size 128 " + direction);
        };
        const QImage front = seenFrom("--yaw 0 --pitch 0");
        QVERIFY(!front.isNull());
        QVERIFY(seenFrom("--yaw 180 --pitch 0") != front);
        QVERIFY(covered(seenFrom("--yaw 0 --pitch 90")).height() < covered(front).height());
        // Whatever the lens, the whole model fills the picture.
        for (const char *lens : {"--lens 1", "--lens 110"}) {
            const QImage seen = seenFrom(lens);
            QVERIFY(seen != seenFrom({}) && QRect(1, 1, 126, 126).contains(covered(seen)));
            QVERIFY(covered(seen).height() > 0.85 * 128);
        }
    }

    void failures()
    {
        struct Row
        {
            QString words, complaint;
        };
        const Row rows[] = {
            {"nowhere.staticmesh", "nowhere.staticmesh: There is no such file"},
            {"game/materials/mat_crate.kmat", "no mesh"},
            {Tinker + " --block 5", "no block 5, only 5"},
            {Tinker + " --frame 25", "no frame 25, only 25"},
            {Crate + " --frame 1", "no animation"},
            {Tinker + " --anim " + Tinker, "no animation"},
        };
        const QString picture = m_folder.path("none.png");
        for (const Row &row : rows) {
            const ToolRun run("render -o", QStringList{picture} + withSamples(row.words));
            QVERIFY2(run.exitCode == 1 && run.err.contains(row.complaint),
                     qUtf8Printable(row.words + run.err));
            QVERIFY(!QFileInfo::exists(picture));
        }
    }

    void replacesNothingUnasked()
    {
        const QString there = m_folder.put("there.png", "mine");
        const QString model = m_folder.put("m.staticmesh", TestSupport::readFile(withSamples(Crate)[0]));
        const auto refuses = [](const char *words, const QStringList &files, const char *complaint) {
            const QByteArray before = TestSupport::readFile(files[0]);
            const ToolRun run(words, files);
            QVERIFY2(run.exitCode == 1 && run.err.contains(complaint), qUtf8Printable(run.err));
            QCOMPARE(TestSupport::readFile(files[0]), before);
        };
        refuses("render -o", {there, model}, "there.png: The file exists already; --force replaces it.");
        refuses("render --force -o", {model, model}, "would replace a file of the game");
#ifdef Q_OS_UNIX
        QVERIFY(QDir(m_folder.path()).mkpath("each") && QFile::link(model, m_folder.path("each/m.png")));
        refuses("render --each --force", {model, "-o", m_folder.path("each")},
                "would replace a file of the game");
#endif
        QCOMPARE(ToolRun("render --force --size 32 -o", {there, model}).exitCode, 0);
        QCOMPARE(QImage(there).width(), 32);

        // File managers make the file before they have it drawn.
        QString entry = TestSupport::readFile(TestSupport::source("packaging/korvane.thumbnailer"));
        entry = entry.section("Exec=korvane-tool ", 1).section('\n', 0, 0);
        const ToolRun run(entry.remove("%i").replace("%s", "48").replace("%o", there), {model});
        QVERIFY2(run.exitCode == 0 && QImage(there).width() == 48, qUtf8Printable(entry + run.err));
    }

    void drawsEach()
    {
        // As a game keeps them, often enough that several threads have something to do.
        TestFolder game;
        const QByteArray crate = TestSupport::readFile(withSamples(Crate)[0]);
        const QByteArray tinker = TestSupport::readFile(withSamples(Tinker)[0]);
        QStringList names{"b/broken"};
        game.put("models/b/broken.staticmesh", crate.left(crate.size() / 2));
        for (int i = 0; i < 6; ++i) {
            const QString name = QStringLiteral("c%1/x").arg(i);
            game.put("models/" + name + ".staticmesh", crate);
            game.put("models/" + name + "y.skinnedmesh", tinker);
            game.put("models/" + name + "y.anim", TestSupport::readFile(withSamples(TinkerAnim)[0]));
            names += {name, name + 'y'};
        }
        names += {"tinker", "x"};
        TestFolder pictures;
        const QString mine = pictures.put("c1/x.png", "mine");
        const QStringList arguments{pictures.path(),
                                    "--game-path",
                                    TestSupport::source("samples/game"),
                                    game.path("models"),
                                    withSamples(TinkerAnim)[0],
                                    game.path("models/c0/x.staticmesh"),
                                    game.path("models/c1/x.staticmesh"),
                                    game.put("empty/none.txt", {}).section('/', 0, -2),
                                    game.path("nowhere.anim")};
        const QString words = "render --each --size 64 ";
        const auto written = [&](const QStringList &without) {
            QStringList lines;
            for (const QString &name : qAsConst(names)) {
                if (!without.contains(name))
                    lines += pictures.path(name + ".png");
            }
            return lines;
        };

        const ToolRun run(words + "-o", arguments);
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.out.split('\n', Qt::SkipEmptyParts), written({"b/broken", "c1/x"}));
        const QStringList complaints{
            game.path("models/b/broken.staticmesh: "),
            mine + ": The file exists already; --force replaces it.",
            game.path("models/c1/x.staticmesh: The picture of another model goes to '") +
                pictures.path("x.png'"),
            game.path("empty: There is no mesh in this folder."),
            game.path("nowhere.anim: There is no such file."),
        };
        QStringList told = run.err.split('\n', Qt::SkipEmptyParts);
        // Some textures are the mod's.
        told.erase(std::remove_if(told.begin(), told.end(),
                                  [](const QString &line) { return line.contains("[GLMesh"); }),
                   told.end());
        QVERIFY2(told.size() == complaints.size(), qUtf8Printable(run.err));
        for (int i = 0; i < told.size(); ++i)
            QVERIFY2(told[i].contains(complaints[i]), qUtf8Printable(run.err));
        QCOMPARE(TestSupport::readFile(mine), QByteArray("mine"));
        QVERIFY(!QFileInfo::exists(pictures.path("b")));

        // Each is what it is alone.
        const ToolRun forced(words + "--force -o", arguments.mid(0, 4) + arguments.mid(6, 1));
        QVERIFY2(forced.exitCode == 1 && forced.out.count('\n') == 13, qUtf8Printable(forced.err));
        const QImage crateAlone = draw(Crate + " --size 64");
        const QImage tinkerAlone = draw(Tinker + " --size 64");
        for (int i = 0; i < 6; ++i) {
            const QString name = QStringLiteral("c%1/x").arg(i);
            QCOMPARE(QImage(pictures.path(name + ".png")), crateAlone);
            QCOMPARE(QImage(pictures.path(name + "y.png")), tinkerAlone);
        }
        QCOMPARE(QImage(pictures.path("tinker.png")), tinkerAlone);
        QCOMPARE(ToolRun(words + "-o", {pictures.path(), withSamples(Crate)[0]}).exitCode, 0);

        // A folder may be named from anywhere, and its pictures stay where they are wanted.
        game.put("models/c0/x.skinnedmesh", tinker);
        const QString before = QDir::currentPath();
        const auto restore = qScopeGuard([&before] { QDir::setCurrent(before); });
        for (const auto &[place, folder] : {std::pair("models", "c0"),
                                            {"models", "./c0/"},
                                            {"models/c1", "../c0"},
                                            {"empty", "../models/../models/c0"}}) {
            const TestFolder own;
            QVERIFY(QDir::setCurrent(game.path(place)));
            const ToolRun relative(words + "-o", {own.path(), folder});
            QCOMPARE(relative.exitCode, 0);
            QCOMPARE(relative.out.split('\n', Qt::SkipEmptyParts),
                     QStringList({own.path("x.png"), own.path("x.staticmesh.png"), own.path("xy.png")}));
        }
    }

    void fullDisk()
    {
        const QImage whole = draw(Crate);
        const QString picture = m_folder.path("x.png");
        const QByteArray before = TestSupport::readFile(picture);
        const FullDisk disk(before.size() - 1);
        const ToolRun run("render --force -o", QStringList{picture} + withSamples(Crate));
        QVERIFY2(run.exitCode == 1 && run.err.contains("The picture cannot be written: File too large"),
                 qUtf8Printable(run.err));
        QCOMPARE(TestSupport::readFile(picture), before);
    }

private:
    /// The picture of a run, of a sample or with one; null when it failed.
    QImage draw(const QString &words, const QString &name = "x.png")
    {
        const QString picture = m_folder.path(name);
        QFile::remove(picture);
        const ToolRun run("render -o", QStringList{picture} + withSamples(words));
        if (run.exitCode != 0)
            qWarning("%d: %s", run.exitCode, qUtf8Printable(run.err));
        return QImage(picture);
    }

    TestFolder m_folder;
};

QTEST_GUILESS_MAIN(tst_ToolRender)
#include "tst_toolrender.moc"
