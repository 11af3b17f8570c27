// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimCommands.h"
#include "FullDisk.h"
#include "Hand.h"
#include "Log.h"
#include "NoticeBar.h"
#include "OneRun.h"
#include "RecoverDialog.h"
#include "RecoveryPrompt.h"
#include "SampleModels.h"
#include "TestSupport.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QTreeWidget>
#include <QVBoxLayout>

using Act = std::function<void(OneRun &)>;
Q_DECLARE_METATYPE(Act)

class TestRecovery : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void workIsKept_data();
    void workIsKept();
    void savedOrUndoneWorkIsNot();
    void restoredWorkIsModifiedUntilSaved();
    void eachRunHasItsOwn();
    void theOldestGo();
    void damageIsSkipped();
    void workThatCannotBeSavedIsKept();
    void whatCannotBeKept();
    void theBarOffers();
    void whatIsRestoredIsNotOfferedOn();
    void theBarTellsOfACrash();
    void theDialogLists();

private:
    QString root() const { return m_folder->filePath(QStringLiteral("state/recovery")); }
    QString manPath() const { return m_folder->filePath(QStringLiteral("man.skinnedmesh")); }
    QStringList kept() const
    {
        QStringList files;
        QDirIterator walk(root(), {QStringLiteral("*.snapshot")}, QDir::Files, QDirIterator::Subdirectories);
        while (walk.hasNext())
            files += walk.next();
        return files;
    }
    /// A run that left this many skinned meshes, each with its own head track factor, 1 the oldest.
    void leave(int count)
    {
        OneRun run(root());
        for (int i = 1; i <= count; ++i) {
            run.openMesh(manPath());
            run.edit(i);
            run.recovery->keepAll();
        }
    }

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<QTemporaryDir> m_folder;
    QStringList m_log;
};

void TestRecovery::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_folder = std::make_unique<QTemporaryDir>();
    TestSupport::useSettingsHome(*m_home);
    QVERIFY(!triangleMan().write(manPath()));
    m_log.clear();
    Log::setSink([this](LogSeverity, const QString &text) { m_log += text; });
}

void TestRecovery::cleanup()
{
    Log::setSink({});
}

void TestRecovery::workIsKept_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("edited") << Act([](OneRun &run) {
        run.edit(7);
        run.settle();
    }) << "man.skinnedmesh"
                            << "man.skinnedmesh";
    QTest::newRow("replaced at once") << Act([this](OneRun &run) {
        run.edit(7);
        run.openMesh(manPath());
        run.settle();
    }) << "man.skinnedmesh"
                                      << "man.skinnedmesh";
    QTest::newRow("window closed at once") << Act([](OneRun &run) {
        run.edit(7);
        run.window.show();
        run.window.close();
    }) << "man.skinnedmesh"
                                           << "man.skinnedmesh";
    QTest::newRow("changed without an undo step, then edited and undone") << Act([this](OneRun &run) {
        run.anim.take(twoBlocks(), QStringLiteral("x"));
        QVERIFY(!run.anim.save(m_folder->filePath(QStringLiteral("walk.anim"))));
        run.anim.model().blocks[0].setFrameCount(40);
        run.anim.changedDirectly({{RecordKind::AnimBlock, {}}, 0, {}});
        run.anim.undoStack()->push(new UC_AnimBlockAnimID(run.anim.editTarget(), {}, 9));
        run.anim.undoStack()->undo();
        run.settle();
    }) << "walk.anim"
                                                                          << "walk.anim";
    QTest::newRow("never saved") << Act([](OneRun &run) {
        run.rigid.take(SampleModels::staticMesh(), QStringLiteral("box"));
        run.settle();
    }) << QString() << "box.staticmesh";
}

void TestRecovery::workIsKept()
{
    QFETCH(Act, act);
    QFETCH(QString, path);
    QFETCH(QString, name);
    {
        OneRun run(root());
        run.openMesh(manPath());
        act(run);
    }
    SnapshotStore next(root());
    const QVector<Snapshot> found = next.snapshots();
    QCOMPARE(found.size(), 1);
    QCOMPARE(found[0].name, name);
    QCOMPARE(found[0].sourcePath, path.isEmpty() ? QString() : m_folder->filePath(path));
    QVERIFY(qAbs(found[0].time.secsTo(QDateTime::currentDateTime())) < 60);
    QByteArray bytes;
    QVERIFY(!next.read(found[0], &bytes));
    if (found[0].type == DocumentType::SkinnedMesh) {
        SkinnedMesh expected = triangleMan();
        expected.headTrackFactor = 7;
        QCOMPARE(bytes, SampleModels::bytesOf(expected));
    } else if (found[0].type == DocumentType::Anim) {
        AnimFile expected = twoBlocks();
        expected.blocks[0].setFrameCount(40);
        QCOMPARE(bytes, SampleModels::bytesOf(expected));
    } else {
        QCOMPARE(bytes, SampleModels::bytesOf(SampleModels::staticMesh()));
    }
    QCOMPARE(m_log, QStringList());
}

