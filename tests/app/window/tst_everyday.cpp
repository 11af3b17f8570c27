// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandPalette.h"
#include "FloatSpinBox.h"
#include "Hand.h"
#include "IndexHint.h"
#include "KVOpenGLWidget.h"
#include "NameTables.h"
#include "PlayClock.h"
#include "Playback.h"
#include "RecentFiles.h"
#include "ReferenceTable.h"
#include "SampleModels.h"
#include "TrackSlider.h"

/// What a window that is open all day offers beside its documents.
class tst_Everyday : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_files.emplace(); }

    void aSampleIsDrawnWithItsTextures()
    {
        const QString samples = TestSupport::source("samples");
        Settings::GamePath.setValue(samples + "/game");
        Settings::OutputDir.setValue(samples + "/mod");
        Settings::AnimationAutoPlay.setValue(false);
        ShownWindow window({samples + "/game/models/tinker/tinker.skinnedmesh"});
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        QTest::keyClick(view, Qt::Key_Home);
        const auto colours = [view] {
            const QImage picture = view->grabFramebuffer();
            const QRect middle(picture.width() / 3, picture.height() / 3, picture.width() / 3,
                               picture.height() / 3);
            QSet<QRgb> found;
            for (int y = middle.top(); y <= middle.bottom(); ++y) {
                for (int x = middle.left(); x <= middle.right(); ++x)
                    found.insert(picture.pixel(x, y));
            }
            return found.size();
        };
        QTRY_VERIFY(colours() > 100);
        window.openFiles({write("plain.skinnedmesh")}); // of one colour
        QTRY_VERIFY(colours() < 50 && colours() > 1);
    }

    void commandsAreFoundByTheirName()
    {
        // What is typed, what fits it, and what fits it worse; without that the first does not fit at all.
        const char *const all[][3] = {
            {"save", "File ▸ Save", "View ▸ Sampled Average"},   // together before apart
            {"sa", "File ▸ Save All", "Tools ▸ Increase Gamma"}, // the beginnings of words
            {"FI sa", "File ▸ Save", "Off ▸ Lists ▸ Data"},      // in any case, blanks between words
            {"ave as", "File ▸ Save As", "File ▸ Average Xs"},   // a word's middle before its beginning
            {"evas", "File ▸ Save", nullptr},
            {"Save As Well", "File ▸ Save As", nullptr},
        };
        const auto fit = [](const char *typed, const char *command) {
            return CommandPalette::fit(QString::fromUtf8(typed), QString::fromUtf8(command));
        };
        for (const auto &[typed, better, worse] : all) {
            QVERIFY2(worse ? fit(typed, better) > fit(typed, worse) : fit(typed, better) < 0, typed);
            QVERIFY2(fit("", better) >= 0, better);
        }
    }

    void thePaletteDoesWhatIsChosen()
    {
        ShownWindow window;
        auto *history = find<QDockWidget>(window, "dockHistory");
        QVERIFY(!history->isVisible());
        const auto choose = [](const QString &typed) {
            return [typed](QDialog *dialog) {
                auto *line = dialog->findChild<QLineEdit *>();
                QTest::keyClicks(line, typed);
                QTest::keyClick(line, Qt::Key_Return);
            };
        };
        // What cannot be done now is listed, but not done. Each command is told from all others, one of the
        // View menu even without its menu.
        const Hand hand({[](QDialog *dialog) {
                             QStringList names, commands;
                             auto *list = dialog->findChild<QListWidget *>();
                             for (int row = 0; row < list->count(); ++row) {
                                 names << list->item(row)->text();
                                 commands << names.last().section(QStringLiteral("▸"), -1);
                             }
                             QCOMPARE(QStringList(names).removeDuplicates(), 0);
                             const QStringList ofView = names.filter(QStringLiteral("View ▸"));
                             QVERIFY(ofView.size() > 20);
                             for (const QString &name : ofView)
                                 QVERIFY2(commands.count(name.section(QStringLiteral("▸"), -1)) == 1,
                                          qPrintable(name));
                             auto *line = dialog->findChild<QLineEdit *>();
                             QTest::keyClicks(line, QStringLiteral("rotate"));
                             QVERIFY(list->count() > 0);
                             QTest::keyClick(line, Qt::Key_Return);
                             QVERIFY(dialog->isVisible());
                             QTest::keyClick(line, Qt::Key_Escape);
                         },
                         choose(QStringLiteral("history")), choose(QStringLiteral("timeline loop"))});
        QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(&window, Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier);
        QTRY_VERIFY(history->isVisible());
        // Of no menu.
        const auto *loop = find<QToolButton>(window, "btnAnimTrackLoop");
        const bool loops = loop->isChecked();
        find<QAction>(window, "actionCommands")->trigger();
        QTRY_COMPARE(loop->isChecked(), !loops);
        QCOMPARE(hand.seen.size(), 3);
    }

    void recentFilesAreOpenedAgain()
    {
        QStringList paths;
        for (int i = 0; i <= RecentFiles::Limit; ++i)
            paths << write(QStringLiteral("r&d %1.skinnedmesh").arg(i));
        {
            MainWindow window;
            QMenu *menu = find<QMenu>(window, "menuRecent");
            QCOMPARE(filled(menu).size(), 1);
            QVERIFY(!filled(menu).first()->isEnabled());
            for (const QString &path : qAsConst(paths))
                window.openFiles({path});
            window.openFiles({paths[4]});
        }
        QVERIFY(QFile::remove(paths.last()));
        MainWindow window;
        const QList<QAction *> actions = filled(find<QMenu>(window, "menuRecent"));
        // A heading, the files, a line, the command that clears the list.
        QCOMPARE(actions.size(), RecentFiles::Limit + 3);
        QCOMPARE(actions[1]->toolTip(), QDir::toNativeSeparators(paths[4]));
        QCOMPARE(actions[2]->toolTip(), QDir::toNativeSeparators(paths.last()));
        QVERIFY(actions[1]->text().endsWith(QStringLiteral("r&&d 4.skinnedmesh")));
        QVERIFY(!actions[2]->isEnabled());
        actions[3]->trigger();
        QCOMPARE(find<QTreeWidget>(window, "treeSkinnedMesh")->topLevelItem(0)->text(0),
                 QFileInfo(paths[RecentFiles::Limit - 1]).fileName());
        // Each kind has its own list.
        const QString anim = m_files->save("r.anim", twoBlocks());
        const QString rigid = m_files->save("r.staticmesh", SampleModels::plainStatic());
        window.openFiles({anim, rigid});
        QCOMPARE(Settings::AnimationRecentFiles.value(), QStringList(anim));
        QCOMPARE(Settings::StaticMeshRecentFiles.value(), QStringList(rigid));
        QCOMPARE(filled(find<QMenu>(window, "menuRecent")).size(), actions.size() + 4);
        filled(find<QMenu>(window, "menuRecent")).last()->trigger();
        QCOMPARE(filled(find<QMenu>(window, "menuRecent")).size(), 1);
    }

    void theKeyGoesToTheFilterOfTheTree()
    {
        ShownWindow window({write("a.skinnedmesh"), m_files->save("a.anim", twoBlocks())});
        for (const char *name : {"treeSkinnedMesh", "treeAnim"}) {
            auto *tree = find<KVTreeView>(window, name);
            tree->setFocus();
            QTest::keyClick(tree, Qt::Key_F, Qt::ControlModifier);
            auto *line = find<QLineEdit>(window, (QByteArray(name) + "Filter").constData());
            QCOMPARE(QApplication::focusWidget(), line);
            QTest::keyClick(line, Qt::Key_Escape);
            QCOMPARE(QApplication::focusWidget(), tree);
            find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
        }
    }

    void historyShowsWhatWasSaved()
    {
        ShownWindow window({write(QStringLiteral("a.skinnedmesh"))});
        auto *view = find<QUndoView>(window, "viewHistory");
        QCOMPARE(view->model()->rowCount(), 1);
        auto *factor = find<IntSpinBox>(window, "sbSMHTFactor");
        typeNumber(factor, 3);
        typeNumber(factor, 5);
        QVERIFY(view->model()->rowCount() > 1);
        find<QAction>(window, "actionSave")->trigger();
        const QModelIndex last = view->model()->index(view->model()->rowCount() - 1, 0);
        QVERIFY(!last.data(Qt::DecorationRole).isNull());
        QUndoStack *stack = view->group()->activeStack();
        find<QDockWidget>(window, "dockHistory")->show();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                          view->visualRect(view->model()->index(0, 0)).center());
        QTRY_COMPARE(stack->index(), 0);
        QVERIFY(factor->value() != 5);
        // What is done before the view's turn comes is not taken back.
        stack->redo();
        stack->redo();
        stack->undo();
        const int index = stack->index();
        QTest::qWait(10);
        QCOMPARE(stack->index(), index);
        QCOMPARE(view->currentIndex().row(), index);
    }

    // As when the window manager takes the full screen.
    void fullScreenIsLeftWhoeverTookIt()
    {
        ShownWindow window;
        window.showFullScreen();
        QVERIFY(find<QAction>(window, "actionFullScreen")->isChecked());
        QTest::keyClick(&window, Qt::Key_F11);
        QVERIFY(!window.isFullScreen() && !find<QAction>(window, "actionFullScreen")->isChecked());
    }

    void theTrackIsSteppedAndMarked()
    {
        AnimFile file = twoBlocks();
        file.blocks[0].actions.resize(4);
        const int frames[] = {7, 2, 7, 50};
        for (size_t i = 0; i < 4; ++i)
            file.blocks[0].actions[i].frame = quint16(frames[i]);
        file.blocks[0].actions[1].eventType = 30;
        file.blocks[0].animId = 100;
        Settings::AnimationAutoPlay.setValue(false);
        ShownWindow window({write("a.skinnedmesh"), m_files->save("a.anim", file)});
        auto *slider = find<TrackSlider>(window, "sliderAnimTrack");
        auto *view = find<QWidget>(window, "viewSkinned");
        view->setFocus();

        const auto press = [&](char key) { QTest::keyClick(view, key); };
        press(']');
        QCOMPARE(slider->value(), 2);
        QCOMPARE(playback().playState, PlayState::Paused);
        QCOMPARE(playback().time, 0.2f);
        press(']');
        press('.');
        QCOMPARE(slider->value(), 8);
        press(']');
        QCOMPARE(slider->value(), 8);
        press(',');
        press('[');
        QCOMPARE(slider->value(), 2);
        // What is on is seen.
        for (const auto &[state, name] : {std::pair(PlayState::Playing, "btnAnimTrackPlay"),
                                          std::pair(PlayState::Paused, "btnAnimTrackStop")}) {
            QVERIFY(!find<QToolButton>(window, name)->isChecked());
            press(' ');
            QCOMPARE(playback().playState, state);
            QVERIFY(find<QToolButton>(window, name)->isChecked());
        }

        // A hand at the slider pauses what plays, and shows a frame instead of the initial pose.
        for (const PlayState before : {PlayState::InitialPose, PlayState::Playing}) {
            playback().playState = before;
            QTest::mousePress(slider, Qt::LeftButton, {}, {slider->xOf(6), slider->height() / 2});
            QCOMPARE(playback().playState, PlayState::Paused);
            QCOMPARE(playback().time, 0.6f);
            const QPoint end(slider->xOf(4), slider->height() / 2);
            QMouseEvent move(QEvent::MouseMove, end, slider->mapToGlobal(end), Qt::NoButton, Qt::LeftButton,
                             {});
            QApplication::sendEvent(slider, &move);
            QTest::mouseRelease(slider, Qt::LeftButton, {}, end);
            QCOMPARE(playback().time, 0.4f);
            playback().playState = before;
            QTest::mouseClick(slider, Qt::LeftButton, {}, end); // the handle
            QVERIFY(playback().playState == PlayState::Paused && playback().time == 0.4f);
            playback().playState = before;
            QTest::keyClick(slider, Qt::Key_Right);
            QVERIFY(playback().playState == PlayState::Paused && playback().time == 0.5f);
            // Frames are farther apart than the handle is wide: one beside it is the one nearest to the
            // mouse, whichever was shown, and follows it.
            const int beside = slider->xOf(6) + (slider->xOf(7) - slider->xOf(6)) * 4 / 10;
            for (const int shown : {6, 2}) {
                slider->setValue(shown);
                playback().playState = before;
                playback().time = 0.0f;
                QTest::mousePress(slider, Qt::LeftButton, {}, {beside, slider->height() / 2});
                QVERIFY(playback().playState == PlayState::Paused && playback().time == 0.6f);
                QApplication::sendEvent(slider, &move);
                QTest::mouseRelease(slider, Qt::LeftButton, {}, end);
                QCOMPARE(playback().time, 0.4f);
            }
        }

        auto *speed = find<FloatSpinBox>(window, "sbAnimTrackSpeed");
        speed->selectAll();
        QTest::keyClicks(speed, QStringLiteral("2.5\r"));
        Playback state = playback();
        state.playState = PlayState::Playing;
        state.time = 0.0f;
        advanceClock(state, 0.1f);
        QCOMPARE(state.time, 0.25f);

        auto *tree = find<KVTreeView>(window, "treeAnim");
        // One action of the frame, the other one, and round again.
        for (const int action : {0, 2, 0}) {
            QTest::mouseDClick(slider, Qt::LeftButton, {}, {slider->xOf(7), slider->height() / 2});
            QCOMPARE(tree->currentRecord(), (RecordRef{RecordKind::AnimAction, {0, action}}));
        }
        const QPoint mark(slider->xOf(2), slider->height() / 2);
        QHelpEvent help(QEvent::ToolTip, mark, slider->mapToGlobal(mark));
        QApplication::sendEvent(slider, &help);
        QVERIFY2(QToolTip::text().startsWith(QString("Frame 2\nAction 1: ") + eventTypeNames().value(30)),
                 qPrintable(QToolTip::text()));

        auto *blocks = find<QComboBox>(window, "cbAnimTrackBlock");
        QCOMPARE(blocks->count(), 2);
        QCOMPARE(blocks->itemText(0), QStringLiteral("0: Unnamed animation 100"));
        // Another one plays, and whatever is edited stays in front.
        auto *trees = find<QTabWidget>(window, "tabTrees");
        const RecordRef edited = tree->currentRecord();
        trees->setCurrentIndex(0);
        const QString title = window.windowTitle();
        blocks->setFocus();
        QTest::keyClick(blocks, Qt::Key_Down);
        QCOMPARE(playback().blockIndex, 1);
        QVERIFY(trees->currentIndex() == 0 && window.windowTitle() == title);
        QCOMPARE(tree->currentRecord(), edited);
        QVERIFY(!find<QToolButton>(window, "btnAnimTrackMarkBack")->isEnabled());
    }

    void namesAreTheMeshs()
    {
        AnimFile moves = twoBlocks();
        moves.blocks[1].animId = 7;
        for (AnimBlock &block : moves.blocks)
            block.nodes[1].initialPosition = {0, 0, 150};
        m_files->put("man.names.json", R"({"bones": {"1": "head"}})");
        ShownWindow window({write("man.skinnedmesh"), m_files->save("man.anim", moves)});
        find<QTabWidget>(window, "tabTrees")->setCurrentIndex(1);
        select(window, "treeAnim", {{RecordKind::AnimBlock, {1}}});
        auto *name = find<QLineEdit>(window, "txtAnimName");
        const auto press = [&name](Qt::Key key) { QTest::keyClick(name, key, Qt::ControlModifier); };
        const auto *blocks = find<QComboBox>(window, "cbAnimTrackBlock");
        name->setFocus();
        QTest::keyClicks(name, QStringLiteral("walk\r"));
        QCOMPARE(blocks->itemText(1), QString("1: walk"));
        QVERIFY(window.statusBar()->currentMessage().contains("man.skinnedmesh"));
        press(Qt::Key_Z);
        QCOMPARE(name->text() + blocks->itemText(1), QString("1: Unnamed animation 7"));
        press(Qt::Key_Y);
        QCOMPARE(name->text(), QString("walk"));
        // What other fields of the page did is the animation's.
        auto *loop = find<IntSpinBox>(window, "sbAnimLoopFrame");
        const int before = loop->value();
        typeNumber(loop, 3);
        QTest::keyClick(loop, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(loop->value(), before);
        QCOMPARE(name->text(), QString("walk"));
        // So is the history, wherever the keys are.
        typeNumber(loop, 3);
        // In the field of a name undo is about names alone, also when there is none left.
        name->setFocus();
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(name, Qt::Key_Z, Qt::ControlModifier);
        QVERIFY(name->text().isEmpty());
        QCOMPARE(loop->value(), 3);
        QTest::keyClick(name, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(name->text(), QString("walk"));
        find<QDockWidget>(window, "dockHistory")->show();
        auto *history = find<QUndoView>(window, "viewHistory");
        QTest::mouseClick(name, Qt::LeftButton);
        QCOMPARE(history->model()->rowCount(), 2);
        QTest::mouseClick(history->viewport(), Qt::LeftButton, {},
                          history->visualRect(history->model()->index(0, 0)).center());
        QTRY_COMPARE(loop->value(), before);
        QCOMPARE(name->text(), QString("walk"));
        find<QAction>(window, "actionSaveAll")->trigger();
        QVERIFY(TestSupport::readFile(m_files->path("man.names.json")).contains(R"("7":"walk")"));
        // What is typed there is not lost with the mesh.
        name->setFocus();
        name->selectAll();
        QTest::keyClicks(name, QStringLiteral("run"));
        const Hand hand({Hand::press(QMessageBox::Cancel)});
        window.openFiles({write("other.skinnedmesh")});
        QVERIFY(hand.seen.size() == 1 && hand.seen[0].contains("man.skinnedmesh"));
        QCOMPARE(blocks->itemText(1), QString("1: run"));

        // A bone is called by both names under the mouse.
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        view->setShowSkeleton(true);
        view->grabFramebuffer();
        QSet<QString> tips;
        for (QPoint at(view->width() / 2, 0); at.y() < view->height(); at.ry() += 3) {
            QMouseEvent move(QEvent::MouseMove, at, view->mapToGlobal(at), Qt::NoButton, Qt::NoButton, {});
            QApplication::sendEvent(view, &move);
            tips += QToolTip::text();
        }
        QVERIFY2(tips.contains("1: Left Root (head)"), qPrintable(tips.values().join('|')));
    }

    void aBoneIsPickedInTheView()
    {
        SkinnedMesh mesh = triangleMan();
        mesh.hotPoints.resize(2);
        mesh.hotPoints[0].nodeId = 1;
        ShownWindow window({m_files->save("man.skinnedmesh", mesh)});
        const RecordRef hotPoint{RecordKind::HotPoint, {0}};
        select(window, "treeSkinnedMesh", {hotPoint});
        const auto *tree = find<KVTreeView>(window, "treeSkinnedMesh");
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        view->setShowHotPoints(true); // which lie over the bones
        auto *pick = find<QToolButton>(window, "btnPickHPNodeID");
        auto *bone = find<IntSpinBox>(window, "sbHPNodeID");
        const auto *hint = find<IndexHint>(window, "hintHPNodeID");
        const auto waits = [&] {
            return pick->isChecked() && hint->text() == "click a bone" &&
                   view->cursor().shape() == Qt::CrossCursor;
        };
        auto *step = find<QAction>(window, "actionUndo");

        // A click on no bone changes nothing, neither does giving up: with Esc, or on another page.
        QTest::mouseClick(pick, Qt::LeftButton);
        QVERIFY(waits());
        QTest::mouseClick(view, Qt::LeftButton, {}, {3, 3});
        QVERIFY(waits() && tree->currentRecord() == hotPoint);
        QTest::keyClick(view, Qt::Key_Escape);
        QVERIFY(!pick->isChecked() && view->cursor().shape() == Qt::ArrowCursor);
        QCOMPARE(hint->text(), QString("1: Left Root"));
        QTest::mouseClick(pick, Qt::LeftButton);
        select(window, "treeSkinnedMesh", {{RecordKind::HotPoint, {1}}});
        QVERIFY(!waits() && !step->isEnabled());
        select(window, "treeSkinnedMesh", {hotPoint});

        bone->setFocus();
        QTest::keyClick(bone, Qt::Key_F2, Qt::ShiftModifier);
        QVERIFY(waits());
        view->grabFramebuffer();
        for (QPoint at(view->width() / 2, 0); waits() && at.y() < view->height(); at.ry() += 3)
            QTest::mouseClick(view, Qt::LeftButton, {}, at);
        QVERIFY(!pick->isChecked() && step->isEnabled());
        QCOMPARE(bone->value(), 0);
        QCOMPARE(hint->text(), QString("0: Left Root"));
        QVERIFY(bone->hasFocus() && tree->currentRecord() == hotPoint);
        step->trigger();
        QCOMPARE(bone->value(), 1);
    }

    void numbersAreCalledTheSameEverywhere()
    {
        AnimFile anim = twoBlocks();
        anim.blocks[1].animId = 7;
        ShownWindow window({m_files->save("man.anim", anim)});
        select(window, "treeAnim", {{RecordKind::AnimBlock, {1}}});
        const auto *blocks = find<QComboBox>(window, "cbAnimTrackBlock");
        const auto *hint = find<IndexHint>(window, "hintAnimAnimID");
        const auto shown = [&] { return QStringList{blocks->itemText(1), hint->text()}; };
        auto *again = find<QPushButton>(window, "btnDBReload");
        again->click();
        QCOMPARE(shown(), QStringList({"1: Unnamed animation 7", "Unnamed animation 7"}));

        // A table of one's own, with tabs and a number twice: the first row, or what is sorted to the top.
        const QString own = referenceOverrideFolder() + "/animations.txt";
        QVERIFY(QDir().mkpath(referenceOverrideFolder()));
        QVERIFY(TestSupport::writeFile(own, "7\tWalk\n7 Run\n"));
        again->click();
        QCOMPARE(shown(), QStringList({"1: Walk", "Walk"}));
        find<QTableWidget>(window, "tableDBAnimations")->sortByColumn(1, Qt::AscendingOrder);
        QCOMPARE(shown(), QStringList({"1: Run", "Run"}));
        // The model's own names come first.
        m_files->put("man.names.json", R"({"animations": {"7": "stroll"}})");
        window.openFiles({m_files->save("man.skinnedmesh", triangleMan())});
        QCOMPARE(shown(), QStringList({"1: stroll", "stroll"}));
        QVERIFY(QFile::remove(m_files->path("man.names.json")));
        window.openFiles({m_files->path("man.skinnedmesh")});
        QCOMPARE(shown(), QStringList({"1: Run", "Run"}));
        // One that cannot be read is left alone by all.
        QVERIFY(QFile::remove(own) && QDir().mkpath(own));
        again->click();
        QCOMPARE(shown(), QStringList({"1: Unnamed animation 7", "Unnamed animation 7"}));
        QVERIFY(consoleOf(window).contains("Unable to read database file at " + own));
        QVERIFY(QDir().rmdir(own));
        again->click();
    }

private:
    /// The actions of a menu as it comes up.
    static QList<QAction *> filled(QMenu *menu)
    {
        emit menu->aboutToShow();
        return menu->actions();
    }
    QString write(const QString &name) { return m_files->save(name, triangleMan()); }

    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_Everyday)
#include "tst_everyday.moc"
