// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ActionTrack.h"
#include "AnimTrackFrame.h"
#include "EventArguments.h"
#include "FourActions.h"
#include "FrameChoice.h"
#include "KVOpenGLWidget.h"
#include "MarkedEvents.h"
#include "NameTables.h"
#include "PlayClock.h"
#include "Playback.h"

#include <set>

/// Events as they are seen in the view and heard.
class tst_Events : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_files.emplace();
        Settings::AnimationAutoPlay.setValue(false);
    }

    void eventsAreMarkedInTheView()
    {
        AnimFile file = fourActions();
        file.blocks[0].actions[1].args = {60.0f, 16384.0f};
        file.blocks[0].actions[0].args[0] = 10.0f;
        ShownWindow window({m_files->save("a.skinnedmesh", triangleMan()), m_files->save("a.anim", file)});
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        auto *track = find<ActionTrack>(window, "actionTrack");
        const auto show = [&](int frame) {
            QTest::mouseClick(track, Qt::LeftButton, {}, track->places().rulerPlace(frame));
            view->playbackChanged();
            return view->grabFramebuffer();
        };
        const auto words = [&] {
            QStringList texts;
            for (const QLabel *label : view->findChildren<QLabel *>("lblEventWords")) {
                if (label->isVisible())
                    texts += label->text();
            }
            return texts;
        };
        const QColor damage("#ff3b30"), selected("#ff8c00");
        const QImage plain = show(5);
        QVERIFY(words().isEmpty() && countPixels(plain, damage) == 0);

        find<QAction>(window, "actionEvents")->trigger();
        QVERIFY(Settings::ShowEvents.value());
        const QImage marked = show(5);
        QVERIFY(countPixels(marked, damage) > 100);
        QTRY_COMPARE(words(), QStringList({eventTypeNames()[2] + " · 64", eventTypeNames()[22]}));
        QCOMPARE(countPixels(show(4), damage), 0);
        QTRY_VERIFY(words().isEmpty());
        show(2);
        QTRY_COMPARE(words(), QStringList(eventTypeNames()[0] + " · " + numberName(Question::Sound, 10)));
        // The selected one is seen whatever frame is shown.
        QTest::mouseClick(track, Qt::LeftButton, {}, track->places().placeOf(1));
        QVERIFY(countPixels(show(8), selected) > 100);
        QTest::mouseClick(track, Qt::LeftButton, {}, track->places().lanes().bottomRight() - QPoint(40, 1));
        find<QAction>(window, "actionEvents")->trigger();
        QCOMPARE(show(5), plain);

        // Going to what is selected is an option.
        find<QAction>(window, "actionGoToSelected")->trigger();
        QTest::mouseClick(track, Qt::LeftButton, {}, track->places().placeOf(3));
        QCOMPARE(playback().time, 0.9f);
        select(window, "treeAnim", {{RecordKind::AnimAction, {0, 0}}});
        QCOMPARE(playback().time, 0.2f);
    }

    void eventsFadeAsTheyPlay()
    {
        const AnimFile file = fourActions();
        SkinnedMesh mesh;
        mesh.nodes.resize(2);
        Playback state;
        state.anim = &file;
        state.mesh = &mesh;
        state.playState = PlayState::Playing;
        MarkedEvents events;
        const auto strengthAt = [&](float time) {
            state.time = time;
            events.follow(state, int(time * 10.0f));
            return events.shown().empty() ? 0.0f : events.shown()[0].strength;
        };
        QCOMPARE(strengthAt(0.25f), 0.0f);
        events.wanted = true;
        QCOMPARE(strengthAt(0.15f), 0.0f);
        const float early = strengthAt(0.21f), late = strengthAt(0.4f);
        QVERIFY(early > 0.9f && late > 0.0f && late < early);
        state.time = 0.6f;
        events.follow(state, 6);
        QCOMPARE(int(events.shown().size()), 2); // both of frame 5; that of frame 2 is over
    }

    // The last frame and the first of the next round are one moment.
    void eventsAreSeenWhereItLoops()
    {
        constexpr quint16 NoLoop = 0xFFFF;
        const struct
        {
            const char *name;
            quint16 loopFrame;
            bool forced;
            FrameRange range;
            QString first, later; ///< the frames whose events are seen in the first round, and from the third
        } rows[] = {{"wraps", NoLoop, false, {}, "2 4", "2 4 10"},
                    {"loops", 4, false, {}, "2 4", "4 10"},
                    {"forced", 4, true, {}, "2 4", "2 4 10"},
                    {"range", 4, true, {2, 4}, "2", "2 4"},
                    {"late range", NoLoop, false, {4, 10}, "4", "4 10"}};
        SkinnedMesh mesh;
        mesh.nodes.resize(2);
        for (const auto &row : rows) {
            AnimFile file = twoBlocks();
            AnimBlock &block = file.blocks[0];
            block.loopFrame = row.loopFrame;
            for (const int frame : {2, 4, 10, 12})
                block.actions.emplace_back().frame = quint16(frame);
            Playback state;
            state.anim = &file;
            state.mesh = &mesh;
            state.playState = PlayState::Playing;
            state.forceLoop = row.forced;
            state.range = row.range;
            MarkedEvents events;
            events.wanted = true;
            std::set<int> first, later;
            for (int picture = 0; picture < 300; ++picture) {
                advanceClock(state, 1.0f / 60);
                events.follow(state, chooseFrame(block, state.playState, state.forceLoop, state.time).frame);
                for (const MarkedEvent &event : events.shown()) {
                    if (state.rounds != 1)
                        (state.rounds == 0 ? first : later).insert(block.actions[size_t(event.action)].frame);
                }
            }
            const auto text = [](const std::set<int> &frames) {
                QStringList texts;
                for (const int frame : frames)
                    texts += QString::number(frame);
                return texts.join(' ');
            };
            QVERIFY2(text(first) == row.first, qPrintable(row.name + (": " + text(first))));
            QVERIFY2(text(later) == row.later, qPrintable(row.name + (": " + text(later))));
        }
    }

    void eventsFadeWhereItStands()
    {
        AnimFile file = twoBlocks();
        file.blocks[0].loopFrame = 10;
        file.blocks[0].actions.emplace_back().frame = 10;
        file.blocks[0].actions[0].eventType = 2;
        file.blocks[0].actions[0].args = {60.0f, 16384.0f};
        Settings::ShowEvents.setValue(true);
        ShownWindow window({m_files->save("a.skinnedmesh", triangleMan()), m_files->save("a.anim", file)});
        auto *view = find<KVOpenGLWidget>(window, "viewSkinned");
        const auto marked = [view] { return countPixels(view->grabFramebuffer(), QColor("#ff3b30")); };
        auto *track = find<ActionTrack>(window, "actionTrack");
        QTest::mouseClick(track, Qt::LeftButton, {}, track->places().rulerPlace(10));
        view->playbackChanged();
        QVERIFY(marked() > 100);
        find<QToolButton>(window, "btnAnimTrackPlay")->click();
        QTRY_VERIFY(playback().time >= 1.0f);
        QTRY_COMPARE(marked(), 0);
        QCOMPARE(playback().playState, PlayState::Playing);
    }

    void soundsPlayWithTheirFrames()
    {
        AnimFile file = fourActions();
        const float sounds[] = {77.0f, 0.0f, 0.0f, 10.0f};
        const int events[] = {0, 2, 32, 29};
        for (size_t i = 0; i < 4; ++i) {
            file.blocks[0].actions[i].args[0] = sounds[i];
            file.blocks[0].actions[i].eventType = quint16(events[i]);
        }
        file.blocks[0].loopFrame = 10;
        const QString named = numberName(Question::Sound, 10).toUpper().replace(' ', '_') + ".ogg";
        m_files->put("sounds/77.wav", "");
        m_files->put("sounds/" + named, "");
        ShownWindow window({m_files->save("a.skinnedmesh", triangleMan()), m_files->save("a.anim", file)});
        auto *timeline = find<AnimTrackFrame>(window, "animTrackFrame");
        QStringList played;
        timeline->setSoundPlayer([&played](const QString &path) { played += QFileInfo(path).fileName(); });
        auto *play = find<QToolButton>(window, "btnAnimTrackPlay");
        const auto playToTheEnd = [&] {
            play->click();
            QTRY_VERIFY(playback().time >= 1.0f);
        };
        playToTheEnd(); // no folder
        QVERIFY(played.isEmpty());
        Settings::SoundsFolder.setValue(m_files->path("sounds"));
        playToTheEnd();
        QTRY_COMPARE(played, QStringList({"77.wav", named}));
        // Frames that are played alone sound alone.
        played.clear();
        playback().range = {7, 9};
        play->click();
        QTRY_VERIFY(played.size() >= 2);
        QCOMPARE(played.count(named), played.size());
        playback().range = {};
        playToTheEnd();
        // A hand at the slider plays none, nor does what is muted.
        played.clear();
        auto *track = find<ActionTrack>(window, "actionTrack");
        for (const int frame : {2, 9, 2})
            QTest::mouseClick(track, Qt::LeftButton, {}, track->places().rulerPlace(frame));
        find<QAction>(window, "actionPlaySounds")->trigger();
        playToTheEnd();
        QVERIFY(played.isEmpty());
    }

private:
    std::optional<ProgramFolder> m_files;
};

QTEST_MAIN(tst_Events)
#include "tst_events.moc"
