// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "KeptWork.h"
#include "RecoverDialog.h"
#include "SnapshotFile.h"

/// Kept work that cannot be opened any more.
class tst_DamagedWork : public QObject, KeptWork
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { Log::setSink({}); }

    void damageIsSkipped()
    {
        leave(2);
        OneRun run(root());
        const Snapshot newest = run.recovery->snapshots().at(0);
        const QString file = kept().filter(newest.file).value(0);
        const QByteArray whole = TestSupport::readFile(file);
        const auto damage = [&](const QByteArray &bytes) {
            QVERIFY(TestSupport::writeFile(file, bytes));
            m_log.clear();
            const QVector<Snapshot> found = run.recovery->snapshots();
            if (found.size() == 2) {
                QCOMPARE(int(run.recovery->restore(newest)), int(Recovery::Outcome::Damaged));
                QVERIFY(!run.mesh.isOpen());
            } else {
                QCOMPARE(found.size(), 1);
            }
            QCOMPARE(m_log.size(), 1);
        };
        for (int length = 0; length < whole.size(); ++length)
            damage(whole.left(length));
        for (int i = 0; i < whole.size(); ++i) {
            QByteArray changed = whole;
            changed[i] = char(changed[i] ^ 0x40);
            damage(changed);
        }
        damage(whole + 'x');
    }

    void damageIsTold()
    {
        // The newest of so many, cut short or with another byte; where it is set aside then.
        const auto leaveDamaged = [this](int count, bool cut) {
            init();
            leave(count);
            QStringList files = kept();
            files.sort();
            QByteArray bytes = TestSupport::readFile(files.last());
            bytes = cut ? bytes.left(bytes.size() / 2) : bytes.replace(bytes.size() - 30, 1, "x");
            TestSupport::writeFile(files.last(), bytes);
            return root() + '/' + QFileInfo(files.last()).fileName() + ".damaged";
        };
        const auto question = [](const QString &name, const QString &file) {
            return "Recover|What was kept of '" + name +
                   "' is damaged and cannot be opened.|It can be kept, to see what can be saved of it, and "
                   "is not offered any more:\n" +
                   QDir::toNativeSeparators(file);
        };
        const auto keep = [](QDialog *dialog) { QTest::keyClick(dialog, Qt::Key_Escape); };
        Hand hand({keep, Hand::clickOn("Delete"), Hand::clickOn("Delete"), keep});
        {
            // The bar's button takes the one before.
            const QString aside = leaveDamaged(2, false);
            OneRun run(root());
            Bar bar(run);
            bar.click("btnRestore");
            QCOMPARE(int(run.mesh.model().headTrackFactor), 1);
            QCOMPARE(hand.seen, QStringList(question("man.skinnedmesh", aside)));
            QVERIFY(QFile::exists(aside) && bar.notice->isHidden());
        }
        {
            // From the list, too.
            const QString aside = leaveDamaged(1, false);
            OneRun run(root());
            RecoverDialog dialog(*run.recovery);
            find<QPushButton>(dialog, "btnRecoverRestore")->click();
            QCOMPARE(hand.seen.value(1), question("man.skinnedmesh", aside));
            QVERIFY(!QFile::exists(aside) && kept().isEmpty());
        }
        // Of one that is cut short there is no name.
        const QString aside = leaveDamaged(1, true);
        OneRun run(root());
        Bar bar(run);
        QVERIFY2(bar.notice->text().endsWith("damaged."), qPrintable(bar.notice->text()));
        QVERIFY(QFile::exists(aside));
        QVERIFY(find<QPushButton>(bar.window, "btnRestore")->isHidden());
        bar.click("btnShowDamaged");
        QCOMPARE(hand.seen.value(2), question(QFileInfo(aside).fileName(), aside));
        QVERIFY(bar.notice->isHidden() && !QFile::exists(aside));

        // Beside whole work it is told of as well, by the bar and when the list is opened.
        const QString beside = leaveDamaged(2, true);
        OneRun next(root());
        Bar other(next);
        QVERIFY2(other.notice->text().endsWith(": man.skinnedmesh. Other work that was kept is damaged."),
                 qPrintable(other.notice->text()));
        QVERIFY(!find<QPushButton>(other.window, "btnRestore")->isHidden());
        RecoverDialog list(*next.recovery);
        list.show();
        QTRY_COMPARE(hand.seen.value(3), question(QFileInfo(beside).fileName(), beside));
        QVERIFY(QFile::exists(beside) && next.recovery->store().damaged().isEmpty());
    }

    void damagedFilesDoNotPileUp()
    {
        leave(1);
        for (int i = 0; i < 25; ++i)
            m_folder->put(
                QStringLiteral("state/recovery/%1.snapshot.damaged").arg(i, 2, 10, QLatin1Char('0')), "x");
        // In the way of one stands what cannot be replaced.
        const QString file = kept().value(0);
        QVERIFY(TestSupport::writeFile(file, "x"));
        QVERIFY(QDir().mkpath(root() + '/' + QFileInfo(file).fileName() + ".damaged/x"));
        OneRun run(root());
        QCOMPARE(QDir(root()).entryList({"*.damaged"}, QDir::Files).size(), SnapshotStore::MostKept);
        for (int i = 0; i < 3; ++i) {
            QVERIFY(run.recovery->snapshots().isEmpty());
            QCOMPARE(run.recovery->store().damaged().size(), i < 2 ? 1 : 0);
            if (i == 1)
                run.recovery->store().takeDamaged();
        }
        QCOMPARE(m_log.size(), 1);
    }

    void aHeaderCanSayAnything()
    {
        leave(1);
        const QString file = kept().value(0);
        Snapshot snapshot;
        QByteArray model;
        QVERIFY(!SnapshotFile::readHeader(file, &snapshot) && !SnapshotFile::readModel(file, &model));
        for (const qint64 size : {std::numeric_limits<qint64>::max() / 2, qint64(-5)}) {
            snapshot.stamp.size = size;
            QCOMPARE(SnapshotFile::write(kept().value(0), snapshot, {model.begin(), model.end()}), QString());
            OneRun run(root());
            QVERIFY(restoreOnly(run));
            run.edit(3);
            run.recovery->keepAll();
            QCOMPARE(kept().size(), 1);
        }
        // A newer program may keep what this one does not know.
        snapshot.extension = "actor";
        QCOMPARE(SnapshotFile::write(kept().value(0), snapshot, {model.begin(), model.end()}), QString());
        OneRun run(root());
        QVERIFY(run.recovery->snapshots().isEmpty());
        QVERIFY(run.recovery->store().damaged().isEmpty());
        QCOMPARE(kept().size(), 1);
    }
};

QTEST_MAIN(tst_DamagedWork)
#include "tst_damagedwork.moc"
