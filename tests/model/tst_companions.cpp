// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Companions.h"
#include "FileSystem.h"
#include "TestSupport.h"
#include "Validation.h"

/// Which file belongs to which, by names and places alone.
class tst_Companions : public QObject
{
    Q_OBJECT

private slots:
    void find_data()
    {
        QTest::addColumn<QStringList>("files"); // those of the game, the mod, a list and elsewhere
        QTest::addColumn<QString>("of");
        QTest::addColumn<QString>("found");
        QTest::addColumn<QStringList>("others");
        const QString mesh = "game/models/raptor/raptor.skinnedmesh";
        const auto row = [](const char *name, const QStringList &files, const QString &of,
                            const QString &found, const QStringList &others = {}) {
            QTest::newRow(name) << files << of << found << others;
        };
        row("apart", {"game/anims/raptor/raptor.anim", "mod/anims/raptor/raptor.anim"}, mesh,
            "game/anims/raptor/raptor.anim", {"mod/anims/raptor/raptor.anim"});
        row("where the mesh is", {"game/anims/raptor/raptor.anim", "mod/anims/raptor/raptor.anim"},
            "mod/models/raptor/raptor.skinnedmesh", "mod/anims/raptor/raptor.anim",
            {"game/anims/raptor/raptor.anim"});
        row("the game's, to a mesh of the mod", {"game/anims/raptor/raptor.anim"},
            "mod/models/raptor/raptor.skinnedmesh", "game/anims/raptor/raptor.anim");
        row("beside, from anywhere", {"x/raptor.anim", "game/anims/raptor/raptor.anim"},
            "x/raptor.skinnedmesh", "x/raptor.anim", {"game/anims/raptor/raptor.anim"});
        row("in the mod, to a mesh from anywhere", {"mod/anims/deep/RAPTOR.Anim"}, "x/raptor.skinnedmesh",
            "mod/anims/deep/RAPTOR.Anim");
        row("in the same place", {"game/anims/a/raptor/raptor.anim", "game/anims/b/raptor/raptor.anim"},
            "game/models/b/raptor/raptor.skinnedmesh", "game/anims/b/raptor/raptor.anim",
            {"game/anims/a/raptor/raptor.anim"});
        row("listed", {"list/raptor/raptor.anim", "game/anims/raptor.anim"}, "x/raptor/raptor.skinnedmesh",
            "list/raptor/raptor.anim", {"game/anims/raptor.anim"});
        row("two of the name", {"game/anims/a/raptor.anim", "game/anims/b/raptor.anim"}, mesh, {},
            {"game/anims/a/raptor.anim", "game/anims/b/raptor.anim"});
        row("the folder alone", {"game/anims/raptor/walk.anim"}, mesh, "game/anims/raptor/walk.anim");
        row("two in the folder", {"game/anims/raptor/walk.anim", "game/anims/raptor/run.anim"}, mesh, {},
            {"game/anims/raptor/run.anim", "game/anims/raptor/walk.anim"});
        row("the folder, and the name elsewhere", {"game/anims/raptor/walk.anim", "mod/anims/x/raptor.anim"},
            mesh, "mod/anims/x/raptor.anim", {"game/anims/raptor/walk.anim"});
        row("two alone in a folder", {"x/walk.anim"}, "x/raptor.skinnedmesh", "x/walk.anim");
        row("what happens to stand beside", {"x/walk.anim", "x/trex.skinnedmesh"}, "x/raptor.skinnedmesh", {},
            {"x/walk.anim"});
        row("the other way about", {mesh, "x/other.skinnedmesh"}, "game/anims/raptor/raptor.anim", mesh);
        row("in other case", {"mod/Anims/raptor/raptor.anim"}, "mod/Models/raptor/raptor.skinnedmesh",
            "mod/Anims/raptor/raptor.anim");
        row("elsewhere in the game", {"game/anims/trex/trex.anim", "game/x/raptor.anim", "mod/walk.anim"},
            mesh, "game/x/raptor.anim");
        row("elsewhere in the mod", {"mod/raptor.anim", "mod/raptor/walk.anim"}, "x/raptor.skinnedmesh",
            "mod/raptor.anim");
        row("nothing", {"game/anims/trex/trex.anim", "game/raptor/walk.anim", "mod/anims/raptor/raptor.txt"},
            mesh, {});
    }

    void find()
    {
        QFETCH(QStringList, files);
        QFETCH(QString, of);
        QFETCH(QString, found);
        QFETCH(QStringList, others);
        const TestFolder folder;
        const auto full = [&folder](QStringList paths) {
            for (QString &path : paths)
                path = folder.path(path);
            return paths;
        };
        for (const QString &file : qAsConst(files))
            folder.put(file, {});
        folder.put(of, {});
        Companions companions({folder.path("game"), folder.path("mod/")}, full(files).filter("/list/"));
        // What was looked through once is known.
        for (int i = 0; i < 2; ++i) {
            const CompanionFile companion = companions.find(folder.path(of));
            // Where letters' case makes no other file, it has the mesh's.
            QCOMPARE(FileSystem::comparable(companion.path),
                     FileSystem::comparable(found.isEmpty() ? QString() : folder.path(found)));
            QCOMPARE(companion.others, full(others));
        }
    }
};

QTEST_GUILESS_MAIN(tst_Companions)
#include "tst_companions.moc"
