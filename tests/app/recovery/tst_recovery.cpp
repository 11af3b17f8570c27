// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimCommands.h"
#include "EndSignals.h"
#include "FullDisk.h"
#include "Hand.h"
#include "KeptWork.h"
#include "RecoverDialog.h"
#include "SessionEnd.h"
#include "SnapshotFile.h"

using SampleModels::bytesOf;

class TestRecovery : public QObject, KeptWork
{
    Q_OBJECT

private slots:
    void init() { begin(); }
    void cleanup() { Log::setSink({}); }

    void workIsKept()
    {
        const auto check = [this](const char *how, const QString &name,
                                  const std::function<void(OneRun &)> &act) {
            init();
            {
                OneRun run(root());
                run.openMesh(manPath());
                act(run);
            }
            SnapshotStore next(root());
            const QVector<Snapshot> found = next.snapshots();
            QVERIFY2(found.size() == 1, how);
            QCOMPARE(found[0].name, name);
            const DocumentKind *kind = documentKindOfFile(found[0].name);
            const bool isSaved = kind->type != DocumentType::StaticMesh;
            QCOMPARE(found[0].sourcePath, isSaved ? m_folder->path(name) : QString());
            QVERIFY(qAbs(found[0].time.secsTo(QDateTime::currentDateTime())) < 60);
            SkinnedMesh man = triangleMan();
            man.headTrackFactor = 7;
            AnimFile walk = twoBlocks();
            walk.blocks[0].setFrameCount(40);
            const QByteArray expected[] = {bytesOf(man), bytesOf(walk), bytesOf(SampleModels::staticMesh())};
            QByteArray bytes;
            QVERIFY2(!next.read(found[0], &bytes), how);
            QVERIFY2(bytes == expected[int(kind->type)], how);
            QCOMPARE(m_log, QStringList());
        };
        check("edited", "man.skinnedmesh", [](OneRun &run) {
            run.edit(7);
            run.settle();
        });
        check("replaced at once", "man.skinnedmesh", [this](OneRun &run) {
            run.edit(7);
            run.openMesh(manPath());
            run.settle();
        });
        check("window closed at once", "man.skinnedmesh", [](OneRun &run) {
            run.edit(7);
            run.window.show();
            run.window.close();
        });
        check("changed without an undo step, then edited and undone", "walk.anim", [this](OneRun &run) {
            run.anim.take(twoBlocks(), QStringLiteral("x"));
            QVERIFY(!run.anim.save(m_folder->path(QStringLiteral("walk.anim"))));
            run.anim.editTarget().edit().blocks[0].setFrameCount(40);
            run.anim.changedDirectly({{RecordKind::AnimBlock, {}}, 0, {}});
            run.anim.undoStack()->push(new UC_AnimBlockAnimID(run.anim.editTarget(), {}, 9));
            run.anim.undoStack()->undo();
            run.settle();
        });
        check("never saved", "box.staticmesh", [](OneRun &run) {
            run.rigid.take(SampleModels::staticMesh(), QStringLiteral("box"));
            run.settle();
        });
    }

    void theEndOfTheSessionKeepsWorkAtOnce()
    {
        OneRun run(root());
        run.openMesh(manPath());
        run.edit(1);
        QVector<int> asked;
        const EndSignals ending([&](int number) {
            run.recovery->keepAll();
            asked += number;
        });
        endSession(run.window);
        QTRY_COMPARE_WITH_TIMEOUT(asked, SignalsOfTheEnd, 1500);
        QCOMPARE(kept().size(), 1);
    }

