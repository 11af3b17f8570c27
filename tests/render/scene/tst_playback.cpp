// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "FrameChoice.h"
#include "FrameLabel.h"
#include "PlayClock.h"
#include "SkinnedMesh.h"
#include "TestSupport.h"

#include <cmath>
#include <limits>

// Which frames a time falls between, where it loops, and what the label says.
class tst_Playback : public QObject
{
    Q_OBJECT

private slots:
    void frames();
    void framesStayInRange();
    void everyFrameCanBeAskedFor();
    void label();
    void validity();
    void clock();
};

namespace {
constexpr float Infinity = std::numeric_limits<float>::infinity();
constexpr float NaN = std::numeric_limits<float>::quiet_NaN();
constexpr quint16 NoLoop = 0xFFFF;

AnimBlock block(int frames, float speed, quint16 loopFrame = NoLoop, size_t bones = 1)
{
    AnimBlock made;
    made.speed = speed;
    made.loopFrame = loopFrame;
    made.nodes.resize(bones);
    made.setFrameCount(frames);
    return made;
}

/// One bone and one block of 11 frames at 10 frames a second.
struct Scene
{
    SkinnedMesh mesh;
    AnimFile anim;
    Playback state;

    Scene()
    {
        mesh.nodes.resize(1);
        anim.blocks = {block(11, 10.0f)};
        state.mesh = &mesh;
        state.anim = &anim;
    }
};
} // namespace

void tst_Playback::frames()
{
    const auto playing = PlayState::Playing;
    const auto paused = PlayState::Paused;
    struct Row
    {
        const char *name;
        float speed;
        quint16 loopFrame;
        PlayState state;
        bool forceLoop;
        float time;
        int frame, next;
        float t, timeAfter;
    };
    // Always 11 frames, so that the duration at speed 2 is 5 seconds.
    const Row rows[] = {
        {"between", 2.0f, NoLoop, playing, false, 1.75f, 3, 4, 0.5f, 1.75f},
        {"slow plays at 1", 0.5f, NoLoop, playing, false, 1.25f, 1, 2, 0.25f, 1.25f},
        {"NaN plays at 1", NaN, NoLoop, playing, false, 1.25f, 1, 2, 0.25f, 1.25f},
        {"wraps without loop", 2.0f, NoLoop, playing, false, 5.75f, 1, 2, 0.5f, 0.75f},
        {"wraps at the end", 2.0f, NoLoop, playing, false, 5.0f, 0, 1, 0.0f, 0.0f},
        {"loops, overshoot dropped", 2.0f, 4, playing, false, 5.4f, 4, 5, 0.0f, 2.0f},
        {"stands on the last", 2.0f, 10, playing, false, 7.0f, 10, 10, 0.0f, 5.0f},
        {"forced", 2.0f, 4, playing, true, 5.75f, 1, 2, 0.5f, 0.75f},
        {"forced in the initial pose", 2.0f, 4, PlayState::InitialPose, true, 5.75f, 1, 2, 0.5f, 0.75f},
        {"paused past, loop", 2.0f, 4, paused, false, 6.0f, 10, 10, 0.0f, 6.0f},
        {"paused past, forced", 2.0f, NoLoop, paused, true, 6.0f, 10, 10, 0.0f, 6.0f},
        {"speed infinite", Infinity, 4, playing, false, 3.0f, 0, 1, 0.0f, 0.0f},
        {"time NaN", 2.0f, NoLoop, playing, false, NaN, 0, 1, 0.0f, 0.0f},
        {"time infinite", 2.0f, 4, playing, false, Infinity, 0, 1, 0.0f, 0.0f},
        {"time negative", 2.0f, 4, playing, false, -1.0f, 0, 1, 0.0f, 0.0f},
    };
    for (const Row &row : rows) {
        float time = row.time;
        const FrameChoice at =
            chooseFrame(block(11, row.speed, row.loopFrame), row.state, row.forceLoop, time);
        QVERIFY2(at.frame == row.frame && at.next == row.next, row.name);
        QVERIFY2(qFuzzyCompare(at.t + 1.0f, row.t + 1.0f), row.name);
        QVERIFY2(qFuzzyCompare(time + 1.0f, row.timeAfter + 1.0f), row.name);
    }
}

// In single precision a time just below the duration times the rate can round up to the last frame.
void tst_Playback::framesStayInRange()
{
    bool carried = false;
    for (float speed : {1.5f, 3.0f, 10.0f, 12.0f, 15.0f, 24.0f, 25.0f, 30.0f, 60.0f, 1e30f, 3e38f}) {
        for (int frames = 2; frames < 200; ++frames) {
            const AnimBlock played = block(frames, speed);
            float time = playDuration(played);
            for (int step = 0; step < 4; ++step) {
                time = std::nextafter(time, 0.0f);
                float changed = time;
                const FrameChoice at = chooseFrame(played, PlayState::Playing, false, changed);
                QVERIFY(at.frame >= 0 && at.next < frames);
                QVERIFY(at.next == at.frame + 1 || (at.next == at.frame && at.frame == frames - 1));
                QVERIFY(std::isfinite(at.t));
                carried = carried || at.frame == frames - 1;
            }
        }
    }
    QVERIFY(carried);
}

