// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OrbitTool.h"
#include "RecordedHand.h"

using namespace RecordedHand;

/// What mouse and keys do in the view, by recorded input: no window, no graphics.
class tst_ViewTools : public QObject
{
    Q_OBJECT

private slots:
    void sequences();
    void aCameraPutElsewhereStaysThere();
    void aroundThePivot();
    void clicksAndTips();
    void absurdSpeeds();
    void springArrives();
};

void tst_ViewTools::sequences()
{
    constexpr auto Arrow = ViewCursor::Arrow, Hidden = ViewCursor::Captured, Closed = ViewCursor::ClosedHand;
    struct Row
    {
        const char *words;
        QVector3D way;
        float yaw = 180.0f;
        float pitch = 0.0f;
        ViewCursor cursor = ViewCursor::Arrow;
        const char *refused = "";
    };
    const float level = 10.0f * std::cos(float(M_PI) / 6.0f);
    // At the start the view looks along +z and so right is -x.
    const Row rows[] = {
        // A step a tick; the first of two opposite keys counts.
        {"+s . . -s +w .", {0, 0, 1}},
        {"+d . . -d +a .", {1, 0, 0}},
        {"+w +s +d +a .", {1, 0, -1}},
        {"+w +^ .", {0, 0, -3}},
        {"+w L .", {}, 180, 0, Hidden},
        {"+w L . l .", {0, 0, -1}},
        {"+w cancel .", {}},
        {"L cancel +w .", {0, 0, -1}},
        {"+w . +d . +c", {}},
        // Repeats are taken and do nothing. A command is the window's; a key that is let go is let go.
        {"!+w +^ .", {}},
        {"+w !-w !+c .", {0, 0, -1}},
        {"+f -c ctrl +s alt +s +c meta +s .", {}, 180, 0, Arrow, "+f -c +s +s +c +s "},
        {"+w ctrl -w +^ .", {}},

        // Left moves in the plane: the forward direction's height is dropped, not made up for. Right turns,
        // as
        // far as nearly straight up or down. Both move up and down.
        {"L . 10,20 ~", {10, 0, 20}, 180, 0, Hidden},
        {"R . 360,60 ~ r L . 0,-10 ~", {0, 0, level}, 0, -30, Hidden},
        {"R . 0,5000 ~", {}, 180, -89, Hidden},
        {"R . 0,-5000 ~", {}, 180, 89, Hidden},
        {"L R . 4,30 ~", {4, 30, 0}, 180, 0, Hidden},
        // Angles go on when the position rests, with both buttons still down.
        {"R . -100,0 L 100,0 ~", {100, 0, 0}, 230, 0, Hidden},

        // The cursor may be on its way to the middle until the first tick of a capture.
        {"L 40,0 . ~", {}, 180, 0, Hidden},
        {"R . L 40,0 ~", {40, 0, 0}, 180, 0, Hidden},
        // The last of left and right gives the mouse back; the middle button does not hold it.
        {"L M m R r", {}, 180, 0, Hidden},
        {"L R l M r", {}},
        {"M m", {}},
        {"B b", {}},
        // What was not reached by then is not gone to.
        {"L . 40,0 l ~", {}},
        {"L . 40,0 cancel ~", {}},

        // Alt turns around what is looked at, alone, and lets go of the keys when it ends.
        {"alt L R r", {}, 180, 0, Closed},
        {"alt L 90,0 90,0 l", {0, 0, 0}, 90},
        {"alt M", {}, 180, 0, Closed},
        {"alt M cancel", {}},
        {"alt R", {}, 180, 0, Hidden},
        {"R alt L", {}, 180, 0, Hidden},
        {"+w alt L .", {0, 0, -1}, 180, 0, Closed},
        {"+w alt L l .", {}},
        {"+w alt M L .", {0, 0, -1}, 180, 0, Closed},
        // The wheel needs none of it; what turns sideways by itself goes nowhere.
        {"wheel0,120", {0, 0, -0.12f * 601.0f}},
        {"wheel120,0", {}},
        {"R . wheel0,-120 r", {0, 0, (1.0f / 0.88f - 1.0f) * 601.0f}},
    };
    for (const Row &row : rows) {
        const Hand hand(row.words);
        // What goes around the pivot is looked at below.
        QVERIFY2(row.yaw == 90.0f || near(hand.way(), row.way), row.words);
        QVERIFY2(std::fabs(hand.camera.yaw() - row.yaw) < 0.01f, row.words);
        QVERIFY2(std::fabs(hand.camera.pitch() - row.pitch) < 0.01f, row.words);
        QVERIFY2(hand.tools.cursor() == row.cursor, row.words);
        QVERIFY2(hand.told == row.refused, row.words);
    }
    const Hand both("R . -100,0 L 100,0 . .");
    QVERIFY(both.way().x() > 0.0f);
    QCOMPARE(both.camera.yaw(), 180.0f); // not yet
}

