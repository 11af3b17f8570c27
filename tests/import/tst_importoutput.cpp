// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FullDisk.h"
#include "ImportOutput.h"
#include "ImportedFiles.h"
#include "SpecialFiles.h"
#include "StaticMesh.h"
#include "TestSupport.h"

/// What an import leaves in the mod folder.
class tst_importoutput : public QObject
{
    Q_OBJECT

private slots:
    void insideOrOutside()
    {
        const std::vector<std::pair<QString, QString>> relativePaths{
            {"materials/a.kmat", "materials/a.kmat"},
            {"/mod/materials/a.kmat", "materials/a.kmat"},
            {"materials/../textures/./a", "textures/a"},
            {"/mod/", ""},
            {"/mod2/a.kmat", QString()}, // a name that only begins alike
            {"materials/../../a.kmat", QString()},
            {"/tmp/a.kmat", QString()},
            {"..a/b", "..a/b"},
        };
        const QString drive = QDir::rootPath().chopped(1); // where there are such
        for (const auto &[path, relative] : relativePaths) {
            const QString whole = path.startsWith(QLatin1Char('/')) ? drive + path : path;
            const QString found = pathInside(drive + QStringLiteral("/mod/"), whole);
            QCOMPARE(found, relative);
            QCOMPARE(found.isNull(), relative.isNull());
            QCOMPARE(pathInside(drive + QStringLiteral("/mod/"), QDir::toNativeSeparators(whole)), relative);
            // Without a folder only what is relative already can be inside.
            QCOMPARE(pathInside(QString(), whole).isNull(),
                     relative.isNull() || path.startsWith(QLatin1Char('/')));
        }
    }

    void copying()
    {
        const TestFolder source, target;
        const QString a = source.put("a.png", "new");
        const QString b = source.put("b.png", "other");
        const QString there = target.put("a.png", "old");
        ImportMessages messages;
        const QString copied = QStringLiteral("Successfully copied textures\n");
        const QString failed = QStringLiteral("Failed on copying textures\n");
        const auto copy = [&](const QStringList &textures, const QString &folder) {
            std::vector<FileCopy> copies;
            for (const QString &texture : textures)
                copies.push_back({texture, folder + '/' + QFileInfo(texture).fileName()});
            return copyTextures(copies, messages);
        };
        QCOMPARE(copy({a, b}, target.path()), copied);
        QCOMPARE(TestSupport::readFile(there), QByteArray("new"));

        // Onto itself, also by another way.
        for (const QString &way :
             {source.path("../") + QFileInfo(source.path()).fileName(), target.path("link")}) {
            if (way.endsWith("link") && !SpecialFiles::link(source.path(), way))
                continue;
            QCOMPARE(copy({a}, way), copied);
        }
        QCOMPARE(TestSupport::readFile(a), QByteArray("new"));
        QVERIFY(messages.lines.isEmpty());
        QCOMPARE(copy({}, target.path()), QStringLiteral("Model had no textures to copy\n"));

        // What cannot be read leaves the file that stands there; what cannot be written says so.
        const QString gone = source.path("sub/a.png");
        QCOMPARE(copy({gone}, target.path()), failed);
        QCOMPARE(TestSupport::readFile(there), QByteArray("new"));
        const QString inTheWay = target.path("b.png.d");
        QVERIFY(QDir().mkpath(inTheWay + "/b.png"));
        QCOMPARE(copy({a, b}, inTheWay), failed);
        QCOMPARE(messages.lines.size(), 2);
        QCOMPARE(messages.lines[0].text,
                 QString("Could not copy texture from '%1' to '%2'").arg(gone, there));
        QCOMPARE(messages.lines[1].text, QString("Could not overwrite texture '%1/b.png'").arg(inTheWay));
        QVERIFY(!messages.hasError());
    }

