// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ActionTrack.h"
#include "AnimCommands.h"
#include "AnimTrackFrame.h"
#include "DocumentFiles.h"
#include "FourActions.h"
#include "NameTables.h"
#include "PlayClock.h"
#include "Playback.h"

namespace {
/// A window with four actions on the timeline of 11 frames, two of them on one frame.
struct Timeline
{
    explicit Timeline(const TestFolder &files)
        : folder(files)
        , window({files.save("a.skinnedmesh", triangleMan()), files.save("a.anim", fourActions())})
        , track(find<ActionTrack>(window, "actionTrack"))
        , tree(find<KVTreeView>(window, "treeAnim"))
    {
        bytes = now();
    }

    QByteArray now() const
    {
        if (playback().anim->write(folder.path("now.anim")))
            qFatal("not written");
        return TestSupport::readFile(folder.path("now.anim"));
    }
    const AnimBlock &block() const { return playback().anim->blocks[0]; }
    /// As the animation commands do it.
    void exchangeBlock(int frames) const
    {
        auto *files = window.findChild<DocumentFiles *>();
        auto &document = dynamic_cast<AnimDocument &>(*files->document(DocumentType::Anim));
        AnimBlock made = block();
        made.setFrameCount(frames);
        document.undoStack()->push(new UC_AnimBlockMotion(document.editTarget(), {0, 0, 0},
                                                          WholeBlock(block(), std::move(made)), {}, {}));
    }
    /// The frames of the actions, then those of the handles.
    QString frames() const
    {
        QStringList texts;
        for (const AnimAction &action : block().actions)
            texts += QString::number(action.frame);
        return QStringLiteral("%1 | %2 %3 %4")
            .arg(texts.join(' '))
            .arg(block().loopFrame)
            .arg(block().blendStart)
            .arg(block().blendEnd);
    }

    QPoint mark(int action) const { return track->places().placeOf(action); }
    QPoint handle(TrackHandle which) const { return track->places().placeOf(which); }
    int x(int frame) const { return track->places().rulerPlace(frame).x(); }
    /// In the lanes, where no mark stands.
    QPoint lane(int frame) const { return {x(frame), track->places().lanes().bottom() - 1}; }
    void press(const QPoint &at, Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(track, Qt::LeftButton, keys, at);
    }
    void move(const QPoint &to, Qt::KeyboardModifiers keys = {})
    {
        QMouseEvent event(QEvent::MouseMove, to, track->mapToGlobal(to), Qt::NoButton, Qt::LeftButton, keys);
        QApplication::sendEvent(track, &event);
    }
    void drag(const QPoint &from, const QPoint &to, Qt::KeyboardModifiers keys = {})
    {
        press(from, keys);
        move((from + to) / 2, keys);
        move(to, keys);
        QTest::mouseRelease(track, Qt::LeftButton, keys, to);
    }
    void dragMark(int action, int to) { drag(mark(action), {x(to), mark(action).y()}); }
    void dragHandle(TrackHandle which, int to) { drag(handle(which), {x(to) + 2, handle(which).y()}); }
    void click(const QPoint &at, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(track, Qt::LeftButton, keys, at);
    }
    void key(int key, Qt::KeyboardModifiers keys = {})
    {
        track->setFocus();
        QTest::keyClick(track, Qt::Key(key), keys);
    }
    void show(int frame) { click({x(frame), 3}); }

    const TestFolder &folder;
    ShownWindow window;
    ActionTrack *track;
    KVTreeView *tree;
    QByteArray bytes;
};

using Gesture = void (*)(Timeline &);
} // namespace
Q_DECLARE_METATYPE(Gesture)

