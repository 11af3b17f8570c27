// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ActionTrack.h"
#include "AnimationCommands.h"
#include "DocumentFiles.h"
#include "Hand.h"
#include "MotionDialog.h"
#include "MotionPreview.h"
#include "Playback.h"
#include "SampleModels.h"

#include <QProgressBar>

/// The window with animations in it, which commands of the menus change.
class tst_AnimationCommands : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }
    void init()
    {
        m_folder = std::make_unique<ProgramFolder>();
        Settings::AnimationAutoPlay.setValue(false);
        SkinnedMesh mesh = triangleMan();
        mesh.animationNames[5] = QStringLiteral("walk");
        AnimFile anim = twoBlocks();
        anim.blocks.push_back(anim.blocks[0]);
        for (size_t i = 0; i < 3; ++i) {
            AnimBlock &block = anim.blocks[i];
            block.animId = int(i) * 5;
            block.setTranslationCount(2);
            block.nodes[1].translationIndex = 0;
            for (int frame = 0; frame < 11; ++frame)
                block.translations.at(0, frame) = block.translations.at(1, frame) = {float(frame), 0, 0};
            block.actions.resize(1);
            block.actions[0].frame = 10;
        }
        m_folder->save("man.skinnedmesh", mesh);
        ModelNames names = ModelNames::of(mesh);
        m_folder->put("man.names.json", names.toJson());
        m_path = m_folder->save("man.anim", anim);
        m_window = std::make_unique<ShownWindow>(QStringList{m_folder->path("man.skinnedmesh"), m_path});
        m_window->resize(1366, 768);
        m_before = bytes();
    }
    void cleanup() { m_window.reset(); }

    void oneUndoStepForAllThatAreSelected()
    {
        select(*m_window, "treeAnim", {{RecordKind::AnimBlock, {1}}, {RecordKind::AnimBlock, {2}}});
        Hand hand({[](QDialog *dialog) {
            const Closing closing(dialog);
            QCOMPARE(find<QComboBox>(*dialog, "cbBlocks")->currentText(), QString("Selected animations (2)"));
            QVERIFY(!okOf(dialog)->isEnabled()); // as many frames as there are
            auto *frames = find<IntSpinBox>(*dialog, "sbFrames");
            QCOMPARE(dialog->focusWidget(), frames);
            typeNumber(frames, 21);
            const QString words = preview(dialog);
            QVERIFY2(words.startsWith("Animation 1 (5: walk)\nframes: 11 → 21\nspeed: 10 → 20"),
                     qPrintable(words));
            QVERIFY(words.contains("\nkey frame actions moved: 1\n"));
            QVERIFY(words.contains("\nAnimation 2 (10: "));
            QTest::keyClick(find<QComboBox>(*dialog, "cbResample"), Qt::Key_Down);
            QVERIFY(!preview(dialog).contains("speed"));
            QVERIFY(preview(dialog).contains("duration: 1.00 → 2.00 s"));
            okOf(dialog)->click();
        }});
        trigger("actionAnimResample");
        QCOMPARE(hand.seen, QStringList("Resample Animation"));
        QCOMPARE(stack()->undoText(), QString("Resample Animation"));
        QCOMPARE(bytes().size(), m_before.size() + 2 * 10 * (4 + 2 * 12));
        QCOMPARE(blocks()[0].frameCount(), 11);
        QCOMPARE(blocks()[1].translations.at(0, 7), QVector3D(3.5f, 0, 0));
        QCOMPARE(int(blocks()[2].actions[0].frame), 20);
        // The track controls follow, and what is selected stays.
        const auto *tree = find<KVTreeView>(*m_window, "treeAnim");
        QCOMPARE(tree->selectedRecords(RecordKind::AnimBlock).size(), 2);
        QCOMPARE(find<QSlider>(*m_window, "sliderAnimTrack")->maximum(), 20);
        QCOMPARE(stack()->count(), 1);
        stack()->undo();
        QCOMPARE(bytes(), m_before);
        QCOMPARE(find<QSlider>(*m_window, "sliderAnimTrack")->maximum(), 10);
    }

    void nothingIsDoneUnasked()
    {
        select(*m_window, "treeAnim", {{RecordKind::AnimBlock, {1}}});
        Hand hand({[](QDialog *dialog) {
            const Closing closing(dialog);
            typeNumber(find<IntSpinBox>(*dialog, "sbLast"), 4);
            QVERIFY(okOf(dialog)->isEnabled());
            QVERIFY(preview(dialog).contains("key frame actions dropped: 1"));
            QTest::keyClick(dialog, Qt::Key_Escape);
        }});
        trigger("actionAnimTrim");
        QCOMPARE(stack()->count(), 0);
        // What cannot be says so, and cannot be accepted.
        Hand other({[](QDialog *dialog) {
            const Closing closing(dialog);
            auto *first = find<IntSpinBox>(*dialog, "sbFirst");
            first->selectAll();
            QTest::keyClicks(first, "7");
            QTest::keyClick(find<IntSpinBox>(*dialog, "sbLast"), Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(find<IntSpinBox>(*dialog, "sbLast"), "3\t");
            QVERIFY2(preview(dialog).contains("0 to 10, not 7 to 3"), qPrintable(preview(dialog)));
            QVERIFY(!okOf(dialog)->isEnabled());
            QTest::keyClick(first, Qt::Key_Return);
            QVERIFY(dialog->isVisible());
            dialog->reject();
        }});
        trigger("actionAnimTrim");
        QCOMPARE(stack()->count(), 0);
        QCOMPARE(bytes(), m_before);
    }

    void everyCommandIsUndone()
    {
        int done = 0;
        // Whatever is in front: its undo step is to be taken back by the keys.
        find<QTabWidget>(*m_window, "tabTrees")->setCurrentIndex(0);
        for (const MotionKind &kind : motionKinds()) {
            select(*m_window, "treeAnim", {{RecordKind::AnimFile, {}}});
            Hand hand({[&done](QDialog *dialog) {
                const Closing closing(dialog);
                auto *meant = find<QComboBox>(*dialog, "cbBlocks");
                // The root, selected since the file was opened, means nothing by that.
                QVERIFY(meant->currentText().startsWith("Animation 0 ("));
                QTest::keyClick(meant, Qt::Key_End);
                QCOMPARE(meant->currentText(), QString("All animations (3)"));
                if (auto *offset = find<IntSpinBox>(*dialog, "sbOffset"); offset->isVisible())
                    typeNumber(offset, 100);
                if (auto *frames = find<IntSpinBox>(*dialog, "sbFrames"); frames->isVisible())
                    typeNumber(frames, 6);
                if (auto *last = find<IntSpinBox>(*dialog, "sbLast"); last->isVisible())
                    typeNumber(last, 8);
                done += okOf(dialog)->isEnabled() ? 1 : 0;
                if (dialog->isVisible())
                    okOf(dialog)->isEnabled() ? okOf(dialog)->click() : dialog->reject();
            }});
            trigger(kind.action);
            QCOMPARE(hand.seen, QStringList(kind.step));
            if (stack()->canUndo()) {
                QVERIFY2(bytes() != m_before, kind.action);
                stack()->undo();
            }
            QCOMPARE(bytes(), m_before);
            QVERIFY(stack()->isClean());
        }
        // Nothing turns by itself here, so there is no yaw to take anywhere.
        QCOMPARE(done, int(MotionKind::Count) - 2);
    }

    void idsByATable()
    {
        Hand hand({[](QDialog *dialog) {
            const Closing closing(dialog);
            QTest::keyClick(find<QComboBox>(*dialog, "cbBlocks"), Qt::Key_End);
            auto *table = find<QLineEdit>(*dialog, "txtTable");
            QTest::keyClicks(table, "5=6, 10");
            QVERIFY(!okOf(dialog)->isEnabled());
            QVERIFY(preview(dialog).startsWith("'10' is not an old id"));
            QTest::keyClicks(table, "=0");
            QVERIFY2(preview(dialog).contains("which animation 0 has"), qPrintable(preview(dialog)));
            QTest::keyClicks(table, ",0=10");
            QVERIFY(preview(dialog).contains("id: 0 → 10"));
            okOf(dialog)->click();
        }});
        trigger("actionAnimRenumber");
        QCOMPARE((QVector<int>{blocks()[0].animId, blocks()[1].animId, blocks()[2].animId}),
                 (QVector<int>{10, 6, 0}));
    }

    // What turns the root goes into the frames, and back, by the keys of the menu's dialogs. Meanwhile the
    // view plays what would come of it, and the document knows nothing of that.
    void yawGoesToAndFro()
    {
        AnimFile turning = twoBlocks();
        AnimBlock &block = turning.blocks[0];
        block.setRotationCount(1);
        block.nodes[0].rotationIndex = 0;
        block.nodes[0].initialRotation = {0, 0, 0, 1};
        for (int frame = 0; frame < 11; ++frame) {
            const QQuaternion turn = QQuaternion::fromAxisAndAngle(0, 0, 1, 9.0f * float(frame));
            block.rotations.at(0, frame) = turn.toVector4D();
        }
        m_window->openFiles({m_folder->save("turning.anim", turning)});
        QTRY_COMPARE(int(blocks()[0].nodes[0].rotationIndex), 0);
        const QByteArray before = bytes();
        const auto byKeys = [this](const char *action, const char *words) {
            select(*m_window, "treeAnim", {{RecordKind::AnimBlock, {0}}});
            const int steps = stack()->count();
            Hand hand({[this, words, steps](QDialog *dialog) {
                const Closing closing(dialog);
                QVERIFY2(preview(dialog).contains(QString::fromUtf8(words)), qPrintable(preview(dialog)));
                QVERIFY(playback().anim && playback().anim != &document().model());
                QCOMPARE(playback().anim->blocks[0].frameCount(), 11);
                QVERIFY(stack()->count() == steps);
                QTest::keyClick(dialog, Qt::Key_Return);
            }});
            trigger(action);
            QCOMPARE(stack()->count(), steps + 1);
            QCOMPARE(playback().anim, &document().model());
        };
        byKeys("actionAnimExtractYaw", "by up to 90.0°, instead of the root bone");
        QVERIFY(qAbs(blocks()[0].frames[10].yawOffset + float(M_PI / 2)) < 1e-5f);
        byKeys("actionAnimApplyYaw", "by up to 90.0°, instead of the frames");
        QCOMPARE(blocks()[0].frames[10].yawOffset, 0.0f);
        stack()->setIndex(0);
        QCOMPARE(bytes(), before);
        // Given up, it plays as it was.
        select(*m_window, "treeAnim", {{RecordKind::AnimBlock, {0}}});
        Hand hand({[this](QDialog *dialog) {
            const Closing closing(dialog);
            QVERIFY(playback().anim != &document().model());
            QTest::keyClick(dialog, Qt::Key_Escape);
        }});
        trigger("actionAnimReverse");
        QCOMPARE(playback().anim, &document().model());
        QVERIFY(stack()->isClean());
    }

    void trimBeginsWithTheTimelinesRange()
    {
        select(*m_window, "treeAnim", {{RecordKind::AnimBlock, {0}}});
        emit find<ActionTrack>(*m_window, "actionTrack")->rangeChanged(3, 7);
        // The view plays what would be left, of which the range says nothing; then the range again.
        {
            Hand looking({[this](QDialog *dialog) {
                const Closing closing(dialog);
                QVERIFY(playback().anim != &document().model());
                QVERIFY(playback().range.isEmpty());
                QTest::keyClick(dialog, Qt::Key_Escape);
            }});
            trigger("actionAnimTrim");
        }
        QCOMPARE(playback().range.first, 3);
        QCOMPARE(playback().range.last, 7);
        Hand hand({[](QDialog *dialog) {
            const Closing closing(dialog);
            QCOMPARE(find<IntSpinBox>(*dialog, "sbFirst")->value(), 3);
            QCOMPARE(find<IntSpinBox>(*dialog, "sbLast")->value(), 7);
            QTest::keyClick(dialog, Qt::Key_Return);
        }});
        trigger("actionAnimTrim");
        QCOMPARE(blocks()[0].frameCount(), 5);
        stack()->undo();
        QCOMPARE(bytes(), m_before);
    }

    void theContextMenuOffersThemForAnimations()
    {
        auto *tree = find<KVTreeView>(*m_window, "treeAnim");
        const auto isOffered = [&](const RecordRef &record) {
            tree->selectRecords({record}, record);
            const QPoint place = tree->visualItemRect(tree->currentItem()).center();
            QContextMenuEvent event(QContextMenuEvent::Mouse, place, tree->viewport()->mapToGlobal(place));
            QApplication::sendEvent(tree->viewport(), &event);
            auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
            bool offers = false;
            for (const QAction *action : menu->actions())
                offers = offers ||
                         (action->isVisible() && action->menu() &&
                          action->menu()->actions().contains(find<QAction>(*m_window, "actionAnimReverse")));
            menu->close();
            return offers;
        };
        QVERIFY(isOffered({RecordKind::AnimBlock, {1}}));
        QVERIFY(!isOffered({RecordKind::AnimBones, {1}}));
        QVERIFY(!find<QAction>(MainWindow(), "actionAnimReverse")->isEnabled());
    }

    // The file, and the bones that find each other, are looked at in the dialog before anything is done.
    void copiesFromAnotherSkeleton()
    {
        SkinnedMesh mesh = triangleMan();
        AnimFile anim = twoBlocks();
        anim.blocks.resize(1);
        anim.blocks[0].animId = 40;
        const QString otherMesh = m_folder->save("other/other.skinnedmesh", mesh);
        const QString other = m_folder->save("other/other.anim", anim);
        const QString broken = m_folder->put("other/broken.anim", "none");
        const auto press = [](const char *name) {
            return [name](QDialog *dialog) {
                // Later: the dialog of files comes up within the click, and the hand is to answer that too.
                QTimer::singleShot(0, dialog, [button = find<QPushButton>(*dialog, name)] {
                    QTest::mouseClick(button, Qt::LeftButton);
                });
            };
        };
        const auto choose = press("btnSource");
        const auto giveUp = [broken](QDialog *dialog) {
            const Closing closing(dialog);
            QVERIFY2(preview(dialog).contains(broken), qPrintable(preview(dialog)));
            QVERIFY(!okOf(dialog)->isEnabled());
            QTest::keyClick(dialog, Qt::Key_Escape);
        };
        {
            Hand looking({choose, Hand::file(broken), giveUp});
            trigger("actionAnimCopyFrom");
        }
        QCOMPARE(stack()->count(), 0);
        QCOMPARE(bytes(), m_before);

        Hand hand(
            {choose, Hand::file(other), press("btnSourceMesh"), Hand::file(otherMesh), [](QDialog *dialog) {
                 const Closing closing(dialog);
                 const auto *bones = find<QTreeWidget>(*dialog, "treeBones");
                 QVERIFY(bones->topLevelItemCount() > 0);
                 QCOMPARE(bones->topLevelItem(0)->text(0), bones->topLevelItem(0)->text(1));
                 QCOMPARE(find<QListWidget>(*dialog, "listBlocks")->count(), 1);
                 QTest::keyClick(okOf(dialog), Qt::Key_Space);
             }});
        trigger("actionAnimCopyFrom");
        const QString title = "Copy Animation from Another Skeleton";
        QCOMPARE(hand.seen,
                 QStringList({title, "Copy Animations of", title, "The Mesh of These Animations", title}));
        QCOMPARE(stack()->count(), 1);
        QCOMPARE(stack()->undoText(), QString("Copy from Another Skeleton"));
        QCOMPARE(int(blocks().size()), 4);
        QCOMPARE(int(blocks()[3].animId), 40);
        QCOMPARE(blocks()[3].nodes.size(), blocks()[0].nodes.size());
        stack()->undo();
        QCOMPARE(bytes(), m_before);
    }

    // Accepted before it is worked out, a command is done when it is; but with no other numbers than those.
    void longOnesAreWaitedFor()
    {
        AnimFile large;
        large.blocks.resize(1);
        AnimBlock &block = large.blocks[0];
        block.nodes.resize(60);
        block.setTranslationCount(60);
        block.setRotationCount(60);
        block.setFrameCount(1500);
        AnimDocument anim(DocumentType::Anim, RecordKind::AnimFile);
        SkinnedMeshDocument mesh(DocumentType::SkinnedMesh, RecordKind::SkinnedMesh);
        anim.take(large, "large");
        qputenv("KORVANE_PATIENCE", "0");
        MotionDialog dialog(MotionKind::Resample, anim, mesh, {0});
        typeNumber(find<IntSpinBox>(dialog, "sbFrames"), 20000);
        dialog.show();
        dialog.accept();
        auto *goal = find<QComboBox>(dialog, "cbResample");
        QTest::keyClick(goal, Qt::Key_Down);
        QTRY_VERIFY(preview(&dialog).contains("1500 → 20000"));
        QVERIFY(dialog.isVisible());
        QTest::keyClick(goal, Qt::Key_Up);
        dialog.accept();
        QVERIFY(dialog.isVisible());
        QTRY_COMPARE(dialog.result(), int(QDialog::Accepted));
        const auto changes = dialog.takeChanges();
        QCOMPARE(changes.at(0).block.frameCount(), 20000);
        qputenv("KORVANE_PATIENCE", "60000");
    }

private:
    static QPushButton *okOf(QDialog *dialog)
    {
        return find<QDialogButtonBox>(*dialog, "buttonBox")->button(QDialogButtonBox::Ok);
    }
    static QString preview(QDialog *dialog) { return find<MotionPreview>(*dialog, "preview")->toPlainText(); }
    QUndoStack *stack() const { return find<QUndoView>(*m_window, "viewHistory")->stack(); }
    void trigger(const char *action)
    {
        m_window->activateWindow();
        QVERIFY(find<QAction>(*m_window, action)->isEnabled());
        find<QAction>(*m_window, action)->trigger();
    }
    AnimDocument &document() const
    {
        auto *files = m_window->findChild<DocumentFiles *>();
        return dynamic_cast<AnimDocument &>(*files->document(DocumentType::Anim));
    }
    const std::vector<AnimBlock> &blocks() const { return document().model().blocks; }
    QByteArray bytes() const { return SampleModels::bytesOf(document().model()); }

    std::unique_ptr<ProgramFolder> m_folder;
    std::unique_ptr<ShownWindow> m_window;
    QString m_path;
    QByteArray m_before;
};

QTEST_MAIN(tst_AnimationCommands)
#include "tst_animationcommands.moc"
