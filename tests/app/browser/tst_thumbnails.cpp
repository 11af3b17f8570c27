// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "Language.h"
#include "SpecialFiles.h"
#include "TestArchive.h"
#include "ThumbnailMaker.h"

/// Small pictures of files: how they are kept, and how they are made.
class tst_Thumbnails : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_folder.emplace();
        m_picture = m_folder->put("a b#ü;/wall.png", "a picture by its name");
    }

    /// In the place where desktops look for them, for nobody else's eyes, and only of the file as it is.
    void areKeptAsDesktopsDo()
    {
        const ThumbnailCache cache = shared();
        QCOMPARE(fileUri("/home/jens/photos/me.png"), QByteArray("file:///home/jens/photos/me.png"));
        QVERIFY(fileUri(m_picture).endsWith("/a%20b%23%C3%BC%3B/wall.png"));
        const ThumbnailSubject known{"/home/jens/photos/me.png", {1, 2000}, 128};
        QCOMPARE(cache.pathFor(known, false),
                 m_folder->path("cache/normal/c6ee772d9e49320e97ec29a7eb5b1697.png"));
        ThumbnailSubject subject{m_picture, FileStamp::of(m_picture), 256};
        QVERIFY(cache.find(subject).isEmpty());
        cache.keep(subject, {plain(Qt::green), {}});
        const QString path = cache.pathFor(subject, false);
        QVERIFY(path.startsWith(m_folder->path("cache/large/")));
        const auto only = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
        QCOMPARE(QFile::permissions(path), only);
        QCOMPARE(QFile::permissions(m_folder->path("cache/large")), only | QFile::ExeOwner | QFile::ExeUser);
        QImage kept(path);
        QCOMPARE(kept.text("Thumb::URI"), QString::fromLatin1(fileUri(m_picture)));
        QCOMPARE(kept.text("Thumb::MTime"), QString::number(subject.stamp.modified / 1000));
        QCOMPARE(cache.find(subject).image.pixelColor(0, 0), QColor(Qt::green));

        ThumbnailSubject later = subject;
        later.stamp.modified += subject.stamp.modified % 1000 < 500 ? 1 : -1; // within the second
        QVERIFY(cache.find(later).isEmpty());
        // Others do not say more than the second.
        kept.setText("Korvane::MTime", {});
        QVERIFY(kept.save(path, "png"));
        QVERIFY(!cache.find(later).isEmpty());
        later.stamp.modified += 5000;
        QVERIFY(cache.find(later).isEmpty());
        // One of another file, or a damaged one, is none.
        ThumbnailSubject other = subject;
        other.path.replace("wall", "door");
        QVERIFY(QFile::copy(path, cache.pathFor(other, false)));
        QVERIFY(cache.find(other).isEmpty());
        const QByteArray bytes = TestSupport::readFile(path);
        QVERIFY(TestSupport::writeFile(path, bytes.left(bytes.size() / 2)));
        QVERIFY(cache.find(subject).isEmpty());
        // Where somebody put a link or a pipe, nothing is read, and nothing written to where it leads.
        const QString elsewhere = m_folder->put("elsewhere.png", bytes);
        for (const bool isPipe : {false, true}) {
            QVERIFY(QFile::remove(path));
            if (isPipe)
                SpecialFiles::pipe(path);
            else
                QVERIFY(SpecialFiles::link(elsewhere, path));
            QVERIFY(cache.find(subject).isEmpty());
            cache.keep(subject, {plain(Qt::blue), {}});
            QCOMPARE(cache.find(subject).image.pixelColor(0, 0), QColor(Qt::blue));
            QCOMPARE(TestSupport::readFile(elsewhere), bytes);
        }
        QVERIFY(QFile::remove(path));
        // What failed is not tried again, until the file is another one.
        cache.keep(subject, {{}, "no mödel"});
        QVERIFY(cache.pathFor(subject, true).startsWith(m_folder->path("cache/fail/korvane-")));
        QCOMPARE(cache.find(subject).error, QString("no mödel"));
        QVERIFY(cache.find(later).isEmpty());
        // In another language it would be said otherwise.
        Language::install("de");
        const bool isSaid = !cache.find(subject).isEmpty();
        Language::install("en");
        QVERIFY(!isSaid);
    }

    /// What only this program can name stands in a folder of its own, which does not grow for ever.
    void ownOnesAreBounded()
    {
        const ThumbnailCache cache(m_folder->path("cache"), m_folder->path("own"), 1000);
        m_folder->put("game.kpf", "an archive by its name");
        for (int i = 0; i < 30; ++i) {
            const ThumbnailSubject subject{m_folder->path("game.kpf/%1.anim").arg(i), {5, 7}, 128};
            cache.keep(subject, {plain(QColor::fromHsv(i * 12, 255, 255)), {}});
            QCOMPARE(cache.find(subject).image.isNull(), false);
            QFile file(cache.pathFor(subject, false));
            QVERIFY(file.open(QIODevice::ReadWrite));
            file.setFileTime(QDateTime::currentDateTime().addSecs(i - 100), QFile::FileModificationTime);
        }
        cache.tidy();
        const QDir own(m_folder->path("own"));
        QVERIFY(!own.entryList(QDir::Files).isEmpty());
        qint64 bytes = 0;
        for (const QFileInfo &each : own.entryInfoList(QDir::Files))
            bytes += each.size();
        QVERIFY2(bytes <= 1000, qPrintable(QString::number(bytes)));
        QVERIFY(!cache.find({m_folder->path("game.kpf/29.anim"), {5, 7}, 128}).isEmpty());
        QVERIFY(cache.find({m_folder->path("game.kpf/0.anim"), {5, 7}, 128}).isEmpty());
    }

    void areMadeOnce_data()
    {
        QTest::addColumn<bool>("isArchive");
        QTest::newRow("folder") << false;
        QTest::newRow("archive") << true;
    }
    /// Of each kind by what belongs to it; the second time they are there, unless somebody damaged them.
    void areMadeOnce()
    {
        QFETCH(bool, isArchive);
        const QString game = m_folder->path("game");
        m_folder->save("game/models/man.skinnedmesh", triangleMan());
        m_folder->save("game/anims/man.anim", twoBlocks());
        m_folder->save("game/models/wall.staticmesh", wall({{"materials/skins/a", {0, 1, 2}}}));
        m_folder->put("game/materials/skins.kmat", "material a {\n\tsampler \"d\" 0 \"textures/a.png\"\n}\n");
        m_folder->put("game/textures/a.png", {});
        QVERIFY(plain(Qt::red).save(game + "/textures/a.png"));
        m_folder->put("game/models/broken.skinnedmesh", "no model at all");
        QString root = game;
        if (isArchive) {
            TestArchive archive;
            archive.addFolder(game);
            root = m_folder->path("game.kpf");
            QVERIFY(archive.write(root));
        }
        QStringList paths;
        for (const char *name : {"models/man.skinnedmesh", "anims/man.anim", "models/wall.staticmesh",
                                 "materials/skins.kmat", "textures/a.png", "models/broken.skinnedmesh"})
            paths += root + "/" + QLatin1String(name);

        int drawn = 0;
        QMap<QString, MadeThumbnail> first = make(paths, root, drawn);
        QCOMPARE(drawn, 6);
        for (const QString &path : paths.mid(0, 5))
            QVERIFY2(!first[path].image.isNull(), qPrintable(path + first[path].error));
        // The man is white, the wall has its texture, and around them is nothing.
        QVERIFY(countPixels(first[paths[0]].image, Qt::white) > 500);
        QVERIFY(countPixels(first[paths[1]].image, Qt::white) > 500);
        QVERIFY(countPixels(first[paths[2]].image, Qt::red) > 500);
        QCOMPARE(first[paths[2]].image.pixelColor(0, 0).alpha(), 0);
        QCOMPARE(first[paths[3]].image.pixelColor(2, 2), QColor(Qt::red));
        QVERIFY(first[paths[5]].image.isNull());
        QVERIFY(!first[paths[5]].error.isEmpty());

        const QMap<QString, MadeThumbnail> second = make(paths, root, drawn);
        QCOMPARE(drawn, 1); // the material, which shows another file
        QCOMPARE(second[paths[2]].image.convertToFormat(QImage::Format_ARGB32),
                 first[paths[2]].image.convertToFormat(QImage::Format_ARGB32));
        QCOMPARE(second[paths[5]].error, first[paths[5]].error);

        const QString kept = shared().pathFor({paths[2], FileStamp::of(paths[2]), 128}, false);
        QVERIFY(TestSupport::writeFile(kept, "damaged"));
        QVERIFY(!make({paths[2]}, root, drawn)[paths[2]].image.isNull());
        QCOMPARE(drawn, 1);
    }

    /// A model is drawn anew when a texture or a material file that it names becomes another one, or the
    /// folders do, though its own file stays.
    void modelsFollowWhatTheyShow()
    {
        const QString game = m_folder->path("game");
        const QString model =
            m_folder->save("models/wall.staticmesh", wall({{"materials/skins/a", {0, 1, 2}}}));
        const auto shows = [&](const QString &folder, const QColor &color, int drawnThen) {
            int drawn = 0;
            const QImage image = make({model}, folder, drawn, FileStamp::of(model))[model].image;
            QCOMPARE(drawn, drawnThen);
            QVERIFY2(countPixels(image, color) > 500, qPrintable(color.name()));
        };
        QDateTime time = QDateTime::currentDateTime();
        const auto paint = [&](const QString &name, const QColor &color) {
            QFile file(m_folder->put("game/textures/" + name, {}));
            QVERIFY(file.open(QIODevice::WriteOnly) && plain(color).save(&file, "png") && file.flush());
            time = time.addMSecs(-100); // files may be as large as each other
            QVERIFY(file.setFileTime(time, QFile::FileModificationTime));
        };
        shows({}, Qt::white, 1);
        shows(game, Qt::white, 1);
        shows(game, Qt::white, 0);
        m_folder->put("game/materials/skins.kmat", "material a {\n\tsampler \"d\" 0 \"textures/ä.png\"\n}\n");
        shows(game, Qt::white, 1);
        paint("ä.png", Qt::red);
        shows(game, Qt::red, 1);
        shows(game, Qt::red, 0);
        paint("ä.png", Qt::blue);
        shows(game, Qt::blue, 1);
        paint("bb.png", Qt::green);
        m_folder->put("game/materials/skins.kmat",
                      "material a {\n\tsampler \"d\" 0 \"textures/bb.png\"\n}\n");
        shows(game, Qt::green, 1);
        shows(m_folder->path("other"), Qt::white, 1);
        // What a desktop has drawn says nothing of that.
        const ThumbnailSubject known{model, FileStamp::of(model), 128};
        shared().keep(known, {plain(Qt::yellow), {}});
        QVERIFY(!shared().find(known).isEmpty());
        shows(game, Qt::green, 1);
    }

    /// A file that could not be read at all may be a good one.
    void unreadOnesAreTriedAgain()
    {
        int drawn = 0;
        for (const char *name : {"away.staticmesh", "away.png"}) {
            const QString path = m_folder->path(name);
            for (int i = 0; i < 2; ++i) {
                QVERIFY(!make({path}, {}, drawn)[path].error.isEmpty());
                QCOMPARE(drawn, 1);
            }
        }
    }

    /// That of the first texture that there is, if that is among the first that are there.
    void materialsReadFewTextures()
    {
        const auto materials = [this](const QString &textures, int count) {
            QByteArray text;
            for (int i = 0; i < count; ++i)
                text += QStringLiteral("material m%1 {\n\tsampler \"d\" 0 \"%2-%1.png\"\n}\n")
                            .arg(QString::number(i), textures)
                            .toUtf8();
            return m_folder->put(textures + ".kmat",
                                 text + "material z {\n\tsampler \"d\" 0 \"good.png\"\n}\n");
        };
        for (int i = 0; i < 16; ++i)
            m_folder->put(QStringLiteral("bad-%1.png").arg(i), "no picture");
        QVERIFY(plain(Qt::red).save(m_folder->put("good.png", {}), "png"));
        const QString away = materials("away", 100);
        const QString bad = materials("bad", 16);
        int drawn = 0;
        const QMap<QString, MadeThumbnail> made = make({away, bad}, m_folder->path("."), drawn);
        QVERIFY(!made[away].image.isNull());
        QVERIFY(made[bad].image.isNull());
    }

private:
    ThumbnailCache shared() const { return {m_folder->path("cache"), m_folder->path("own")}; }
    static QImage plain(const QColor &color)
    {
        QImage image(16, 16, QImage::Format_ARGB32);
        image.fill(color);
        return image;
    }
    /// Wishes for all of them, by path.
    QMap<QString, MadeThumbnail> make(const QStringList &paths, const QString &game, int &drawn,
                                      const FileStamp &known = {}) const
    {
        QMap<QString, MadeThumbnail> made;
        {
            ThumbnailMaker maker(shared(), [&made](const MadeThumbnail &each) {
                QMetaObject::invokeMethod(qApp, [&made, each] { made.insert(each.path, each); });
            });
            std::vector<ThumbnailWish> wishes;
            for (const QString &path : paths)
                wishes.push_back({path, known});
            maker.wish(wishes, 128, {game, {}});
            const bool isDone = QTest::qWaitFor([&] { return made.size() == paths.size(); }, 60000);
            drawn = isDone ? maker.drawnCount() : -1;
        }
        return made;
    }

    std::optional<TestFolder> m_folder;
    QString m_picture;
};

QTEST_MAIN(tst_Thumbnails)
#include "tst_thumbnails.moc"