void TestRecovery::savedOrUndoneWorkIsNot()
{
    OneRun run(root());
    run.openMesh(manPath());
    run.settle();
    QCOMPARE(kept(), QStringList());
    run.edit(7);
    run.settle();
    QCOMPARE(kept().size(), 1);
    // One file for one document, however often it changes.
    run.edit(8);
    run.settle();
    QCOMPARE(kept().size(), 1);
    run.mesh.undoStack()->setIndex(0);
    run.settle();
    QCOMPARE(kept(), QStringList());

    run.mesh.undoStack()->redo();
    run.settle();
    QCOMPARE(kept().size(), 1);
    QVERIFY(run.mesh.save(m_folder->filePath(QStringLiteral("none/man.skinnedmesh"))));
    run.settle();
    QCOMPARE(kept().size(), 1);
    QVERIFY(!run.mesh.save(manPath()));
    run.settle();
    QCOMPARE(kept(), QStringList());

    // A clean stack says nothing of a model that was never saved.
    run.rigid.take(SampleModels::staticMesh(), QStringLiteral("box"));
    run.settle();
    QCOMPARE(kept().size(), 1);
    QVERIFY(!run.rigid.save(m_folder->filePath(QStringLiteral("box.staticmesh"))));
    run.settle();
    QCOMPARE(kept(), QStringList());
}

void TestRecovery::restoredWorkIsModifiedUntilSaved()
{
    leave(1);
    const QByteArray before = TestSupport::readFile(manPath());
    {
        OneRun run(root());
        const QVector<Snapshot> found = run.recovery->snapshots();
        QCOMPARE(found.size(), 1);
        QCOMPARE(int(run.recovery->restore(found[0])), int(Recovery::Outcome::Restored));
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
    QCOMPARE(run.recovery->snapshots().size(), 1);
    QCOMPARE(int(run.recovery->restore(run.recovery->snapshots()[0])), int(Recovery::Outcome::Restored));
    QCOMPARE(TestSupport::readFile(manPath()), before);
    QVERIFY(!run.mesh.save(manPath()));
    QVERIFY(!run.mesh.isModified());
    run.settle();
    QCOMPARE(kept(), QStringList());
}

void TestRecovery::eachRunHasItsOwn()
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

void TestRecovery::theOldestGo()
{
    leave(SnapshotStore::MostKept + 3);
    SnapshotStore store(root());
    const QVector<Snapshot> found = store.snapshots();
    QCOMPARE(found.size(), SnapshotStore::MostKept);
    for (int i = 0; i < found.size(); ++i) {
        SkinnedMesh mesh;
        QByteArray bytes;
        QVERIFY(!store.read(found[i], &bytes));
        BinaryFileReader reader(reinterpret_cast<const uchar *>(bytes.constData()), bytes.size());
        QVERIFY(!mesh.read(reader));
        QCOMPARE(int(mesh.headTrackFactor), SnapshotStore::MostKept + 3 - i);
    }
}

void TestRecovery::damageIsSkipped()
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

    // The bar's button takes the one before.
    QAction recover;
    QVBoxLayout place(&run.window);
    RecoveryPrompt prompt(*run.recovery, &recover, &place, &run.window);
    QVERIFY(TestSupport::writeFile(file, whole.left(whole.size() / 2)));
    run.window.findChild<QPushButton *>(QStringLiteral("btnRestore"))->click();
    QCOMPARE(int(run.mesh.model().headTrackFactor), 1);
}

void TestRecovery::workThatCannotBeSavedIsKept()
{
    {
        OneRun run(root());
        run.openMesh(manPath());
        run.mesh.model().surfaces[0].triangleIndexes[1] = SkinnedMesh::IndexTerminator;
        run.edit(7);
        run.settle();
    }
    OneRun run(root());
    QCOMPARE(int(run.recovery->restore(run.recovery->snapshots().at(0))), int(Recovery::Outcome::Restored));
    QCOMPARE(run.mesh.model().headTrackFactor, qint8(7));
    QCOMPARE(run.mesh.model().surfaces[0].triangleIndexes.size(), size_t(3));
}

void TestRecovery::whatCannotBeKept()
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
        for (qint64 limit = 0; limit < size; limit += 16) {
            const FullDisk disk(limit);
            run.edit(int(limit / 16) + 1);
            run.settle();
            QVERIFY2(kept().isEmpty(), qPrintable(QString::number(limit)));
        }
        QCOMPARE(m_log.size(), 1);
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

