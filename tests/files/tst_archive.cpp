// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FilePictures.h"
#include "FileSearch.h"
#include "FileStamp.h"
#include "Files.h"
#include "Log.h"
#include "TestArchive.h"
#include "TestSupport.h"
#include "ZipArchive.h"

#include <filesystem>
#include <thread>

Q_DECLARE_METATYPE(TestArchive::Entry)

namespace {
std::shared_ptr<const ZipArchive> opened(const TestArchive &made)
{
    QString reason;
    auto archive = ZipArchive::open(made.bytes(), reason);
    if (!archive)
        qWarning("%s", qPrintable(reason));
    return archive;
}

/// What an entry's contents are, or why there are none.
QByteArray contents(const ZipArchive &archive, const QString &path)
{
    const ZipEntry *entry = archive.file(path);
    if (!entry)
        return "none";
    QString reason;
    const auto device = archive.read(*entry, reason);
    if (!device)
        return reason.toUtf8();
    const QByteArray bytes = device->readAll();
    return bytes.size() == device->size() ? bytes : device->errorString().toUtf8();
}

QByteArray noise(int bytes)
{
    QRandomGenerator random(7);
    QByteArray made(bytes, Qt::Uninitialized);
    for (char &c : made)
        c = char(random.generate() & 0x3f);
    return made;
}
} // namespace

class TestArchiveFiles : public QObject
{
    Q_OBJECT

private slots:
    void findsAndReads()
    {
        TestArchive made;
        const QByteArray large = noise(300000);
        made.add("models/Knight.skinnedmesh", large);
        made.add({"textures\\Steel.png", "stored", false});
        made.add("models/", {});
        made.add("empty.txt", {});
        made.add("./a//b.txt", "dots");
        made.add({"gr\xc3\xbcn.txt", "utf8", true, 1 << 11});
        made.add("gr\xfcn2.txt", "latin");
        for (const bool isZip64 : {false, true}) {
            QString reason;
            const auto archive = ZipArchive::open(made.bytes(-1, isZip64), reason);
            QVERIFY2(archive, qPrintable(reason));
            QCOMPARE(contents(*archive, "MODELS/knight.SkinnedMesh"), large);
            QCOMPARE(archive->file("models/knight.skinnedmesh")->path, QString("models/Knight.skinnedmesh"));
            QCOMPARE(contents(*archive, "textures/steel.png"), QByteArray("stored"));
            QCOMPARE(contents(*archive, "empty.txt"), QByteArray());
            QCOMPARE(contents(*archive, "a/b.txt"), QByteArray("dots"));
            QCOMPARE(contents(*archive, QString::fromUtf8("GRÜN.txt")), QByteArray("utf8"));
            QCOMPARE(contents(*archive, QString::fromUtf8("grün2.txt")), QByteArray("latin"));
            QVERIFY(archive->folder("Models") && !archive->folder("models/knight.skinnedmesh"));
            QCOMPARE(archive->leftOutCount(), 0);
        }
    }

    /// What is not read anywhere else is not unpacked: the header of a picture costs its first bytes.
    void seeksAndReadsInParts()
    {
        TestArchive made;
        const QByteArray bytes = noise(200000);
        made.add("a", bytes);
        const auto archive = opened(made);
        QString reason;
        const auto device = archive->read(*archive->file("a"), reason);
        QCOMPARE(device->peek(10), bytes.left(10));
        QVERIFY(device->seek(150000));
        QCOMPARE(device->read(100), bytes.mid(150000, 100));
        QVERIFY(device->seek(5));
        QCOMPARE(device->readAll(), bytes.mid(5));
        QVERIFY(device->atEnd());
    }

