// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "FrameChoice.h"
#include "FrameLabel.h"
#include "SkinnedMesh.h"
#include "TestSupport.h"

#include <cmath>
#include <limits>

Q_DECLARE_METATYPE(PlayState)

// Which frames a time falls between, where it loops, and what the label says.
class tst_Playback : public QObject
{
    Q_OBJECT

private slots:
    void frames_data();
    void frames();
    void framesStayInRange_data();
    void framesStayInRange();
    void everyFrameCanBeAskedFor();
    void label();
    void labelOfOddTimes();
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

void tst_Playback::frames_data()
{
    QTest::addColumn<float>("speed");
    QTest::addColumn<int>("loopFrame");
    QTest::addColumn<PlayState>("state");
    QTest::addColumn<bool>("forceLoop");
    QTest::addColumn<float>("time");
    QTest::addColumn<int>("frame");
    QTest::addColumn<int>("next");
    QTest::addColumn<float>("t");
    QTest::addColumn<float>("timeAfter");

    // Always 11 frames, so that the duration at speed 2 is 5 seconds.
    const auto playing = PlayState::Playing;
    const auto paused = PlayState::Paused;
    const int none = NoLoop;
    QTest::newRow("start") << 2.0f << none << playing << false << 0.0f << 0 << 1 << 0.0f << 0.0f;
    QTest::newRow("between") << 2.0f << none << playing << false << 1.75f << 3 << 4 << 0.5f << 1.75f;
    QTest::newRow("slow plays at 1") << 0.5f << none << playing << false << 1.25f << 1 << 2 << 0.25f << 1.25f;
    QTest::newRow("NaN plays at 1") << NaN << none << playing << false << 1.25f << 1 << 2 << 0.25f << 1.25f;
    QTest::newRow("wraps without loop")
        << 2.0f << none << playing << false << 5.75f << 1 << 2 << 0.5f << 0.75f;
    QTest::newRow("wraps at the end") << 2.0f << none << playing << false << 5.0f << 0 << 1 << 0.0f << 0.0f;
    QTest::newRow("loops, overshoot dropped")
        << 2.0f << 4 << playing << false << 5.4f << 4 << 5 << 0.0f << 2.0f;
    QTest::newRow("loops at the end") << 2.0f << 0 << playing << false << 5.0f << 0 << 1 << 0.0f << 0.0f;
    QTest::newRow("stands on the last") << 2.0f << 10 << playing << false << 7.0f << 10 << 10 << 0.0f << 5.0f;
    QTest::newRow("forced") << 2.0f << 4 << playing << true << 5.75f << 1 << 2 << 0.5f << 0.75f;
    QTest::newRow("forced in the initial pose")
        << 2.0f << 4 << PlayState::InitialPose << true << 5.75f << 1 << 2 << 0.5f << 0.75f;
    QTest::newRow("paused between") << 2.0f << 4 << paused << false << 1.75f << 3 << 4 << 0.5f << 1.75f;
    QTest::newRow("paused past, loop") << 2.0f << 4 << paused << false << 6.0f << 10 << 10 << 0.0f << 6.0f;
    QTest::newRow("paused past, no loop")
        << 2.0f << none << paused << false << 6.0f << 10 << 10 << 0.0f << 6.0f;
    QTest::newRow("paused past, forced")
        << 2.0f << none << paused << true << 6.0f << 10 << 10 << 0.0f << 6.0f;
    QTest::newRow("speed infinite") << Infinity << 4 << playing << false << 3.0f << 0 << 1 << 0.0f << 0.0f;
    QTest::newRow("time NaN") << 2.0f << none << playing << false << NaN << 0 << 1 << 0.0f << 0.0f;
    QTest::newRow("time infinite") << 2.0f << 4 << playing << false << Infinity << 0 << 1 << 0.0f << 0.0f;
    QTest::newRow("time negative") << 2.0f << 4 << playing << false << -1.0f << 0 << 1 << 0.0f << 0.0f;
}

void tst_Playback::frames()
{
    QFETCH(float, speed);
    QFETCH(int, loopFrame);
    QFETCH(PlayState, state);
    QFETCH(bool, forceLoop);
    QFETCH(float, time);
    const FrameChoice at = chooseFrame(block(11, speed, quint16(loopFrame)), state, forceLoop, time);
    QTEST(at.frame, "frame");
    QTEST(at.next, "next");
    QTEST(at.t, "t");
    QTEST(time, "timeAfter");
}

void tst_Playback::framesStayInRange_data()
{
    QTest::addColumn<float>("speed");
    for (float speed : {1.5f, 3.0f, 10.0f, 12.0f, 15.0f, 24.0f, 25.0f, 30.0f, 60.0f, 1e30f, 3e38f})
        QTest::newRow(qPrintable(QString::number(double(speed)))) << speed;
}

// In single precision a time just below the duration times the rate can round up to the last frame.
void tst_Playback::framesStayInRange()
{
    QFETCH(float, speed);
    bool carried = false;
    for (int frames = 2; frames < 200; ++frames) {
        const AnimBlock played = block(frames, speed);
        float time = playDuration(played);
        for (int step = 0; step < 4; ++step) {
            time = std::nextafter(time, 0.0f);
            float changed = time;
            const FrameChoice at = chooseFrame(played, PlayState::Playing, false, changed);
            QVERIFY(at.frame >= 0 && at.frame < frames);
            QVERIFY(at.next == at.frame + 1 || (at.next == at.frame && at.frame == frames - 1));
            QVERIFY(at.next < frames);
            QVERIFY(std::isfinite(at.t));
            carried = carried || at.frame == frames - 1;
        }
    }
    if (speed == 1.5f)
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
    QVERIFY(label.update(scene.state));
    QCOMPARE(label.text(), QStringLiteral("Initial Pose"));
    QVERIFY(!label.update(scene.state));

    // The nearest frame, half a frame ahead of the pose.
    scene.state.playState = PlayState::Playing;
    scene.state.time = 0.34f;
    QVERIFY(label.update(scene.state));
    QCOMPARE(label.text(), QStringLiteral("Frame: 3 / 10"));
    scene.state.time = 0.349f;
    QVERIFY(!label.update(scene.state));
    scene.state.time = 0.351f;
    QVERIFY(label.update(scene.state));
    QCOMPARE(label.text(), QStringLiteral("Frame: 4 / 10"));
    scene.state.time = 5.0f;
    QVERIFY(label.update(scene.state));
    QCOMPARE(label.text(), QStringLiteral("Frame: 10 / 10"));

    // A shorter block on the same frame is news too.
    scene.anim.blocks[0].setFrameCount(5);
    QVERIFY(label.update(scene.state));
    QCOMPARE(label.text(), QStringLiteral("Frame: 4 / 4"));
    scene.anim.blocks[0].setFrameCount(0);
    QVERIFY(label.update(scene.state));
    QCOMPARE(label.text(), QStringLiteral("Frame: 0 / 0"));

    scene.state.blockIndex = 1;
    QVERIFY(label.update(scene.state));
    QCOMPARE(label.text(), QStringLiteral("Invalid Animation"));
    QVERIFY(!label.update(scene.state));
    scene.state.blockIndex = 0;
    QVERIFY(label.update(scene.state));
}

void tst_Playback::labelOfOddTimes()
{
    QCOMPARE(FrameLabel::nearestFrame(0.5f, 1.0f), 1);
    QCOMPARE(FrameLabel::nearestFrame(2.5f, 1.0f), 3);
    QCOMPARE(FrameLabel::nearestFrame(-0.6f, 1.0f), -1);
    QCOMPARE(FrameLabel::nearestFrame(0.0f, Infinity), 0);
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
    advanceClock(scene.state, 0.25f);
    QCOMPARE(scene.state.time, 0.25f);
    scene.anim.blocks[0].setFrameCount(1);
    advanceClock(scene.state, 0.25f);
    QCOMPARE(scene.state.time, 0.25f);
}

QTEST_GUILESS_MAIN(tst_Playback)
#include "tst_playback.moc"