    void savedOrUndoneWorkIsNot()
    {
        OneRun run(root());
        const auto keptNow = [&] {
            run.settle();
            return kept().size();
        };
        run.openMesh(manPath());
        QCOMPARE(keptNow(), 0);
        // One file for one document, however often it changes.
        for (const int factor : {7, 8}) {
            run.edit(factor);
            QCOMPARE(keptNow(), 1);
        }
        run.mesh.undoStack()->setIndex(0);
        QCOMPARE(keptNow(), 0);

        run.mesh.undoStack()->redo();
        QCOMPARE(keptNow(), 1);
        QVERIFY(run.mesh.save(m_folder->path(QStringLiteral("none/man.skinnedmesh"))));
        QCOMPARE(keptNow(), 1);
        QVERIFY(!run.mesh.save(manPath()));
        QCOMPARE(keptNow(), 0);

        // A clean stack says nothing of a model that was never saved.
        run.rigid.take(SampleModels::staticMesh(), QStringLiteral("box"));
        QCOMPARE(keptNow(), 1);
        QVERIFY(!run.rigid.save(m_folder->path(QStringLiteral("box.staticmesh"))));
        QCOMPARE(keptNow(), 0);
    }

    void restoredWorkIsModifiedUntilSaved()
    {
        leave(1);
        const QByteArray before = TestSupport::readFile(manPath());
        {
            OneRun run(root());
            QVERIFY(restoreOnly(run));
            QCOMPARE(run.mesh.path(), manPath());
            QCOMPARE(int(run.mesh.model().headTrackFactor), 1);
            QVERIFY(run.mesh.isModified());
            run.edit(5);
            run.mesh.undoStack()->undo();
            QVERIFY(run.mesh.isModified());
            QCOMPARE(run.recovery->snapshots().size(), 0);
            // Killed again before it was saved: still there.
        }
        OneRun run(root());
        QVERIFY(restoreOnly(run));
        QCOMPARE(TestSupport::readFile(manPath()), before);
        QVERIFY(!run.mesh.save(manPath()));
        QVERIFY(!run.mesh.isModified());
        run.settle();
        QCOMPARE(kept(), QStringList());
    }