/// Key frame actions and the frames of a block, edited on the timeline by hand.
class tst_Timeline : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_files.emplace();
        Settings::AnimationAutoPlay.setValue(false);
    }

    void everyGestureIsOneStep_data()
    {
        QTest::addColumn<Gesture>("gesture");
        QTest::addColumn<QString>("frames");
        QTest::addColumn<QString>("step");
        QTest::addColumn<QVector<int>>("selected");
        const QString moved = "Key Frame Action Frame";
        const auto add = [](const char *name, Gesture gesture, const QString &frames, const QString &step,
                            const QVector<int> &selected) {
            QTest::newRow(name) << gesture << frames << step << selected;
        };
        const QString none = "2 5 5 9 | 65535 0 10";
        // Records keep their order.
        add("drag", [](Timeline &on) { on.dragMark(0, 7); }, "7 5 5 9 | 65535 0 10", moved, {0});
        add("drag past the end",
            [](Timeline &on) {
                on.drag(on.mark(1), {5000, on.mark(1).y()});
            },
            "2 10 5 9 | 65535 0 10", moved, {1});
        add("the second of a frame", [](Timeline &on) { on.dragMark(2, 4); }, "2 5 4 9 | 65535 0 10", moved,
            {2});
        add("with Ctrl",
            [](Timeline &on) {
                on.click(on.mark(0));
                on.click(on.mark(3), Qt::ControlModifier);
                on.dragMark(0, 8); // the other one stops them
            },
            "3 5 5 10 | 65535 0 10", moved, {0, 3});
        add("with Shift",
            [](Timeline &on) {
                on.click(on.mark(0));
                on.click(on.mark(2), Qt::ShiftModifier);
                on.dragMark(1, 3);
            },
            "0 3 3 9 | 65535 0 10", moved, {0, 1, 2});
        add("with a band",
            [](Timeline &on) {
                on.drag(QPoint(on.x(4), on.track->places().lanes().top()), on.lane(10));
                on.dragMark(3, 10);
            },
            "2 6 6 10 | 65535 0 10", moved, {1, 2, 3});
        add("what Ctrl takes out stays",
            [](Timeline &on) {
                on.key(Qt::Key_A, Qt::ControlModifier);
                on.drag(on.mark(3), {on.x(10), on.mark(3).y()}, Qt::ControlModifier);
            },
            none, {}, {0, 1, 2});
        add("a shaking click", [](Timeline &on) { on.drag(on.mark(0), on.mark(0) + QPoint(1, 1)); }, none, {},
            {0});
        add("keys while it is dragged",
            [](Timeline &on) {
                on.press(on.mark(0));
                on.move({on.x(5), on.mark(0).y()});
                on.key(Qt::Key_Down);
                on.key(Qt::Key_A, Qt::ControlModifier);
                on.key(Qt::Key_Delete);
                QTest::mouseRelease(on.track, Qt::LeftButton, {}, {on.x(5), on.mark(0).y()});
            },
            "5 5 5 9 | 65535 0 10", moved, {0});
        add("what a filter hides",
            [](Timeline &on) {
                on.tree->setFilter("rotations");
                on.dragMark(3, 8);
            },
            "2 5 5 8 | 65535 0 10", moved, {3});
        add("remove from another tree",
            [](Timeline &on) {
                on.click(on.mark(3));
                find<QTabWidget>(on.window, "tabTrees")->setCurrentIndex(0);
                on.show(1);
                on.key(Qt::Key_Delete);
            },
            "2 5 5 | 65535 0 10", "Remove Key Frame Action", {2});
        add("remove after the tree's menu",
            [](Timeline &on) {
                select(on.window, "treeAnim", {{RecordKind::AnimBlock, {0}}});
                emit on.tree->customContextMenuRequested({5, 5});
                QApplication::activePopupWidget()->close();
                on.click(on.mark(3));
                on.key(Qt::Key_Delete);
            },
            "2 5 5 | 65535 0 10", "Remove Key Frame Action", {2});
        add("keys",
            [](Timeline &on) {
                on.key(Qt::Key_Down);
                on.key(Qt::Key_Down);
                on.key(Qt::Key_Down);
                on.key(Qt::Key_Right, Qt::AltModifier);
            },
            "2 5 6 9 | 65535 0 10", moved, {2});
        add("loop frame", [](Timeline &on) { on.dragHandle(TrackHandle::LoopFrame, 3); }, "2 5 5 9 | 3 0 10",
            "Animation Loop Frame", {});
        add("blend start", [](Timeline &on) { on.dragHandle(TrackHandle::BlendStart, 2); },
            "2 5 5 9 | 65535 2 10", "Animation Blend Start", {});
        add("blend end", [](Timeline &on) { on.dragHandle(TrackHandle::BlendEnd, 6); }, "2 5 5 9 | 65535 0 6",
            "Animation Blend End", {});
        add("remove",
            [](Timeline &on) {
                on.click(on.mark(1));
                on.click(on.mark(3), Qt::ControlModifier);
                on.key(Qt::Key_Delete);
            },
            "2 5 | 65535 0 10", "Remove Key Frame Action", {1});
        // Behind the last one that comes before it.
        add("add",
            [](Timeline &on) {
                on.show(6);
                on.key(Qt::Key_Insert, Qt::AltModifier);
            },
            "2 5 5 6 9 | 65535 0 10", "Add Key Frame Action", {3});
        add("duplicate",
            [](Timeline &on) {
                on.click(on.mark(0));
                on.key(Qt::Key_D, Qt::ControlModifier);
            },
            "2 2 5 5 9 | 65535 0 10", "Duplicate", {1});
        add("copy and paste",
            [](Timeline &on) {
                on.drag(QPoint(on.x(1), on.track->places().lanes().top()), on.lane(6));
                on.key(Qt::Key_C, Qt::ControlModifier);
                on.show(8);
                on.key(Qt::Key_V, Qt::ControlModifier);
            },
            "2 5 5 8 10 10 9 | 65535 0 10", "Paste Key Frame Action", {3, 4, 5});
        add("cut",
            [](Timeline &on) {
                on.click(on.mark(3));
                on.key(Qt::Key_X, Qt::ControlModifier);
            },
            "2 5 5 | 65535 0 10", "Cut", {2});
        add("zoomed",
            [](Timeline &on) {
                const int before = on.x(6) - on.x(5);
                turnWheel(on.track, 120); // nothing, where all is seen
                QCOMPARE(on.x(6) - on.x(5), before);
                for (int i = 0; i < 4; ++i)
                    turnWheel(on.track, 120, Qt::ControlModifier);
                QVERIFY(on.x(6) - on.x(5) > before);
                on.dragMark(1, 6);
                on.dragMark(1, 5);
                find<QAction>(on.window, "actionUndo")->trigger();
            },
            "2 6 5 9 | 65535 0 10", moved, {1});
    }

    void everyGestureIsOneStep()
    {
        QFETCH(Gesture, gesture);
        QFETCH(QString, frames);
        QFETCH(QString, step);
        QFETCH(QVector<int>, selected);
        Timeline on(*m_files);
        gesture(on);
        if (QTest::currentTestFailed())
            return;
        QCOMPARE(on.frames(), frames);
        QCOMPARE(on.track->selection().actions(), selected);
        // What is selected there is what the tree edits, after undo, too.
        const auto inTree = [&on] {
            QVector<int> actions;
            for (const RecordIndex &record : on.tree->selectedRecords(RecordKind::AnimAction))
                actions += record[1];
            return actions;
        };
        QCOMPARE(inTree(), selected);

        QAction *undo = find<QAction>(on.window, "actionUndo");
        QCOMPARE(undo->isEnabled(), !step.isEmpty());
        if (!step.isEmpty()) {
            QVERIFY2(undo->text().contains(step), qPrintable(undo->text()));
            const QByteArray after = on.now();
            undo->trigger();
            QCOMPARE(on.now(), on.bytes);
            QCOMPARE(on.track->selection().actions(), inTree());
            find<QAction>(on.window, "actionRedo")->trigger();
            QCOMPARE(on.now(), after);
        }
    }

    void theMenuAddsWhatIsChosen()
    {
        Timeline on(*m_files);
        const QPoint at = on.lane(7);
        QTest::mousePress(on.track, Qt::RightButton, {}, at);
        QContextMenuEvent menu(QContextMenuEvent::Mouse, at, on.track->mapToGlobal(at));
        QApplication::sendEvent(on.track, &menu);
        auto *shown = qobject_cast<QMenu *>(QApplication::activePopupWidget());
        QVERIFY(shown);
        const QList<QAction *> actions = shown->actions();
        QCOMPARE(actions[0]->text(), QString("Add Key Frame Action at Frame 7"));
        for (QAction *kind : actions[1]->menu()->actions()) {
            if (kind->text() == eventTypeNames()[30])
                kind->trigger();
        }
        shown->close();
        QCOMPARE(on.frames(), QString("2 5 5 7 9 | 65535 0 10"));
        QCOMPARE(int(on.block().actions[3].eventType), 30);
        // The tree's own Add begins at the first frame; the one beside it at the frame that is shown.
        on.tree->setFocus();
        QTest::keyClick(on.tree, Qt::Key_Insert);
        QCOMPARE(on.frames(), QString("2 5 5 7 0 9 | 65535 0 10"));
        QTest::keyClick(on.tree, Qt::Key_Insert, Qt::AltModifier);
        QCOMPARE(on.frames(), QString("2 5 5 7 0 7 9 | 65535 0 10"));
    }

    void framesAreSelectedAndPlayed()
    {
        Timeline on(*m_files);
        on.drag({on.x(3), 3}, {on.x(6), 3}, Qt::ShiftModifier);
        QCOMPARE(on.frames(), QString("2 5 5 9 | 65535 0 10"));
        QVERIFY(on.track->hasRange());
        Playback state = playback();
        state.playState = PlayState::Playing;
        state.time = 0.0f;
        // Ten frames a second.
        const float expected[] = {0.3f, 0.4f, 0.5f, 0.3f};
        for (const float time : expected) {
            advanceClock(state, 0.1001f);
            QVERIFY2(std::abs(state.time - time) < 0.001f, qPrintable(QString::number(double(state.time))));
        }
        // Who gives another one up has that one.
        on.press({on.x(7), 3}, Qt::ShiftModifier);
        on.move({on.x(9), 3}, Qt::ShiftModifier);
        QCOMPARE(playback().range.first, 7);
        on.key(Qt::Key_Escape);
        QCOMPARE(playback().range.first, 3);
        QTest::mouseRelease(on.track, Qt::LeftButton, {}, {on.x(9), 3});
        on.key(Qt::Key_Escape);
        QVERIFY(!on.track->hasRange() && playback().range.isEmpty());
        // Of other frames nothing is kept.
        const auto selectSome = [&on] { on.drag({on.x(3), 3}, {on.x(6), 3}, Qt::ShiftModifier); };
        selectSome();
        on.click(on.mark(0));
        on.key(Qt::Key_Delete);
        QVERIFY(on.track->hasRange());
        on.exchangeBlock(11);
        QVERIFY(!on.track->hasRange() && playback().range.isEmpty());
        selectSome();
        find<QAction>(on.window, "actionUndo")->trigger();
        QVERIFY(!on.track->hasRange() && playback().range.isEmpty());
        selectSome();
        auto *blocks = find<QComboBox>(on.window, "cbAnimTrackBlock");
        blocks->setFocus();
        QTest::keyClick(blocks, Qt::Key_Down);
        QVERIFY(!on.track->hasRange() && playback().range.isEmpty());
        QVERIFY(on.track->places().marks().marks().isEmpty());
    }

    void whatIsGivenUpGoesBackToWhereItWas()
    {
        Timeline on(*m_files);
        // What showed no other frame has nothing to go back to: meanwhile it plays on.
        const QPoint ruler(on.x(3), 3), band(on.x(4), on.track->places().lanes().top());
        const std::pair<QPoint, Qt::KeyboardModifiers> drags[] = {
            {ruler, Qt::ShiftModifier}, {band, {}}, {on.handle(TrackHandle::BlendEnd), {}}};
        for (const auto &[from, keys] : drags) {
            playback().playState = PlayState::Playing;
            on.press(from, keys);
            on.move(from - QPoint(30, 0), keys);
            playback().time = 0.5f;
            on.track->setFrame(5);
            on.key(Qt::Key_Escape);
            QVERIFY(playback().playState == PlayState::Playing && playback().time >= 0.5f);
            QTest::mouseRelease(on.track, Qt::LeftButton, keys, from);
        }
        for (const PlayState state : {PlayState::InitialPose, PlayState::Paused, PlayState::Playing}) {
            for (const QPoint &from : {ruler, on.mark(0)}) {
                playback().playState = state;
                playback().time = 0.0f;
                on.track->setFrame(0);
                on.press(from);
                on.move({on.x(7), from.y()});
                QVERIFY(playback().playState == PlayState::Paused && on.track->frame() == 7);
                on.key(Qt::Key_Escape);
                QVERIFY(playback().playState == state && on.track->frame() == 0);
                QTest::mouseRelease(on.track, Qt::LeftButton, {}, {on.x(7), from.y()});
            }
        }
        QCOMPARE(on.now(), on.bytes);
    }

    void itStandsOnAFrameThatThereIs()
    {
        Timeline on(*m_files);
        on.show(8);
        QCOMPARE(on.track->frame(), 8);
        find<QToolButton>(on.window, "btnAnimTrackPose")->click();
        QCOMPARE(on.track->frame(), 0);
        on.show(8);
        on.exchangeBlock(5);
        QCOMPARE(on.track->frame(), 4);
        on.key(Qt::Key_Insert, Qt::AltModifier);
        QCOMPARE(on.frames(), QString("2 4 5 5 9 | 65535 0 10"));
    }

    void manyActionsHaveLanes()
    {
        AnimFile file = twoBlocks();
        file.blocks[0].setFrameCount(2000);
        for (int i = 0; i < 400; ++i)
            file.blocks[0].actions.emplace_back().frame = quint16(i * 5);
        ShownWindow window({m_files->save("a.skinnedmesh", triangleMan()), m_files->save("a.anim", file)});
        auto *track = find<ActionTrack>(window, "actionTrack");
        QCOMPARE(track->places().marks().laneCount(), TrackMarks::MostLanes);
        const int height = track->height();
        for (int i = 0; i < 60; ++i)
            turnWheel(track, 120, Qt::ControlModifier);
        // As far apart as it goes, each mark has a lane's room; the track stays as high, but for what
        // scrolls.
        QCOMPARE(track->places().marks().laneCount(), 1);
        QTRY_COMPARE(track->height(), height + TrackLayout::ScrollHeight + 1);
        auto *scroll = track->findChild<QScrollBar *>();
        QVERIFY(scroll->isVisible() && scroll->maximum() > 10 * scroll->pageStep());
        const int first = track->places().scale().frameAt(track->places().gutter());
        turnWheel(track, -120);
        QVERIFY(track->places().scale().frameAt(track->places().gutter()) > first);
        // Another file has the height that it needs.
        window.openFiles({m_files->save("b.anim", twoBlocks())});
        QTRY_VERIFY(track->height() < height);
    }

    void framesThatNoActionCanName()
    {
        AnimFile file = twoBlocks();
        file.blocks[0].setFrameCount(70000);
        file.blocks[0].actions.emplace_back().frame = 65000;
        ShownWindow window({m_files->save("a.skinnedmesh", triangleMan()), m_files->save("a.anim", file)});
        auto *track = find<ActionTrack>(window, "actionTrack");
        const auto &actions = playback().anim->blocks[0].actions;
        track->setFocus();
        QTest::keyClick(track, Qt::Key_End);
        QTest::keyClick(track, Qt::Key_Insert, Qt::AltModifier);
        QCOMPARE(int(actions.size()), 1);
        QVERIFY(window.statusBar()->currentMessage().contains("65535"));
        const QPoint mark = track->places().placeOf(0), end(5000, mark.y());
        QTest::mousePress(track, Qt::LeftButton, {}, mark);
        QMouseEvent move(QEvent::MouseMove, end, track->mapToGlobal(end), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(track, &move);
        QTest::mouseRelease(track, Qt::LeftButton, {}, end);
        QCOMPARE(int(actions[0].frame), 65535);
    }

    void realActionsAreDragged()
    {
        const QString file = TestSupport::shared("gamedata/game/anims/knight/knight.anim");
        if (file.isEmpty())
            QSKIP("no real models");
        ShownWindow window({TestSupport::shared("gamedata/game/models/knight/knight.skinnedmesh"), file});
        auto *timeline = find<AnimTrackFrame>(window, "animTrackFrame");
        auto *track = find<ActionTrack>(window, "actionTrack");
        const QByteArray before = TestSupport::readFile(file);
        int dragged = 0;
        for (int number = 0; number < int(playback().anim->blocks.size()); ++number) {
            const AnimBlock &block = playback().anim->blocks[size_t(number)];
            timeline->selectBlock(number);
            for (int action = 0; action < int(block.actions.size()); ++action) {
                const int frame = block.actions[size_t(action)].frame;
                const int target = frame > 0 ? frame - 1 : 1;
                const QPoint from = track->places().placeOf(action);
                const QPoint to(track->places().rulerPlace(target).x(), from.y());
                QTest::mousePress(track, Qt::LeftButton, {}, from);
                QMouseEvent move(QEvent::MouseMove, to, track->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
                                 {});
                QApplication::sendEvent(track, &move);
                QTest::mouseRelease(track, Qt::LeftButton, {}, to);
                QCOMPARE(int(block.actions[size_t(action)].frame), target);
                ++dragged;
            }
        }
        QCOMPARE(dragged, 10);
        for (int i = 0; i < dragged; ++i)
            find<QAction>(window, "actionUndo")->trigger();
        QVERIFY(!playback().anim->write(m_files->path("again.anim")));
        QCOMPARE(TestSupport::readFile(m_files->path("again.anim")), before);
    }

private:
    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_Timeline)
#include "tst_timeline.moc"