    void allOfOneNameArrive()
    {
        const TestFolder source, mod;
        const QString one = source.put("a/wood.png", "1"), two = source.put("b/wood.png", "2"),
                      oneToo = source.put("c/wood.png", "1"), gone = source.path("d/wood.png");
        const auto names = [&mod](const QStringList &files) {
            QStringList targets;
            for (const FileCopy &copy : copiesInto(mod.path("textures"), files))
                targets += QFileInfo(copy.target).completeBaseName();
            return targets.join(' ');
        };
        QCOMPARE(names({one, two, oneToo, two, gone}), QString("wood wood_2 wood wood_2 wood"));
        mod.put("textures/wood_2.png", "mine");
        // What is not there keeps its name, rather than to pass for the mod's own.
        QCOMPARE(names({one, gone, two, oneToo}), QString("wood wood wood_3 wood"));
        const QString there = mod.put("textures/wood.png", "3");
        // The file that is there gives its name to nobody else, and another free name is taken.
        QCOMPARE(names({one, two, there}), QString("wood_3 wood_4 wood"));

        StaticMesh mesh;
        mesh.surfaces = {{"materials/m/surf_0", {}}, {"materials/m/surf_1", {}}, {"materials/m/surf_2", {}}};
        ImportChoices choices;
        choices.modFolder = mod.path();
        choices.textureFolder = "textures";
        choices.kmatPath = "m.kmat";
        choices.copyTextures = choices.createKMat = true;
        const auto textures = [&](bool free, const QStringList &replaced) {
            ImportMessages messages;
            ImportedFiles files(choices, mesh, {one, two, oneToo});
            QCOMPARE(files.replaced(), replaced);
            if (free)
                files.useFreeNames();
            QVERIFY(files.write(messages).startsWith("Successfully copied"));
            QVERIFY(!messages.lines.isEmpty()); // which tell the names
            MaterialTable table;
            QCOMPARE(readKMat(mod.path("m.kmat"), table), QString());
            QStringList contents;
            for (const auto &[name, texture] : table)
                contents += texture.section('/', -1) + ' ' + TestSupport::readFile(mod.path(texture));
            const QString first = free ? "wood_4.png 1" : "wood.png 1";
            QCOMPARE(contents, QStringList({first, "wood_3.png 2", first}));
        };
        textures(true, {there});
        QVERIFY(QFile::remove(mod.path("m.kmat")));
        textures(false, {there});
        textures(false, {}); // again: all is there, by the same names
        QCOMPARE(TestSupport::readFile(mod.path("textures/wood_2.png")), QByteArray("mine"));
    }

    void namesThatDifferInCaseAlone()
    {
        const TestFolder source, mod;
        const QString capital = source.put("a/Wood.png", "1"), small = source.put("b/wood.png", "2"),
                      loud = source.put("c/WOOD.PNG", "1");
        const bool isOneName = QFile::exists(source.path("a/wood.png"));
        const std::vector<FileCopy> copies = copiesInto(mod.path(), {capital, small, loud});
        ImportMessages messages;
        QCOMPARE(copyTextures(copies, messages), QString("Successfully copied textures\n"));
        for (const FileCopy &copy : copies)
            QCOMPARE(TestSupport::readFile(copy.target), TestSupport::readFile(copy.source));
        const QStringList names = QDir(mod.path()).entryList(QDir::Files, QDir::Name | QDir::IgnoreCase);
        QCOMPARE(names.size(), isOneName ? 2 : 3);
        QCOMPARE(names.contains("wood_2.png"), isOneName);
        // Of what stands there, none is in the way of itself.
        QCOMPARE(replacedTargets(copiesInto(mod.path(), {mod.path("wOOD.png")})), QStringList());
    }

    void copyingOntoAFullDisk()
    {
        const TestFolder source, target;
        const QString there = target.put("a.png", "old");
        for (const int size : {600, 60000}) {
            const QString a = source.put("a.png", QByteArray(size, 'x'));
            for (const int limit : {0, size / 2, size - 1, size}) {
                const FullDisk disk(limit);
                ImportMessages messages;
                const bool fits = limit == size;
                const QString outcome = copyTextures({{a, there}}, messages);
                QCOMPARE(outcome.startsWith(QLatin1String("Successfully")), fits);
                QCOMPARE(messages.lines.isEmpty(), fits);
                QCOMPARE(TestSupport::readFile(there), fits ? TestSupport::readFile(a) : QByteArray("old"));
            }
            target.put("a.png", "old");
        }
    }