// As the slider asks for them; and next to such a time nothing is extrapolated.
void tst_Playback::everyFrameCanBeAskedFor()
{
    for (int rate = 10; rate <= 60; ++rate) {
        const AnimBlock played = block(401, float(rate));
        for (int frame = 0; frame <= 400; ++frame) {
            const float asked = float(frame) / float(rate);
            float time = asked;
            const FrameChoice at = chooseFrame(played, PlayState::Paused, false, time);
            QVERIFY2(at.frame == frame, qPrintable(QStringLiteral("%1 at %2").arg(frame).arg(rate)));
            QCOMPARE(at.t, 0.0f);
            for (float end : {0.0f, Infinity}) {
                time = std::nextafter(asked, end);
                const FrameChoice beside = chooseFrame(played, PlayState::Playing, true, time);
                QVERIFY(beside.t >= 0.0f && beside.t <= 1.0f);
            }
        }
    }
}

void tst_Playback::label()
{
    Scene scene;
    FrameLabel label;
    // The text that comes with an update; null when there is nothing new.
    const auto news = [&] { return label.update(scene.state) ? label.text() : QString(); };
    const auto newsAt = [&](float time) {
        scene.state.time = time;
        return news();
    };
    QCOMPARE(news(), QStringLiteral("Initial Pose"));
    QCOMPARE(news(), QString());

    // The nearest frame, half a frame ahead of the pose.
    scene.state.playState = PlayState::Playing;
    QCOMPARE(newsAt(0.34f), QStringLiteral("Frame: 3 / 10"));
    QCOMPARE(newsAt(0.349f), QString());
    QCOMPARE(newsAt(0.351f), QStringLiteral("Frame: 4 / 10"));
    QCOMPARE(newsAt(5.0f), QStringLiteral("Frame: 10 / 10"));

    // A shorter block on the same frame is news too.
    scene.anim.blocks[0].setFrameCount(5);
    QCOMPARE(news(), QStringLiteral("Frame: 4 / 4"));
    scene.anim.blocks[0].setFrameCount(0);
    QCOMPARE(news(), QStringLiteral("Frame: 0 / 0"));
    scene.state.blockIndex = 1;
    QCOMPARE(news(), QStringLiteral("Invalid Animation"));
    QCOMPARE(news(), QString());
    scene.state.blockIndex = 0;
    QCOMPARE(news(), QStringLiteral("Frame: 0 / 0"));

    // Halves away from zero; what is no number is no frame.
    QCOMPARE(FrameLabel::nearestFrame(2.5f, 1.0f), 3);
    QCOMPARE(FrameLabel::nearestFrame(-0.6f, 1.0f), -1);
    QCOMPARE(FrameLabel::nearestFrame(1.0f, Infinity), 0);
    QVERIFY(FrameLabel::nearestFrame(1e30f, 1e5f) >= 65535);
}

void tst_Playback::validity()
{
    Scene scene;
    QVERIFY(playableBlock(scene.state) == &scene.anim.blocks[0]);

    // Only the first block is compared with the mesh, whatever block plays.
    scene.anim.blocks.push_back(block(4, 10.0f, NoLoop, 3));
    scene.state.blockIndex = 1;
    QVERIFY(playableBlock(scene.state) == &scene.anim.blocks[1]);
    scene.anim.blocks[0].nodes.resize(2);
    QVERIFY(!playableBlock(scene.state));
    scene.mesh.nodes.resize(2);
    QVERIFY(playableBlock(scene.state));

    for (int index : {-1, 2, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        scene.state.blockIndex = index;
        QVERIFY(!playableBlock(scene.state));
    }
    QVERIFY(!playableBlock(Playback()));
    QVERIFY(!animationMatchesMesh(AnimFile(), scene.mesh));
}

void tst_Playback::clock()
{
    Scene scene;
    for (PlayState state : {PlayState::InitialPose, PlayState::Paused}) {
        scene.state.playState = state;
        advanceClock(scene.state, 0.25f);
        QCOMPARE(scene.state.time, 0.0f);
    }
    scene.state.playState = PlayState::Playing;
    scene.anim.blocks[0].setFrameCount(1);
    advanceClock(scene.state, 0.25f);
    QCOMPARE(scene.state.time, 0.0f);

    // What has come to stand on its last frame, or takes no time, does not run.
    const auto runs = [&scene](quint16 loopFrame, float time, float speed = 10.0f) {
        scene.anim.blocks = {block(11, speed, loopFrame)};
        scene.state.time = time;
        return clockRuns(scene.state);
    };
    QVERIFY(runs(10, 0.9f) && !runs(10, 1.0f) && runs(9, 1.0f) && runs(NoLoop, 1.0f));
    QVERIFY(!runs(NoLoop, 0.0f, Infinity));
    scene.state.forceLoop = true;
    QVERIFY(runs(10, 1.0f));
}

QTEST_GUILESS_MAIN(tst_Playback)
#include "tst_playback.moc"