void tst_ViewTools::aCameraPutElsewhereStaysThere()
{
    // What only moves the camera lets it turn on.
    for (const auto &[how, turnsOn] :
         {std::pair{"+c", false}, {"look", false}, {"frame", true}, {"alt wheel0,120", true}}) {
        Hand moved("L . 100,50 . . . . . . . . .");
        moved.play(how);
        const QVector3D there = moved.camera.position();
        moved.play("~");
        QCOMPARE(moved.camera.position(), there);
        moved.play("0,30 ~"); // the drag goes on from there
        QVERIFY(std::fabs((moved.camera.position() - there).length() - 30.0f) < 0.01f);

        Hand turned("R . 100,50 . . . . . . . . .");
        turned.play(how);
        const float yaw = turned.camera.yaw();
        turned.play("~");
        QVERIFY2(std::fabs(turned.camera.yaw() - (turnsOn ? 130.0f : yaw)) < 0.01f, how);
    }
    // Only a reset leaves a drag its speed.
    for (const auto &[how, keepsSpeed] : {std::pair{"l L .", false}, {"frame", false}, {"+c", true}}) {
        Hand hand("L . 1000,0 . . . .");
        hand.play(how);
        const QVector3D there = hand.camera.position();
        hand.play("1,0 .");
        QVERIFY2(((hand.camera.position() - there).length() > 0.5f) == keepsSpeed, how);
    }
}

void tst_ViewTools::aroundThePivot()
{
    for (const bool always : {false, true}) {
        Hand hand(always ? "" : "alt");
        hand.tools.orbit->setAlways(always);
        const auto seen = [&hand] { return hand.camera.viewMatrix().map(Pivot); };
        const QVector3D start = seen();
        hand.play("L 90,0 90,0 l");
        QCOMPARE(hand.camera.yaw(), 90.0f);
        QVERIFY(near(seen(), start));
        hand.play(always ? "wheel0,120" : "wheel120,0"); // Alt turns it sideways on many systems
        QVERIFY(near(seen(), 0.88f * start));
        hand.play("wheel120,-120");
        QVERIFY(near(seen(), start));
        // A quarter of the picture, which is twice as high as the pivot is away.
        hand.play("M 0,75 m");
        QVERIFY(near(seen(), start + QVector3D(0.0f, 0.5f * start.z(), 0.0f)));
        QVERIFY(hand.told.empty());
    }
}