    void eachRunHasItsOwn()
    {
        auto first = std::make_unique<OneRun>(root());
        first->openMesh(manPath());
        first->edit(1);
        first->settle();
        {
            const OneRun second(root());
            QCOMPARE(second.recovery->snapshots().size(), 0);
        }
        QCOMPARE(kept().size(), 1);
        first.reset();
        auto second = std::make_unique<OneRun>(root());
        const OneRun third(root());
        QCOMPARE(second->recovery->snapshots().size(), 1);
        QCOMPARE(third.recovery->snapshots().size(), 0);
        second.reset();
        // A run that leaves nothing leaves no folder.
        QCOMPARE(OneRun(root()).recovery->snapshots().size(), 1);
        QCOMPARE(QDir(root()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 2);
    }

    void theOldestGo()
    {
        leave(SnapshotStore::MostKept + 3);
        SnapshotStore store(root());
        const QVector<Snapshot> found = store.snapshots();
        QCOMPARE(found.size(), SnapshotStore::MostKept);
        for (int i = 0; i < found.size(); ++i) {
            SkinnedMesh mesh;
            QByteArray bytes;
            QVERIFY(!store.read(found[i], &bytes) && !SampleModels::readBytes(mesh, bytes));
            QCOMPARE(int(mesh.headTrackFactor), SnapshotStore::MostKept + 3 - i);
        }
    }

    void workThatCannotBeSavedIsKept()
    {
        {
            OneRun run(root());
            run.openMesh(manPath());
            run.mesh.editTarget().edit().surfaces[0].triangleIndexes[1] = SkinnedMesh::IndexTerminator;
            run.edit(7);
            run.settle();
        }
        OneRun run(root());
        QVERIFY(restoreOnly(run));
        QCOMPARE(run.mesh.model().headTrackFactor, qint8(7));
        QCOMPARE(run.mesh.model().surfaces[0].triangleIndexes.size(), size_t(3));
    }

    void whatCannotBeKept()
    {
        {
            OneRun run(root());
            AnimFile empty;
            run.anim.take(empty, QStringLiteral("none"));
            run.settle();
            run.anim.changedDirectly({{RecordKind::AnimFile, {}}, 0, {}});
            run.settle();
            QCOMPARE(kept(), QStringList());

            // A disk that is full for a while.
            m_log.clear();
            run.openMesh(manPath());
            const qint64 size = QFileInfo(manPath()).size();
            if (!FullDisk::IsPossible)
                run.edit(1);
            for (qint64 limit = 0; FullDisk::IsPossible && limit < size; limit += 16) {
                const FullDisk disk(limit);
                run.edit(int(limit / 16) + 1);
                run.settle();
                QVERIFY2(kept().isEmpty(), qPrintable(QString::number(limit)));
            }
            QCOMPARE(m_log.size(), FullDisk::IsPossible ? 1 : 0);
            QTRY_COMPARE(kept().size(), 1);
            QCOMPARE(run.recovery->store().snapshots().size(), 1);
            run.mesh.undoStack()->setIndex(0);
        }
        // Where the folder should be is a file: the program works, and says that it keeps nothing.
        m_log.clear();
        QVERIFY(QDir(root()).removeRecursively());
        QVERIFY(TestSupport::writeFile(root(), "x"));
        OneRun run(root());
        QCOMPARE(m_log.size(), 1);
        run.openMesh(manPath());
        run.edit(3);
        run.settle();
        run.recovery->keepAll();
        QCOMPARE(run.recovery->snapshots().size(), 0);
        QVERIFY(!run.mesh.save(manPath()));
    }

    void theBarOffers()
    {
        leave(2);
        {
            OneRun run(root());
            run.rigid.take(SampleModels::staticMesh(), QStringLiteral("box"));
            run.recovery->keepAll();
        }
        OneRun run(root());
        Bar bar(run);
        QVERIFY(!bar.notice->isHidden());
        {
            // The bar's button and the menu's command open the same list.
            const Hand hand({Hand::reject, Hand::reject});
            bar.click("btnShowAll");
            bar.recover.trigger();
            QCOMPARE(hand.seen, QStringList({QStringLiteral("Recover"), QStringLiteral("Recover")}));
        }
        QVERIFY2(bar.notice->text().endsWith(QStringLiteral(": box.staticmesh, man.skinnedmesh and 1 more")),
                 qPrintable(bar.notice->text()));
        bar.click("btnRestore");
        QVERIFY(bar.notice->text().endsWith(QStringLiteral("is kept, too: 1")));
        QVERIFY(find<QPushButton>(run.window, "btnRestore")->isHidden());
        QVERIFY(run.mesh.isModified() && run.rigid.isModified());
        QCOMPARE(int(run.mesh.model().headTrackFactor), 2);
        QCOMPARE(run.rigid.fileName(), QStringLiteral("box.staticmesh"));
        QVERIFY(run.rigid.path().isEmpty());
    }

    void whatIsRestoredIsNotOfferedOn()
    {
        {
            OneRun run(root());
            run.openMesh(manPath());
            run.edit(1);
            run.recovery->keepAll();
            run.rigid.take(SampleModels::staticMesh(), QStringLiteral("box"));
            run.recovery->keepAll();
        }
        OneRun run(root());
        Bar bar(run);
        // The box, which is newer, is restored; for the other the user thinks better of it.
        run.openMesh(manPath());
        run.edit(2);
        Hand hand(
            {Hand::press(QMessageBox::Cancel), Hand::press(QMessageBox::No), Hand::press(QMessageBox::Yes)});
        bar.click("btnRestore");
        QCOMPARE(hand.seen.size(), 1);
        QVERIFY(run.rigid.isModified());
        QVERIFY2(bar.notice->text().endsWith(QString(": man.skinnedmesh")), qPrintable(bar.notice->text()));

        // What is offered is what Discard takes away when it was asked, and not what is open.
        bar.click("btnDiscard");
        QCOMPARE(run.recovery->snapshots().size(), 1);
        QVERIFY(bar.notice->isVisibleTo(&run.window));
        bar.click("btnDiscard");
        const QString question = "Recover|Delete what was kept of 'man.skinnedmesh'?\nThis cannot be undone.";
        QCOMPARE(hand.seen.mid(1), QStringList({question, question}));
        QVERIFY(bar.notice->isHidden());
        const QVector<Snapshot> left = run.recovery->store().snapshots();
        QVERIFY(std::any_of(left.begin(), left.end(), [](const Snapshot &each) {
            return each.name == QLatin1String("box.staticmesh");
        }));
        QVERIFY(run.recovery->snapshots().isEmpty());
    }

    void theNewestIsNewestThoughTheClockWasSetBack()
    {
        const QDateTime before = QDateTime::currentDateTime().addYears(1);
        QVERIFY(QDir().mkpath(root() + "/left"));
        QCOMPARE(SnapshotFile::write(root() + "/left/1.skinnedmesh.snapshot",
                                     {{}, "skinnedmesh", {}, "old", before, before.toMSecsSinceEpoch()}, {1}),
                 QString());
        SnapshotStore store(root());
        for (int i = 0; i <= SnapshotStore::MostKept; ++i) {
            const QDateTime time = before.addDays(-1 - i);
            const QString file = store.newFile(QStringLiteral("skinnedmesh"));
            store.keep({file, "skinnedmesh", {}, QString::number(i), time},
                       [] { return std::vector<uchar>{1}; }, {});
            store.waitForDone();
            QFile written(kept().filter(file).value(0));
            QVERIFY(written.open(QIODevice::ReadWrite));
            QVERIFY(written.setFileTime(time, QFileDevice::FileModificationTime));
        }
        const QVector<Snapshot> all = store.snapshots();
        QCOMPARE(all.size(), SnapshotStore::MostKept);
        QCOMPARE(all.first().name, QString::number(SnapshotStore::MostKept));
        QCOMPARE(all.last().name, QString("1"));
    }

    void theBarTellsOfACrash()
    {
        {
            const OneRun run(root());
            QVERIFY(TestSupport::writeFile(run.recovery->store().crashReportPath(), "the stack"));
        }
        {
            OneRun run(root());
            Bar bar(run);
            QVERIFY(!bar.notice->isHidden());
            QVERIFY(run.window.findChild<QPushButton *>(QStringLiteral("btnRestore"))->isHidden());
            QString shown;
            Hand hand({[&shown](QDialog *dialog) {
                shown = dialog->findChild<QPlainTextEdit *>()->toPlainText();
                dialog->reject();
            }});
            bar.click("btnShowReport");
            QCOMPARE(shown, QStringLiteral("the stack"));
        }
        // Once is enough; the file stays.
        const OneRun run(root());
        QCOMPARE(run.recovery->store().crashReports(), QStringList());
        QCOMPARE(QDir(root()).entryList({QStringLiteral("crash-*.txt")}).size(), 1);
    }

    void theDialogLists()
    {
        leave(3);
        OneRun run(root());
        run.openMesh(manPath());
        run.edit(100);
        RecoverDialog dialog(*run.recovery);
        auto *tree = dialog.findChild<QTreeWidget *>();
        const auto selectRow = [tree](int row) {
            tree->setCurrentItem(tree->topLevelItem(row), 0,
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        };
        auto *restore = dialog.findChild<QPushButton *>(QStringLiteral("btnRecoverRestore"));
        QCOMPARE(tree->topLevelItemCount(), 3);
        QCOMPARE(tree->topLevelItem(0)->text(3), QDir::toNativeSeparators(manPath()));
        tree->selectAll();
        QVERIFY(!restore->isEnabled());

        selectRow(1);
        {
            Hand hand({Hand::press(QMessageBox::Yes)});
            dialog.findChild<QPushButton *>(QStringLiteral("btnRecoverDelete"))->click();
            QCOMPARE(hand.seen.size(), 1);
        }
        QCOMPARE(tree->topLevelItemCount(), 2);

        // The open document is modified: giving up its question gives up the restoring.
        selectRow(1);
        {
            Hand hand({Hand::press(QMessageBox::Cancel)});
            restore->click();
            QCOMPARE(hand.seen.size(), 1);
        }
        QCOMPARE(int(run.mesh.model().headTrackFactor), 100);
        selectRow(1);
        Hand hand({Hand::press(QMessageBox::No)});
        restore->click();
        QCOMPARE(int(run.mesh.model().headTrackFactor), 1);
        // What was replaced is kept, too.
        QCOMPARE(run.recovery->snapshots().size(), 2);
    }
};

QTEST_MAIN(TestRecovery)
#include "tst_recovery.moc"
