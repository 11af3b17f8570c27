// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Log.h"
#include "SampleModels.h"
#include "SnapshotStore.h"
#include "TestSupport.h"

#include <QProcess>
#include <QRandomGenerator>

#include <chrono>
#include <thread>

/// Kills a program while it saves and keeps snapshots: the file is the one from before or the one from after,
/// every time, and so is the snapshot. KORVANE_KILLS says how often; ./dev kills runs it a thousand times.
class TestKills : public QObject
{
    Q_OBJECT

private slots:
    void everyFileIsOldOrNew()
    {
        const int kills = qEnvironmentVariableIntValue("KORVANE_KILLS");
        const int count = kills > 0 ? kills : 30;
        // The largest: it takes longest to write.
        QString largest;
        for (const QString &path : TestSupport::modelFiles(QStringLiteral("skinnedmesh"))) {
            if (largest.isEmpty() || QFileInfo(path).size() > QFileInfo(largest).size())
                largest = path;
        }
        QVERIFY(!largest.isEmpty());
        SkinnedMesh mesh;
        QVERIFY(!mesh.read(largest));
        mesh.headTrackFactor = 0;

        QStringList log;
        Log::setSink([&log](LogSeverity, const QString &text) { log += text; });
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("model.skinnedmesh"));
        const QString root = folder.filePath(QStringLiteral("recovery"));
        QVERIFY(!mesh.write(path));

        QByteArray before = TestSupport::readFile(path);
        QRandomGenerator random(20240229);
        int rounds = 0;
        int newFiles = 0;
        int newSnapshots = 0;
        int halfWritten = 0;
        for (int i = 0; i < count; ++i) {
            QProcess saver;
            saver.start(QStringLiteral(KORVANE_SAVER), {path, root});
            QVERIFY(saver.waitForReadyRead());
            std::this_thread::sleep_for(std::chrono::microseconds(random.bounded(20000)));
            QCOMPARE(saver.state(), QProcess::Running);
            saver.kill();
            QVERIFY(saver.waitForFinished());
            const int round = saver.readAllStandardOutput().trimmed().split('\n').last().toInt();
            QVERIFY(round > 0);
            rounds += round;

            const auto bytesOfRound = [&mesh](int number) {
                mesh.headTrackFactor = qint8(number % 100);
                return SampleModels::bytesOf(mesh);
            };
            const QByteArray newBytes = bytesOfRound(round);
            // Before its first round the file is what the program before has left.
            const QByteArray oldBytes = round == 1 ? before : bytesOfRound(round - 1);
            before = TestSupport::readFile(path);
            QVERIFY2(before == oldBytes || before == newBytes, qPrintable(QString::number(i)));
            newFiles += before == newBytes;

            SnapshotStore store(root);
            const QVector<Snapshot> found = store.snapshots();
            QVERIFY(found.size() == 1 || (found.isEmpty() && round == 1));
            for (const Snapshot &snapshot : found) {
                QByteArray kept;
                QVERIFY(!store.read(snapshot, &kept));
                QVERIFY2(kept == newBytes || kept == bytesOfRound(round - 1), qPrintable(QString::number(i)));
                newSnapshots += kept == newBytes;
                store.remove(snapshot.file);
            }
            store.waitForDone();
            QCOMPARE(log, QStringList());
            for (const QFileInfo &left : QDir(folder.path()).entryInfoList(QDir::Files)) {
                if (left.filePath() != path) {
                    ++halfWritten;
                    QVERIFY(QFile::remove(left.filePath()));
                }
            }
        }
        Log::setSink({});
        qInfo(
            "%d kills in %d rounds of %lld bytes: %d files and %d snapshots were new, %d saves half written",
            count, rounds, QFileInfo(path).size(), newFiles, newSnapshots, halfWritten);
    }
};

QTEST_GUILESS_MAIN(TestKills)
#include "tst_kills.moc"
