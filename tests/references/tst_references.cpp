// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "IndexCache.h"
#include "OwnFolders.h"
#include "ReferenceReading.h"
#include "SampleModels.h"
#include "SpecialFiles.h"
#include "TestArchive.h"
#include "TestSupport.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>

/// What files of game and mod name, and who names what.
class tst_References : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        QDir(OwnFolders::cache()).removeRecursively();
    }

    /// Which fields name something depends on others beside them.
    void recordsNameThings()
    {
        SkinnedMesh mesh = SampleModels::plainMesh();
        mesh.nodes[2].impactType = 4;
        mesh.hotPoints[0].particleEffect1 = 11;
        mesh.hotPoints[0].particleEffect2 = 12;
        mesh.hotPoints[1].particleEffect1 = 0xFFFF;
        mesh.hotPoints[1].particleEffect2 = 512;
        QCOMPARE(named(mesh, {RecordKind::Bone, {2, 0, 0}}), QStringList{"impact:4"});
        QCOMPARE(named(mesh, {RecordKind::HotPoint, {0, 0, 0}}), QStringList({"particle:11", "particle:12"}));
        QCOMPARE(named(mesh, {RecordKind::HotPoint, {1, 0, 0}}), QStringList{"damage:512"});
        QCOMPARE(named(mesh, {RecordKind::SkinnedSurface, {1, 0, 0}}), QStringList{"material:materials/a"});
        QCOMPARE(named(mesh, {RecordKind::SkinnedSurface, {9, 0, 0}}), QStringList());
        QCOMPARE(named(mesh, {RecordKind::SkinnedVertex, {0, 0, 0}}), QStringList());

        AnimFile anim = SampleModels::plainAnim();
        anim.blocks[1].animId = std::numeric_limits<int>::min();
        auto &actions = anim.blocks[1].actions;
        actions[0].eventType = 29; // a sound and an impact type, as the game takes them: without fractions
        actions[0].args = {1234.9f, 3.0f, 7.0f};
        actions[1].eventType = 2; // of damage the fraction counts
        actions[1].args = {50.0f, 0.1f};
        actions[2].eventType = 30;
        actions[2].args = {std::nanf("")};
        const auto action = [](int number) { return RecordRef{RecordKind::AnimAction, {1, number, 0}}; };
        QCOMPARE(named(anim, {RecordKind::AnimBlock, {1, 0, 0}}), QStringList{"animation:-2147483648"});
        QCOMPARE(named(anim, action(0)), QStringList({"sound:1234", "impact:3"}));
        QCOMPARE(named(anim, action(1)), QStringList{"damage:0.1"});
        QCOMPARE(named(anim, action(2)), QStringList());

        // What is said of a thing is read as the same thing.
        for (const char *text : {"animation:-2147483648", "sound:1234", "damage:0.1", "texture:a/b.png"})
            QCOMPARE(textOf(NamedThing::parse(text).value()), QString(text));
        for (const char *text : {"sound", "sound:", "sound:x", "sound:1.5", "noise:1", "damage:nan", ""})
            QVERIFY2(!NamedThing::parse(text), text);
    }

    void whoNamesWhat_data()
    {
        QTest::addColumn<bool>("isArchive");
        QTest::newRow("folder") << false;
        QTest::newRow("archive") << true;
    }
    void whoNamesWhat()
    {
        QFETCH(const bool, isArchive);
        fillGame();
        if (isArchive) {
            TestArchive archive;
            archive.addFolder(path("game"));
            QVERIFY(archive.write(path("game.kpf")));
        }
        const MaterialFolders folders{path(isArchive ? "game.kpf" : "game"), path("mod")};
        const ReferenceIndexPtr index = make(folders);
        QVERIFY(index);

        // In whatever case, and with whatever slashes; of a texture the models by their materials, too.
        QCOMPARE(uses(*index, "material:MATERIALS\\skins/A"),
                 QStringList({"game models/x.skinnedmesh 9 [0 1 2 3 4 5 6 7]",
                              "mod models/new.staticmesh 3 [0 1 2]"}));
        QCOMPARE(uses(*index, "texture:textures/bump.png"),
                 QStringList({"game materials/skins.kmat 1 [0]", "mod materials/more.kmat 2 [0 1]",
                              "game models/x.skinnedmesh 9 [0 1 2 3 4 5 6 7] by materials/skins/a",
                              "mod models/new.staticmesh 3 [0 1 2] by materials/skins/a"}));
        QCOMPARE(uses(*index, "impact:4"), QStringList{"game models/x.skinnedmesh 1 [2]"});
        QCOMPARE(uses(*index, "sound:77"), QStringList{"game anims/x.anim 2 [0 2]"});
        QCOMPARE(uses(*index, "sound:78"), QStringList());

        QCOMPARE(unused(index->unusedMaterials()),
                 QStringList({"materials/skins/b", "materials/more/One", "materials/more/two"}));
        QCOMPARE(unused(index->unusedTextures()), QStringList{"textures/Lonely.PNG"});
        QVERIFY(index->numbersNamed(NamedKind::Sound).contains(77));

        // A damaged file is one with its error, and hinders no other.
        QStringList errors;
        for (const FileNamingPtr &file : index->files()) {
            if (!file->error.isEmpty())
                errors << file->relative;
        }
        QCOMPARE(errors, QStringList({"materials/twice.kmat", "models/broken.skinnedmesh"}));
    }

    /// Of the mod in the game's folder, or the other way about, nothing counts twice.
    void foldersInFolders()
    {
        fillGame();
        const auto count = [](const QString &game, const QString &mod) {
            const ReferenceIndexPtr index = make({game, mod});
            QSet<QString> paths;
            int ofMod = 0;
            for (const FileNamingPtr &file : index->files()) {
                paths.insert(file->path);
                ofMod += file->isMod ? 1 : 0;
            }
            return QStringLiteral("%1 %2 %3").arg(index->files().size()).arg(paths.size()).arg(ofMod);
        };
        QCOMPARE(count(path("game"), path("mod")), QString("10 10 2"));
        QCOMPARE(count(path(), path("mod/")), QString("10 10 2"));
        QCOMPARE(count(path("game"), path()), QString("10 10 2"));
        QCOMPARE(count(path("game"), path("game")), QString("8 8 0"));
        QCOMPARE(count({}, path("mod")), QString("2 2 2"));
        QCOMPARE(count(path("nowhere"), {}), QString("0 0 0"));
    }

    /// Of a mod inside the game's folder, too, which both walks come by.
    void tellsOfGapsOnce()
    {
        m_folder->put("game/textures/a.png", {});
        m_folder->put("game/mod/textures/b.png", {});
        const MaterialFolders folders{path("game"), path("game/mod")};
        QCOMPARE(make(folders)->gaps(), QStringList());
        SpecialFiles::withNameWithoutText(path("game/mod/textures"), [&] {
            const QStringList gaps = make(folders)->gaps();
            QCOMPARE(gaps.size(), 1);
            QVERIFY2(gaps.first().startsWith(path("game/mod/textures") + ": The name of"),
                     qUtf8Printable(gaps.first()));
        });
    }

    /// What has not changed is not read again, by the same program or the next.
    void onlyChangedFilesAreRead()
    {
        fillGame();
        const MaterialFolders folders{path("game"), path("mod")};
        QCOMPARE(filesRead(folders), 10);
        QCOMPARE(filesRead(folders), 0);

        StaticMesh mesh = SampleModels::plainStatic();
        mesh.surfaces.resize(1);
        m_folder->save("mod/models/new.staticmesh", mesh);
        m_folder->save("mod/models/other.staticmesh", mesh);
        QVERIFY(QFile::remove(path("game/models/x.skinnedmesh")));
        QCOMPARE(filesRead(folders), 2);
        const ReferenceIndexPtr index = IndexCache::load(folders);
        QVERIFY(index);
        QCOMPARE(uses(*index, "material:materials/a"),
                 QStringList({"mod models/new.staticmesh 1 [0]", "mod models/other.staticmesh 1 [0]"}));
        QVERIFY(!index->file(path("game/models/x.skinnedmesh")));

        // One of files that name nothing is as good.
        for (int i = 0; i < 50; ++i)
            m_folder->put(QStringLiteral("plain/%1.png").arg(i), "any");
        QCOMPARE(filesRead({path("plain"), {}}), 50);
        QCOMPARE(filesRead({path("plain"), {}}), 0);

        // The other folders have a cache of their own, and a damaged one is as good as none.
        QCOMPARE(filesRead({path("game"), {}}), 7);
        QCOMPARE(filesRead(folders), 0);
        QByteArray bytes = TestSupport::readFile(IndexCache::pathFor(folders));
        bytes[bytes.size() / 2] = char(bytes[bytes.size() / 2] ^ 1);
        QVERIFY(TestSupport::writeFile(IndexCache::pathFor(folders), bytes));
        QCOMPARE(filesRead(folders), 10);
        QCOMPARE(filesRead(folders), 0);
    }

    void cachesAreNotBelieved()
    {
        fillGame();
        const MaterialFolders folders{path("game"), path("mod")};
        const ReferenceIndexPtr index = make(folders);
        const QByteArray whole = IndexCache::bytesOf(*index);
        const ReferenceIndexPtr read = IndexCache::read(whole, folders);
        QVERIFY(read);
        QCOMPARE(IndexCache::bytesOf(*read), whole);
        QVERIFY(!IndexCache::read(whole, {path("mod"), path("game")}));
        QVERIFY(!IndexCache::read({}, folders));
        for (int size = 0; size < whole.size(); ++size)
            QVERIFY(!IndexCache::read(whole.left(size), folders));

        // One whose hash is right, and whose counts and numbers are not, is none either or one that can be
        // asked: nothing is read out of bounds.
        const int bodyStart = whole.indexOf('\n', whole.indexOf('\n', whole.indexOf('\n') + 1) + 1) + 1;
        for (int at = bodyStart; at < whole.size(); ++at) {
            for (const char value : {'\xff', '\x7f', '\x01'}) {
                QByteArray bytes = whole;
                bytes[at] = value;
                const ReferenceIndexPtr changed = IndexCache::readBody(bytes.mid(bodyStart), folders);
                if (!changed)
                    continue;
                for (const char *thing : {"texture:textures/bump.png", "sound:77"})
                    changed->usesOf(NamedThing::parse(thing).value());
                changed->unusedMaterials();
                changed->unusedTextures();
            }
        }
    }

    void givesUp()
    {
        fillGame();
        IndexProgress progress;
        QVERIFY(!IndexCache::bringUpToDate({path("game"), {}}, nullptr, true, progress, 2));
        QVERIFY(!QFile::exists(IndexCache::pathFor({path("game"), {}})));
    }