    void readsInManyThreads()
    {
        TestArchive made;
        for (int i = 0; i < 20; ++i)
            made.add(QByteArray::number(i), QByteArray(5000 + i, char('a' + i)));
        const auto archive = opened(made);
        std::atomic_int wrong{0};
        std::vector<std::thread> threads;
        for (int t = 0; t < 8; ++t) {
            threads.emplace_back([&, t] {
                for (int i = 0; i < 100; ++i) {
                    const int n = (i * 7 + t) % 20;
                    wrong += contents(*archive, QString::number(n)) != QByteArray(5000 + n, char('a' + n));
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(wrong.load(), 0);
    }

    void leavesOutWhatLeadsElsewhere_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<quint32>("attributes");
        const auto row = [](const char *tag, const QByteArray &name, quint32 attributes = 0) {
            QTest::newRow(tag) << name << attributes;
        };
        row("up", "../up.txt");
        row("up within", "a/../../up.txt");
        row("up by backslash", "..\\up.txt");
        row("root", "/etc/passwd");
        row("server", "\\\\server\\x");
        row("drive", "C:\\x.txt");
        row("drive's own", "c:x.txt");
        row("drive behind a dot", "./C:/x.txt");
        row("drive below", "a/C:/x.txt");
        row("up for Windows", "a/.. /x.txt");
        row("NUL", QByteArray("a\0b.txt", 7));
        row("link", "link", 0120777U << 16);
        row("deep", QByteArray("d/").repeated(40) + "x");
        row("long", QByteArray(1500, 'n'));
        row("longer", QByteArray(60000, 'n'));
        row("nothing", "");
        row("below a file", "good.txt/x");
        row("folder for a file", "good.txt/");
    }
    void leavesOutWhatLeadsElsewhere()
    {
        QFETCH(QByteArray, name);
        QFETCH(quint32, attributes);
        TestArchive made;
        made.add("good.txt", "good");
        made.add({name, "bad", true, 0, 0xffff, -1, 0, attributes});
        made.add("b/last.txt", "last");
        const auto archive = opened(made);
        QVERIFY(archive);
        QCOMPARE(archive->leftOutCount(), 1);
        QCOMPARE(archive->count(), 2);
        QCOMPARE(contents(*archive, "good.txt"), QByteArray("good"));
        QCOMPARE(contents(*archive, "b/last.txt"), QByteArray("last"));
    }

    /// As whoever unpacks it ends up with the last one.
    void takesTheLastOfOneName()
    {
        TestArchive made;
        made.add("a.txt", "first");
        made.add("A.TXT", "second");
        const auto archive = opened(made);
        QCOMPARE(archive->count(), 1);
        QCOMPARE(contents(*archive, "a.txt"), QByteArray("second"));
    }

    void refusesContents_data()
    {
        QTest::addColumn<TestArchive::Entry>("entry");
        QTest::addColumn<QString>("reason");
        const QByteArray bytes(1000, 'x');
        const auto row = [](const char *tag, const TestArchive::Entry &entry, const char *reason) {
            QTest::newRow(tag) << entry << QString(reason);
        };
        const char *damaged = "It is damaged in its archive.";
        row("encrypted", {"x", bytes, true, 1}, "It is encrypted in its archive.");
        row("method", {"x", bytes, true, 0, 14}, "It is packed in a way that is not read (method 14).");
        row("checksum", {"x", bytes, true, 0, 0xffff, -1, 1}, damaged);
        row("checksum, stored", {"x", bytes, false, 0, 0xffff, -1, 1}, damaged);
        row("more than it says", {"x", bytes, true, 0, 0xffff, 500}, damaged);
        row("less than it says", {"x", bytes, true, 0, 0xffff, 1500}, damaged);
        row("no packed bytes", {"x", "no deflated bytes at all", false, 0, 8}, damaged);
        row("bomb", {"x", bytes, true, 0, 0xffff, 80LL << 20},
            "It would unpack to more than 200 times its size.");
        row("packed in more than there is", {"x", bytes, true, 0, 0xffff, 80LL << 20, 0, 0, 1 << 30},
            damaged);
        row("huge", {"x", bytes, true, 0, 0xffff, 0xfffffffe}, "It would unpack to more than 1024 MiB.");
    }
    void refusesContents()
    {
        QFETCH(TestArchive::Entry, entry);
        QFETCH(QString, reason);
        TestArchive made;
        made.add(entry);
        made.add("good.txt", "good");
        const auto archive = opened(made);
        QVERIFY(archive);
        QCOMPARE(QString::fromUtf8(contents(*archive, "x")), reason);
        QCOMPARE(contents(*archive, "good.txt"), QByteArray("good"));
    }

    /// What counts is what is read, not what the archive says that it will be.
    void stopsBombsThatLie()
    {
        TestArchive made;
        made.add({"room", noise(1 << 20), false});
        made.add({"x", QByteArray(100 << 20, '\0'), true, 0, 0xffff, -1, 0, 0, 700 << 10});
        const auto archive = opened(made);
        QString reason;
        const auto device = archive->read(*archive->file("x"), reason);
        QVERIFY2(device, qPrintable(reason));
        QCOMPARE(device->read(1000), QByteArray(1000, '\0'));
        QVERIFY(device->readAll().size() < 70 << 20);
        QCOMPARE(device->errorString(), QString("It would unpack to more than 200 times its size."));
    }

    void refusesArchives()
    {
        TestArchive made;
        made.add("a.txt", QByteArray(100, 'a'));
        made.add("b.txt", QByteArray(100, 'b'));
        const QByteArray bytes = made.bytes();
        const auto reasonFor = [](const QByteArray &some) {
            QString reason;
            return ZipArchive::open(some, reason) ? QString() : reason;
        };
        const QString none = "It is no zip archive that can be read.";
        QCOMPARE(reasonFor({}), none);
        QCOMPARE(reasonFor("a text"), none);
        // Cut off anywhere, it is either none or damaged; nothing reads beyond it.
        for (int length = 0; length < bytes.size(); ++length)
            QVERIFY(!reasonFor(bytes.left(length)).isEmpty());
        QVERIFY(reasonFor(made.bytes(3)).startsWith("The archive is damaged: its directory ends after 2"));
        // Numbers that nothing could hold cost neither time nor memory.
        QVERIFY(reasonFor(made.bytes(1LL << 40)).startsWith("The archive is damaged"));
        QCOMPARE(reasonFor(TestArchive().bytes()), none); // nothing is in it
    }

    void readsMany()
    {
        TestArchive many;
        for (int i = 0; i < 100000; ++i)
            many.add({"textures/set" + QByteArray::number(i % 100) + "/" + QByteArray::number(i) + ".png",
                      "x", false});
        QString reason;
        const auto archive = ZipArchive::open(many.bytes(), reason);
        QVERIFY2(archive, qPrintable(reason));
        QCOMPARE(archive->count(), 100000);
        QCOMPARE(archive->folder("textures/set7")->files.size(), size_t(1000));
        for (int i = 0; i < 100001; ++i)
            many.add({"more/" + QByteArray::number(i), {}, false});
        QVERIFY(!ZipArchive::open(many.bytes(), reason));
        QCOMPARE(reason, QString("The archive has more than 200000 entries."));

        // Few of them may be of many folders.
        TestArchive deep;
        for (int i = 0; i < 2000; ++i) {
            const QByteArray part = QByteArray::number(i + 10000).repeated(6) + '/';
            deep.add({part.repeated(30) + "x", {}, false});
        }
        QVERIFY(!ZipArchive::open(deep.bytes(), reason));
        QCOMPARE(reason, QString("The names in the archive take more than 64 MiB."));
    }

    /// The console belongs to one thread, and is told once whoever asks first.
    void tellsInTheThreadOfTheConsole()
    {
        TestFolder folder;
        const QString bad = folder.path("bad.kpf");
        QVERIFY(TestSupport::writeFile(bad, "no archive"));
        QStringList lines;
        bool isElsewhere = false;
        Log::setSink([&, own = std::this_thread::get_id()](LogSeverity, const QString &text) {
            isElsewhere = isElsewhere || std::this_thread::get_id() != own;
            lines.append(text);
        });
        QVERIFY(!FileStamp::of(bad + "/x").exists());
        std::thread([&] {
            const HeldLog log; // of work that is thrown away
            (void)Files::isFolder(bad);
        }).join();
        QCoreApplication::processEvents();
        (void)Files::isFolder(bad);
        Log::setSink({});
        QVERIFY(!isElsewhere);
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines.first().endsWith("bad.kpf': It is no zip archive that can be read."));
    }

    /// Paths through an archive are those through a folder.
    void looksLikeAFolder()
    {
        TestFolder folder;
        TestArchive made;
        made.add("models/Knight.skinnedmesh", "bytes");
        made.add("anims/a/walk.anim", "walk");
        made.add("anims/b.anim", "b");
        made.add("anims/._b.anim", "hidden");
        made.add("anims/.hidden/c.anim", "c");
        const QString archive = folder.path("game.kpf");
        QVERIFY(made.write(archive));
        const QString knight = archive + "/models/knight.skinnedmesh";
        QVERIFY(Files::isFile(knight) && !Files::isFolder(knight) && !Files::isFile(archive + "/models"));
        QVERIFY(Files::isFolder(archive) && Files::isFile(archive) && Files::isFolder(archive + "/Models/"));
        QVERIFY(Files::isFolder(archive + "/anims/../models"));
        QCOMPARE(Files::trueCase(knight), archive + "/models/Knight.skinnedmesh");
        QCOMPARE(Files::trueCase(archive + "/Models/None.x"), archive + "/Models/None.x");
        QCOMPARE(Files::archiveOf(knight), archive);
        QCOMPARE(Files::heldBy(knight), archive);
        QCOMPARE(Files::placeInArchive(knight), QString("models/knight.skinnedmesh"));
        QVERIFY(Files::archiveOf(folder.path("other.kpf/x")).isEmpty());               // there is none
        QCOMPARE(Files::heldBy(folder.path("other.kpf/x")), folder.path("other.kpf")); // or not yet
        QCOMPARE(Files::read(knight, 100), QByteArray("bytes"));
        QCOMPARE(Files::read(knight, 4), QByteArray());
        QCOMPARE(Files::names(archive, Files::Kind::Folder), QStringList({"anims", "models"}));
        QCOMPARE(Files::names(archive + "/anims", Files::Kind::File), QStringList("b.anim"));
        QStringList walked;
        QVector<int> parents;
        Files::walk(archive + "/Anims", [&](const FolderEntry &entry) {
            walked.append(entry.path.mid(archive.size()));
            parents.append(entry.parent);
            return true;
        });
        QCOMPARE(walked, QStringList({"/anims/b.anim", "/anims/a", "/anims/a/walk.anim"}));
        QCOMPARE(parents, QVector<int>({0, 0, 1}));
    }

    /// The archive is kept open, and another one in its place is noticed.
    void noticesAnother()
    {
        TestFolder folder;
        const QString archive = folder.path("game.kpf");
        const QString path = archive + "/a.txt";
        TestArchive first;
        first.add("a.txt", "first");
        QVERIFY(first.write(archive));
        const FileStamp before = FileStamp::of(path);
        const auto reading = Files::open(path);
        TestArchive second;
        second.add("other.txt", "other");
        second.add("a.txt", "second");
        QVERIFY(second.write(folder.path("new")));
        QVERIFY(QFile::remove(archive) && QFile::rename(folder.path("new"), archive));
        QCOMPARE(Files::read(path, 100), QByteArray("second"));
        QVERIFY(FileStamp::of(path) != before);
        QVERIFY(TestSupport::writeFile(archive, "no archive"));
        QVERIFY(!Files::isFolder(archive) && !FileStamp::of(path).exists());
        QString reason;
        QVERIFY(!Files::open(path, &reason));
        QCOMPARE(reason, QString("It is no zip archive that can be read."));
    }

    /// The game's wins over the mod's, and case does not matter, in folders neither.
    void searches()
    {
        TestFolder folder;
        TestArchive made;
        made.add("textures/Both.png", "game");
        const QString archive = folder.path("game.kpf");
        const QString mod = folder.path("mod");
        QVERIFY(made.write(archive) && QDir().mkpath(mod + "/Textures"));
        QVERIFY(TestSupport::writeFile(mod + "/Textures/both.png", "mod"));
        QVERIFY(TestSupport::writeFile(mod + "/Textures/Own.PNG", "mod"));
        const FileSearch search(archive + "/", mod);
        QCOMPARE(search.find("textures/both.png"), archive + "/textures/Both.png");
        QCOMPARE(search.otherCase("textures/both.png"), QString("textures/Both.png"));
        QCOMPARE(search.otherCase("textures/Both.png"), QString());
        QCOMPARE(search.find("textures/none.png"), QString());
        QCOMPARE(search.candidates("textures/none.png"),
                 QStringList({archive + "/textures/none.png", mod + "/textures/none.png"}));
#ifndef Q_OS_WIN
        QCOMPARE(search.find("textures/own.png"), mod + "/Textures/Own.PNG");
        // A folder that changes is read anew.
        QVERIFY(QFile::rename(mod + "/Textures/Own.PNG", mod + "/Textures/OWN.png"));
        QCOMPARE(search.find("textures/own.png"), mod + "/Textures/OWN.png");
        // Also when it changes again in the same tick of its clock.
        namespace fs = std::filesystem;
        const fs::path textures((mod + "/Textures").toStdString());
        const auto tick = fs::file_time_type::clock::now() - std::chrono::milliseconds(1000);
        fs::last_write_time(textures, tick);
        QCOMPARE(search.find("textures/late.png"), QString());
        QVERIFY(TestSupport::writeFile(mod + "/Textures/Late.png", "mod"));
        fs::last_write_time(textures, tick);
        QTest::qWait(1200);
        QCOMPARE(search.find("textures/late.png"), mod + "/Textures/Late.png");
        // The folders themselves are those that were named.
        QCOMPARE(FileSearch(folder.path("MOD"), {}).find("textures/own.png"), QString());
#endif
    }

    /// All pictures of the real models, from folder and archive.
    void decodesTheSamePictures()
    {
        const QString game = TestSupport::shared("gamedata/game");
        if (game.isEmpty())
            QSKIP("The real models are not there.");
        TestFolder folder;
        int pictures = 0;
        for (const bool isDeflated : {true, false}) {
            TestArchive made;
            made.addFolder(game, isDeflated);
            const QString archive = folder.path(isDeflated ? "deflated.kpf" : "stored.kpf");
            QVERIFY(made.write(archive));
            Files::walk(archive + "/textures", [&](const FolderEntry &entry) {
                if (entry.isFolder)
                    return true;
                const QString own = game + entry.path.mid(archive.size());
                const Picture there = Files::readPicture(entry.path);
                const Picture here = readPicture(own);
                pictures += !here.image.isNull();
                [&] {
                    QCOMPARE(there.format, here.format);
                    QCOMPARE(there.image, here.image);
                    QCOMPARE(Files::pictureSize(entry.path), pictureSize(own));
                }();
                return true;
            });
        }
        QVERIFY(pictures > 10);
    }
};

QTEST_GUILESS_MAIN(TestArchiveFiles)
#include "tst_archive.moc"
