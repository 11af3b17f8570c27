// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileNames.h"
#include "FileSystem.h"
#include "FolderLock.h"
#include "SpecialFiles.h"
#include "TestSupport.h"
#include "WholeFile.h"

/// What systems do differently with files, and how the program does the same on all.
class TestFiles : public QObject
{
    Q_OBJECT

private slots:
    void namesThatEverySystemTakes_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("portable");
        for (const char *name :
             {"knight.kmat", "console.png", "aux1", "com10.anim", ".hidden", "a b", "n\u00fcl.x"})
            QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(name);
        const char *const changed[][2] = {{"con", "con_"},
                                          {"CON.kmat", "CON_.kmat"},
                                          {"aux.v2.png", "aux_.v2.png"},
                                          {"nul .x", "nul_ .x"},
                                          {"LPT9", "LPT9_"},
                                          {"com\u00b2.x", "com\u00b2_.x"},
                                          {"conin$", "conin$_"},
                                          {"name. .", "name"},
                                          {"a:b?.obj", "a_b_.obj"},
                                          {"tab\there", "tab_here"},
                                          {"..", "_"},
                                          {"con.", "con_"}};
        for (const auto &[name, portable] : changed)
            QTest::newRow(name) << QString::fromUtf8(name) << QString::fromUtf8(portable);
    }

    void namesThatEverySystemTakes()
    {
        QFETCH(QString, name);
        QFETCH(QString, portable);
        QCOMPARE(FileNames::portable(name), portable);
        QCOMPARE(FileNames::portable(portable), portable);
        if (name == "..")
            return; // a step in a path, and no name
        const QString path = "C:/mods/../mine/" + name + "/x.kmat";
        QCOMPARE(FileNames::problem(path).isEmpty(), name == portable);
        QCOMPARE(FileNames::problem(path).contains(name), name != portable);
    }

    void pathsAreComparedAsTheSystemDoes()
    {
        const TestFolder folder;
        const QString path = folder.put(QString::fromUtf8("Sk\u00c4ld.png"), "");
        for (const char *name : {"Sk\u00c4ld.png", "sk\u00e4LD.PNG", "Skald.png", "Sk\u00c4ld.kmat"}) {
            const QString other = folder.path(QString::fromUtf8(name));
            QVERIFY2(FileSystem::isSamePath(path, other) == QFile::exists(other), name);
        }
        const QString sharp = folder.put(QString::fromUtf8("Fu\u00df.png"), ""),
                      folded = folder.path("Fuss.png");
        QVERIFY(!QFile::exists(folded) && !FileSystem::isSamePath(sharp, folded));
    }

    void aLockGoesWithItsFile()
    {
        const TestFolder folder;
        const QString path = folder.path("own/lock");
        QVERIFY(QDir().mkpath(folder.path("own")));
        FolderLock lock(path);
        QVERIFY(lock.isHeld() && !FolderLock(path).isHeld());
        lock.removeFile();
        QVERIFY(!lock.isHeld() && QDir().rmdir(folder.path("own")));
    }

    void aFileThatAnotherProgramHoldsIsKept()
    {
        const TestFolder folder;
        const QString path = folder.put("knight.anim", "old");
        QFile holder(path);
        QVERIFY(holder.open(QIODevice::ReadOnly));
        const QString reason = writeWholeFile(path, "new");
        if (SpecialFiles::HeldOnesAreReplaced) {
            QCOMPARE(reason, QString());
            QCOMPARE(holder.readAll(), QByteArray("old"));
            QCOMPARE(TestSupport::readFile(path), QByteArray("new"));
            return;
        }
        const QString beside = folder.path("knight.new.anim");
        QVERIFY2(reason.contains(QDir::toNativeSeparators(beside)), qPrintable(reason));
        QCOMPARE(TestSupport::readFile(path), QByteArray("old"));
        QCOMPARE(TestSupport::readFile(beside), QByteArray("new"));
        QVERIFY(writeWholeFile(path, "newer").contains("knight.new2.anim"));
        holder.close();
        QCOMPARE(writeWholeFile(path, "newest"), QString());
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