private:
    QString path(const QString &name = {}) const { return m_folder->path(name); }

    static QString textOf(const NamedThing &thing)
    {
        return QStringLiteral("%1:%2").arg(namedKindId(thing.kind), thing.text());
    }

    template <typename Model>
    static QStringList named(const Model &model, const RecordRef &record)
    {
        QStringList texts;
        visitNamed(model, record, [&texts](const NamedThing &thing) { texts << textOf(thing); });
        return texts;
    }

    void fillGame() const
    {
        SkinnedMesh mesh = SampleModels::plainMesh();
        mesh.nodes[2].impactType = 4;
        mesh.surfaces.resize(9, {{}, {0, 1, 2}});
        for (SkinnedMeshSurface &surface : mesh.surfaces)
            surface.materialPath = QStringLiteral("materials/SKINS/a");
        m_folder->save("game/models/x.skinnedmesh", mesh);
        AnimFile anim = SampleModels::plainAnim();
        for (const int block : {0, 2}) {
            anim.blocks[size_t(block)].actions[1].eventType = 0;
            anim.blocks[size_t(block)].actions[1].args = {77.0f};
        }
        for (AnimBlock &block : anim.blocks)
            block.actions[0].eventType = block.actions[2].eventType = 5; // names nothing
        anim.blocks[1].actions[1].eventType = 5;
        m_folder->save("game/anims/x.anim", anim);
        m_folder->put("game/models/broken.skinnedmesh", SampleModels::bytesOf(mesh).left(200));
        m_folder->put("game/models/readme.txt", "no model");
        m_folder->put("game/materials/skins.kmat",
                      "material a {\n\tsampler \"diffuse\" 0 \"textures/a.png\"\n"
                      "\tsampler \"bump\" 1 \"Textures/BUMP.png\"\n}\n"
                      "material b {\n\tsampler \"diffuse\" 0 \"_white\"\n}\n");
        m_folder->put("game/materials/twice.kmat", "material a\nmaterial a\n");
        m_folder->put("game/textures/a.png", "any");
        m_folder->put("game/textures/bump.png", "any");
        m_folder->put("game/textures/Lonely.PNG", "any");
        StaticMesh crate = SampleModels::plainStatic();
        for (StaticMeshSurface &surface : crate.surfaces)
            surface.materialPath = QStringLiteral("Materials/skins/A");
        m_folder->save("mod/models/new.staticmesh", crate);
        m_folder->put("mod/materials/more.kmat", "material One { sampler d 0 textures/bump.png }\n"
                                                 "material two { sampler d 0 textures/bump.png }\n");
    }

    static ReferenceIndexPtr make(const MaterialFolders &folders)
    {
        IndexProgress progress;
        return makeReferenceIndex(
            folders, [] { return nullptr; }, false, progress, 3);
    }

    static int filesRead(const MaterialFolders &folders)
    {
        IndexProgress progress;
        return IndexCache::bringUpToDate(folders, nullptr, false, progress, 2) ? int(progress.read) : -1;
    }

    /// "mod models/new.staticmesh 3 [0 1 2] by materials/skins/a": the places by their first number.
    static QStringList uses(const ReferenceIndex &index, const QString &thing)
    {
        QStringList lines;
        for (const NamedUse &use : index.usesOf(NamedThing::parse(thing).value())) {
            QStringList places;
            for (const RecordRef &place : use.file->placesOf(use.named))
                places << QString::number(place.index[0]);
            lines << QStringLiteral("%1 %2 %3 [%4]")
                         .arg(QLatin1String(use.file->isMod ? "mod" : "game"), use.file->relative,
                              QString::number(use.named.count), places.join(' '));
            if (!use.via.isEmpty())
                lines.last() += " by " + use.via;
        }
        return lines;
    }

    static QStringList unused(const std::vector<ReferenceIndex::Unused> &found)
    {
        QStringList paths;
        for (const auto &each : found)
            paths << each.path;
        return paths;
    }

    std::optional<TestFolder> m_folder;
};

QTEST_GUILESS_MAIN(tst_References)
#include "tst_references.moc"