void TestRecovery::theBarOffers()
{
    leave(2);
    {
        OneRun run(root());
        run.rigid.take(SampleModels::staticMesh(), QStringLiteral("box"));
        run.recovery->keepAll();
    }
    OneRun run(root());
    QAction recover;
    QVBoxLayout place(&run.window);
    RecoveryPrompt prompt(*run.recovery, &recover, &place, &run.window);
    auto *bar = run.window.findChild<NoticeBar *>(QStringLiteral("barRecovery"));
    QVERIFY(!bar->isHidden());
    {
        // The bar's button and the menu's command open the same list.
        const Hand hand({Hand::reject, Hand::reject});
        run.window.findChild<QPushButton *>(QStringLiteral("btnShowAll"))->click();
        recover.trigger();
        QCOMPARE(hand.seen, QStringList({QStringLiteral("Recover"), QStringLiteral("Recover")}));
    }
    QVERIFY2(bar->text().endsWith(QStringLiteral(": box.staticmesh, man.skinnedmesh and 1 more")),
             qPrintable(bar->text()));
    run.window.findChild<QPushButton *>(QStringLiteral("btnRestore"))->click();
    QVERIFY(bar->isHidden());
    QVERIFY(run.mesh.isModified() && run.rigid.isModified());
    QCOMPARE(int(run.mesh.model().headTrackFactor), 2);
    QCOMPARE(run.rigid.fileName(), QStringLiteral("box.staticmesh"));
    QVERIFY(run.rigid.path().isEmpty());

    // What is offered is what Discard takes away, and not what is open.
    QWidget other;
    QVBoxLayout otherPlace(&other);
    RecoveryPrompt again(*run.recovery, &recover, &otherPlace, &other);
    other.findChild<QPushButton *>(QStringLiteral("btnDiscard"))->click();
    QCOMPARE(run.recovery->store().snapshots().size(), 2);
    QVERIFY(other.findChild<NoticeBar *>()->isHidden());
}

void TestRecovery::whatIsRestoredIsNotOfferedOn()
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
    QAction recover;
    QVBoxLayout place(&run.window);
    RecoveryPrompt prompt(*run.recovery, &recover, &place, &run.window);
    // The box, which is newer, is restored; for the other the user thinks better of it.
    run.openMesh(manPath());
    run.edit(2);
    Hand hand({Hand::press(QMessageBox::Cancel)});
    run.window.findChild<QPushButton *>(QStringLiteral("btnRestore"))->click();
    QCOMPARE(hand.seen.size(), 1);
    QVERIFY(run.rigid.isModified());
    auto *bar = run.window.findChild<NoticeBar *>(QStringLiteral("barRecovery"));
    QVERIFY2(bar->text().endsWith(QStringLiteral(": man.skinnedmesh")), qPrintable(bar->text()));

    // Discard leaves what is open kept.
    run.window.findChild<QPushButton *>(QStringLiteral("btnDiscard"))->click();
    QVERIFY(bar->isHidden());
    const QVector<Snapshot> left = run.recovery->store().snapshots();
    QVERIFY(std::any_of(left.begin(), left.end(),
                        [](const Snapshot &each) { return each.name == QLatin1String("box.staticmesh"); }));
    QVERIFY(run.recovery->snapshots().isEmpty());
}

void TestRecovery::theBarTellsOfACrash()
{
    {
        const OneRun run(root());
        QVERIFY(TestSupport::writeFile(run.recovery->store().crashReportPath(), "the stack"));
    }
    {
        OneRun run(root());
        QAction recover;
        QVBoxLayout place(&run.window);
        RecoveryPrompt prompt(*run.recovery, &recover, &place, &run.window);
        QVERIFY(!run.window.findChild<NoticeBar *>()->isHidden());
        QVERIFY(run.window.findChild<QPushButton *>(QStringLiteral("btnRestore"))->isHidden());
        QString shown;
        Hand hand({[&shown](QDialog *dialog) {
            shown = dialog->findChild<QPlainTextEdit *>()->toPlainText();
            dialog->reject();
        }});
        run.window.findChild<QPushButton *>(QStringLiteral("btnShowReport"))->click();
        QCOMPARE(shown, QStringLiteral("the stack"));
    }
    // Once is enough; the file stays.
    const OneRun run(root());
    QCOMPARE(run.recovery->store().crashReports(), QStringList());
    QCOMPARE(QDir(root()).entryList({QStringLiteral("crash-*.txt")}).size(), 1);
}

void TestRecovery::theDialogLists()
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
    const QVector<Snapshot> left = run.recovery->snapshots();
    QCOMPARE(left.size(), 2);
}

QTEST_MAIN(TestRecovery)
#include "tst_recovery.moc"
