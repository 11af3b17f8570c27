// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Files.h"
#include "ToolRun.h"

#include <QDirIterator>

#ifndef Q_OS_WIN
#include <csignal>
#endif

using TestSupport::readFile;
using TestSupport::source;

/// The archive that korvane-tool makes of a mod.
class TestToolPack : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_game = source("samples/game");
        copy(source("samples/mod"), "mod");
        copy(m_game, "mod");
        m_folder.put("mod/lantern.blend", "for another program");
        m_folder.put("mod/.korvane.json", "{}");
    }

    void packsWhatItSays()
    {
        const QString target = m_folder.path("mod.kpf");
        const ToolRun run("pack", {m_folder.path("mod"), "-o", target, "--game-path", m_game});
        QVERIFY2(run.exitCode == 0, qUtf8Printable(run.out + run.err));
        QCOMPARE(run.err, QString());
        QVERIFY(run.out.contains("left out: lantern.blend (a source"));
        QVERIFY(run.out.contains("replaces the game's: models/crate/crate.staticmesh\n"));
        QVERIFY(!run.out.contains("replaces the game's: models/lantern"));
        const QStringList names = filesBelow(m_folder.path("mod"), {"lantern.blend"});
        QVERIFY(run.out.endsWith(QStringLiteral("%1: %2 files\n").arg(target).arg(names.size())));
        compareWithFolder(target, m_folder.path("mod"), names);

        // What is there is not replaced unasked; times and the archive's name make no difference.
        const QByteArray bytes = readFile(target);
        for (const QString &name : names) {
            QFile file(m_folder.path("mod/" + name));
            QVERIFY(file.open(QIODevice::ReadWrite) &&
                    file.setFileTime(QDateTime::currentDateTime().addYears(-9),
                                     QFileDevice::FileModificationTime));
        }
        const QString other = m_folder.put("other.ZIP", "mine");
        const ToolRun refused("pack", {m_folder.path("mod"), "-o", other, "--game-path", m_game});
        QCOMPARE(refused.exitCode, 1);
        QVERIFY(refused.err.contains("--force"));
        QCOMPARE(readFile(other), QByteArray("mine"));
        QCOMPARE(ToolRun("pack --force", {m_folder.path("mod"), "-o", other, "--game-path", target}).exitCode,
                 0);
        QCOMPARE(readFile(other), bytes);
        // The game may be an archive, too: then all of it is replaced.
        const ToolRun listed("pack --list --json", {m_folder.path("mod"), "--game-path", target});
        QCOMPARE(listed.exitCode, 0);
        QCOMPARE(listed.json().size(), names.size() + 1);
        for (const QJsonValue each : listed.json())
            QVERIFY(each["leftOut"].isString() || each["replacesGame"].toBool());
    }

    void packsRealModels()
    {
        SKIP_WITHOUT_SHARED("gamedata");
        const QString folder = TestSupport::shared("gamedata");
        const QString target = m_folder.path("real.kpf");
        const ToolRun run("pack", {folder, "-o", target, "--with-errors", "--game-path", m_game});
        QVERIFY2(run.exitCode == 0, qUtf8Printable(run.err));
        QStringList left;
        for (const QString &line : run.out.split('\n')) {
            if (line.startsWith("left out: "))
                left += line.mid(10).section(" (", 0, 0);
        }
        compareWithFolder(target, folder, filesBelow(folder, left));
    }

    void stopsAtErrors()
    {
        m_folder.put("broken/good.kmat", "material a { }\n");
        m_folder.put("broken/half.anim", "no animation");
        const QString target = m_folder.path("broken.kpf");
        const ToolRun run("pack", {m_folder.path("broken"), "-o", target});
        QCOMPARE(run.exitCode, 1);
        QVERIFY(run.out.contains("half.anim: error: "));
        QVERIFY(!QFileInfo::exists(target));
        QCOMPARE(ToolRun("pack --leave-out half.*", {m_folder.path("broken"), "-o", target}).exitCode, 0);
        QVERIFY(Files::isFile(target + "/good.kmat") && !Files::isFile(target + "/half.anim"));
        QCOMPARE(ToolRun("pack --force --with-errors", {m_folder.path("broken"), "-o", target}).exitCode, 0);
        QVERIFY(Files::isFile(target + "/half.anim"));

        // What the mod silences stops nothing, and is told.
        m_folder.put("broken/.korvane.json",
                     R"({"check": {"silence": [{"rule": "unreadable", "files": "half*", "why": "so"}]}})");
        const ToolRun silenced("pack --force", {m_folder.path("broken"), "-o", target});
        QCOMPARE(silenced.exitCode, 0);
        QVERIFY(silenced.out.contains("half.anim: error: ") && silenced.out.contains("(silenced: so)"));
        QVERIFY(silenced.out.contains("2 files checked: 0 errors"));

        QDir(m_folder.path()).mkdir("empty");
        const QString none = m_folder.path("none.kpf");
        QVERIFY(ToolRun("pack", {m_folder.path("empty"), "-o", none}).err.contains("no file to pack"));
        QCOMPARE(ToolRun("pack", {m_folder.path("nowhere"), "-o", none}).exitCode, 1);
        QVERIFY(!QFileInfo::exists(none));
        for (const char *wrong :
             {"pack", "pack x", "pack x -o y.tar", "pack x -o y.kpf --list", "pack x -o y.kpf --json"})
            QCOMPARE(ToolRun(wrong).exitCode, 2);
    }

    void isInterrupted()
    {
#ifdef Q_OS_WIN
        QSKIP("nothing interrupts a program there");
#else
        // Noise takes its time, and one file of it may stand there often.
        QByteArray noise(60 << 20, Qt::Uninitialized);
        QRandomGenerator random(7);
        random.fillRange(reinterpret_cast<quint32 *>(noise.data()), noise.size() / 4);
        const QString first = m_folder.put("noise/0.bin", noise);
        for (int i = 1; i < 30; ++i)
            QVERIFY(QFile::link(first, m_folder.path(QStringLiteral("noise/%1.bin").arg(i))));
        m_folder.put("noise/x.bak", "said before anything is written");
        QDir(m_folder.path()).mkdir("out");
        QProcess process;
        process.start(QStringLiteral(KORVANE_TOOL),
                      {"pack", m_folder.path("noise"), "-o", m_folder.path("out/noise.kpf")});
        QVERIFY(process.waitForReadyRead(60000));
        ::kill(pid_t(process.processId()), SIGINT);
        QVERIFY(process.waitForFinished(60000));
        QCOMPARE(process.exitCode(), 130);
        QVERIFY(QDir(m_folder.path("out")).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
#endif
    }

private:
    void copy(const QString &from, const QString &to) const
    {
        for (const QString &name : filesBelow(from, {}))
            m_folder.put(to + '/' + name, readFile(from + '/' + name));
    }

    /// Their paths below the folder, but for hidden ones and some others.
    static QStringList filesBelow(const QString &folder, const QStringList &others)
    {
        QStringList names;
        QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext()) {
            const QString name = QDir(folder).relativeFilePath(walk.next());
            if (!others.contains(name))
                names += name;
        }
        names.sort();
        return names;
    }

    static void compareWithFolder(const QString &archive, const QString &folder, const QStringList &names)
    {
        QStringList found;
        Files::walk(archive, [&found, &archive](const FolderEntry &entry) {
            if (!entry.isFolder)
                found += entry.path.mid(archive.size() + 1);
            return true;
        });
        found.sort();
        QCOMPARE(found, names);
        for (const QString &name : names)
            QVERIFY2(Files::read(archive + '/' + name, 1 << 30) == readFile(folder + '/' + name),
                     qUtf8Printable(name));
    }

    TestFolder m_folder;
    QString m_game;
};

QTEST_GUILESS_MAIN(TestToolPack)
#include "tst_toolpack.moc"