    void materials()
    {
        const QStringList surfaces{"surf_0", "surf_1_white", "surf_2"};
        const QStringList textures{"steel.v2.png", "wood.png"};
        MaterialTable table = materialsOf(surfaces, textures, "textures/mine");
        QCOMPARE(table, (MaterialTable{{"surf_0", "textures/mine/steel.v2.png"},
                                       {"surf_1_white", "_white"},
                                       {"surf_2", "textures/mine/wood.png"}}));
        QCOMPARE(materialsOf(surfaces, textures, QString())[QString("surf_2")], QString("wood.png"));

        QTemporaryDir folder;
        ImportMessages messages;
        const QString path = folder.filePath(QStringLiteral("m.kmat"));
        const QString created = QStringLiteral("Successfully created .kmat file\n");
        QCOMPARE(createKMat(path, table, false, messages), created);
        MaterialTable written;
        QCOMPARE(readKMat(path, written), QString());
        QCOMPARE(written, table);
        QVERIFY(messages.lines.isEmpty());
        table[QStringLiteral("surf_2")] = QStringLiteral("textures/my wood.png");
        QCOMPARE(createKMat(path, table, false, messages), created);
        QVERIFY(messages.lines.takeFirst().text.contains(QLatin1String("my wood.png")));
        QCOMPARE(createKMat(folder.filePath(QStringLiteral("none/m.kmat")), table, false, messages),
                 QStringLiteral("Failed on creating .kmat file\n"));
        QCOMPARE(messages.lines.size(), 2);
    }

    void onlyOtherContentIsReplaced()
    {
        const TestFolder source, mod;
        const QString steel = source.put("steel.png", "steel"), wood = source.put("wood.png", "wood");
        StaticMesh mesh;
        mesh.surfaces = {{"materials/mat_x/surf_0", {}}, {"materials/mat_x/surf_1", {}}};
        ImportChoices choices;
        choices.modFolder = mod.path();
        choices.kmatPath = "materials/mat_x.kmat";
        choices.copyTextures = choices.createKMat = true;
        mod.put("textures/wood.png", "wood");
        mod.put("materials/none", "");
        ImportMessages messages;
        const QString written = "Successfully copied textures\nSuccessfully created .kmat file\n";
        for (int round = 0; round < 2; ++round) { // the second time all of it is there
            const ImportedFiles files(choices, mesh, {steel, wood, source.path("gone.png")});
            QCOMPARE(files.replaced(), QStringList());
            QCOMPARE(ImportedFiles(choices, mesh, {steel, wood}).write(messages), written);
        }

        const QString mine = mod.put("textures/steel.png", "mine");
        mod.put("textures/steel_2.png", "mine too");
        const QString kmat = mod.put("materials/mat_x.kmat", "material surf_0 { }\nmaterial glow { }\n");
        ImportedFiles files(choices, mesh, {steel, wood});
        QCOMPARE(files.replaced(), QStringList({kmat, mine}));
        QCOMPARE(files.otherMaterials(), QStringList("glow"));
        files.useFreeNames();
        QCOMPARE(files.replaced(), QStringList());
        files.nameMaterials(mesh);
        QCOMPARE(mesh.surfaces[1].materialPath, QString("materials/mat_x_2/surf_1"));
        QVERIFY(messages.lines.isEmpty());
        QCOMPARE(files.write(messages), written);
        MaterialTable table;
        QCOMPARE(readKMat(mod.path("materials/mat_x_2.kmat"), table), QString());
        QCOMPARE(table, (MaterialTable{{"surf_0", "textures/steel_3.png"}, {"surf_1", "textures/wood.png"}}));
        QCOMPARE(TestSupport::readFile(mine), QByteArray("mine"));
        QCOMPARE(TestSupport::readFile(mod.path("textures/steel_3.png")), QByteArray("steel"));
    }
};

QTEST_GUILESS_MAIN(tst_importoutput)
#include "tst_importoutput.moc"