void tst_ViewTools::clicksAndTips()
{
    const std::pair<const char *, const char *> rows[] = {
        {"@10,0 L l", "b3 "},
        {"@20,0 L l", "h5 "},
        {"@40,0 L . 5,4 l", "s7 "},
        {"@40,0 L . 6,4 l", ""},
        {"@40,0 L . 6,0 -6,0 l", ""}, // there and back is a drag
        {"@40,0 R r", ""},
        {"@40,0 R . 50,0 r @40,0 L . l", "s7 "},
        {"@40,0 alt L l", ""},
        {"@40,0 L R l r", ""},
        {"@40,0 L r", ""},
        {"@40,0 L cancel l l", "s7 "},
    };
    for (const auto &[words, told] : rows) {
        for (const bool orbits : {false, true}) {
            Hand hand;
            hand.tools.orbit->setAlways(orbits);
            hand.play(words);
            QVERIFY2(hand.told == told, words);
        }
    }

    // Somebody waits for a bone: clicks hit nothing else, drags are as ever, and it is told once.
    Hand aims;
    int picked = 0;
    aims.tools.pick->waitForBone([&](int bone) {
        picked += bone;
        QVERIFY(aims.tools.cursor() == ViewCursor::Arrow);
    });
    QVERIFY(aims.tools.cursor() == ViewCursor::Cross);
    aims.play("@20,0 L l @40,0 L l @0,0 L l @10,0 L . 6,4 l");
    QVERIFY(picked == 0 && aims.told.empty() && aims.tools.cursor() == ViewCursor::Cross);
    aims.play("@10,0 L l");
    QVERIFY(picked == 3 && aims.told.empty());
    aims.play("@10,0 L l");
    QVERIFY(picked == 3 && aims.told == "b3 ");
    QCOMPARE(Hand("@30,0 L . 5,4 l @40,0 L l").nothing, 1);
    QCOMPARE(Hand("@30,0 R r @30,0 L . 6,4 l @30,0 alt L l").nothing, 0);
    QVERIFY(Hand("@40,0 L 50,0 l").told == "s7 "); // the cursor was on its way to the middle

    Hand hand;
    hand.tools.hover->setNames([](int bone) { return QStringLiteral("b%1").arg(bone); },
                               [](int point) { return QStringLiteral("h%1").arg(point); });
    hand.play("@30,0 @10,0 @10,0 @20,0 @30,0 @10,0 leave @10,0 L @30,0 cancel @20,0 l @30,0");
    QVERIFY(hand.tips == "\"b3\" \"h5\" \"\" \"b3\" \"b3\" \"\" ");
}

void tst_ViewTools::absurdSpeeds()
{
    const std::vector<QVector3D> model{{-90, 0, -100}, {110, 200, 40}};
    Camera fresh;
    fresh.frame(model, {400, 300});
    for (const float speed : {1e8f, 3e38f, INFINITY, NAN}) {
        Hand hand;
        hand.tools.flight->setSpeed(speed);
        hand.play("+s . . . . .");
        QVERIFY(hand.camera.position().z() < 1e10f);
        hand.play("L . 0,10 0,10 0,10 0,10 0,10 ~");
        QVERIFY(hand.camera.position().z() > -1e10f);
        hand.camera.lookFrom(Camera::Side::Front, {});
        hand.camera.frame(model, {400, 300});
        QVERIFY2(near(hand.camera.position(), fresh.position()), qPrintable(QString::number(double(speed))));
    }
}

void tst_ViewTools::springArrives()
{
    // One step by hand: omega = 40, x = 0.04.
    float velocity = 0.0f;
    const float decay = 1.0f / (1.0f + 0.04f + 0.48f * 0.0016f + 0.235f * 0.000064f);
    const float first = smoothDamp(0.0f, 10.0f, velocity, 0.05f, Tick);
    QVERIFY(std::fabs(first - (10.0f - 10.4f * decay)) < 1e-4f);
    QVERIFY(std::fabs(velocity - 16.0f * decay) < 1e-3f);

    for (const float dt : {0.0f, 0.0005f, 0.016f, 100.0f}) {
        float value = -3.0f;
        velocity = 0.0f;
        for (int i = 0; i < 5000; ++i) {
            const float next = smoothDamp(value, 4.0f, velocity, 0.05f, dt);
            QVERIFY(next >= value && next <= 4.0f && std::isfinite(velocity));
            value = next;
        }
        QVERIFY(std::fabs(value - (dt > 0.0f ? 4.0f : -3.0f)) < 0.01f);
    }
    QCOMPARE(smoothDamp(5.0f, 5.0f, velocity, 0.05f, 0.0f), 5.0f);
    QCOMPARE(velocity, 0.0f);
}

QTEST_GUILESS_MAIN(tst_ViewTools)
#include "tst_viewtools.moc"
