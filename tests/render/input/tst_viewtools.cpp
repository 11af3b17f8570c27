// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Camera.h"
#include "FlightTool.h"
#include "OrbitTool.h"
#include "TestSupport.h"
#include "ViewTools.h"

#include <cmath>

/// What mouse and keys do in the view, by recorded input: no window, no graphics.
class tst_ViewTools : public QObject
{
    Q_OBJECT

private slots:
    void keysFly();
    void keysThatAreNotTheViews();
    void dragsFlyInThePlaneOrUpAndDown();
    void positionGoesBeforeAngles();
    void capture();
    void aCameraPutElsewhereStaysThere();
    void altTurnsAroundThePivot();
    void aDragAroundThePivotIsAlone();
    void clicksPick();
    void tipsNameMarks();
    void absurdSpeeds();
    void springArrives();
};

namespace {
constexpr float Tick = 0.001f;
const QVector3D Pivot(0.0f, 300.0f, 0.0f); // in the middle of the start view
const QPoint OnBone(200, 100), OnHotPoint(220, 100), OnSurface(240, 100), OnNothing(260, 100);

class FixedSight : public ViewSight
{
public:
    HitMarks marksAt(const QPoint &pixel) const override
    {
        return {pixel == OnBone ? 3 : HitMarks::None, pixel == OnHotPoint ? 5 : HitMarks::None};
    }
    int surfaceAt(const QPoint &pixel) const override { return pixel == OnNothing ? HitMarks::None : 7; }
    QVector3D pivot() const override { return Pivot; }
};

/// A hand at mouse and keys of a view of 400 by 300, and what it is told.
class Hand
{
public:
    explicit Hand(float speed = 1.0f)
        : tools(
              camera, m_sight,
              [this](PickTool::Kind kind, int index) {
                  // The mouse has to be given back by then.
                  told << text(isCaptured() ? "captured %1 %2" : "picked %1 %2", int(kind), index);
              },
              [this](const QPoint &, const QString &tip) { told << tip; })
    {
        tools.flight->setSpeed(speed);
        with.size = {400, 300};
        with.position = with.centre();
    }

    static QString text(const char *form, int a, int b) { return QString::fromLatin1(form).arg(a).arg(b); }
    void press(std::initializer_list<Qt::MouseButton> buttons)
    {
        for (const Qt::MouseButton button : buttons) {
            with.button = button;
            with.buttons |= button;
            tools.press(with);
        }
    }
    void release(Qt::MouseButton button)
    {
        with.button = button;
        with.buttons &= ~Qt::MouseButtons(button);
        tools.release(with);
    }
    /// From the middle while the cursor is captured, which the view puts back there.
    bool move(int dx, int dy)
    {
        const bool captured = isCaptured();
        with.button = Qt::NoButton;
        with.position = (captured ? with.centre() : with.position) + QPoint(dx, dy);
        const bool moved = tools.move(with);
        if (captured)
            with.position = with.centre();
        return moved;
    }
    void hover(const QPoint &pixel)
    {
        with.position = pixel;
        tools.move(with);
    }
    bool key(Qt::Key key, bool down = true)
    {
        with.key = key;
        return down ? tools.keyPress(with) : tools.keyRelease(with);
    }
    bool wheel(int x, int y)
    {
        with.wheelTurn = {x, y};
        return tools.wheel(with);
    }
    bool tick(float dt = Tick) { return tools.tick(dt); }
    /// Presses, and ticks as often as a drag needs.
    void startDrag(std::initializer_list<Qt::MouseButton> buttons)
    {
        press(buttons);
        tick();
    }
    /// Two ticks in one millisecond are common: nothing may divide by their distance.
    void settle()
    {
        for (int i = 0; i < 4000; ++i)
            tick(i % 2 == 0 ? 0.0f : Tick);
    }
    bool isCaptured() const { return tools.cursor() == ViewCursor::Captured; }
    QVector3D way() const { return camera.position() - Camera().position(); }

    Camera camera;
    QStringList told;

private:
    FixedSight m_sight;

public:
    ViewTools tools;
    ViewInput with; ///< of the next input
};

bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 0.01f;
}
} // namespace

void tst_ViewTools::keysFly()
{
    struct Row
    {
        std::vector<Qt::Key> keys;
        QVector3D moved;
    };
    // At the start the view looks along +z and so right is -x.
    const Row rows[] = {
        {{Qt::Key_W}, {0.0f, 0.0f, -2.0f}},
        {{Qt::Key_S}, {0.0f, 0.0f, 2.0f}},
        {{Qt::Key_D}, {2.0f, 0.0f, 0.0f}},
        {{Qt::Key_A}, {-2.0f, 0.0f, 0.0f}},
        {{Qt::Key_W, Qt::Key_S}, {0.0f, 0.0f, -2.0f}},
        {{Qt::Key_D, Qt::Key_A}, {2.0f, 0.0f, 0.0f}},
        {{Qt::Key_W, Qt::Key_Shift}, {0.0f, 0.0f, -6.0f}},
        {{Qt::Key_Shift}, {}},
    };
    for (const Row &row : rows) {
        Hand hand(2.0f);
        hand.camera.frame({Pivot}, {400, 300});
        const QVector3D start = hand.camera.position();
        for (const Qt::Key key : row.keys)
            QVERIFY(hand.key(key));
        // A step a tick, whatever time has passed.
        QCOMPARE(hand.tick(5.0f), !row.moved.isNull());
        QVERIFY(near(hand.camera.position() - start, row.moved));
        QCOMPARE(hand.camera.framed().has_value(), row.moved.isNull());

        hand.press({Qt::LeftButton});
        QVERIFY(!hand.tick());
        hand.release(Qt::LeftButton);
        QCOMPARE(hand.tick(), !row.moved.isNull());
        hand.tools.cancel();
        QVERIFY(!hand.tick());
        QVERIFY(hand.key(Qt::Key_C));
        QCOMPARE(hand.way(), QVector3D());
    }
}

void tst_ViewTools::keysThatAreNotTheViews()
{
    Hand hand;
    QVERIFY(!hand.key(Qt::Key_F5));
    QVERIFY(!hand.key(Qt::Key_C, false));
    for (const Qt::KeyboardModifier modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier}) {
        hand.with.modifiers = modifier;
        QVERIFY(!hand.key(Qt::Key_S) && !hand.key(Qt::Key_C) && hand.key(Qt::Key_Shift));
    }
    QVERIFY(!hand.tick());
    // A key that is held by now is let go, whatever the modifiers are; repeats do neither.
    hand.with.modifiers = Qt::ShiftModifier;
    hand.with.autoRepeat = true;
    QVERIFY(hand.key(Qt::Key_W) && !hand.tick());
    hand.with.autoRepeat = false;
    QVERIFY(hand.key(Qt::Key_W));
    hand.with.autoRepeat = true;
    QVERIFY(hand.key(Qt::Key_W, false) && hand.key(Qt::Key_C) && hand.tick());
    hand.with.autoRepeat = false;
    hand.with.modifiers = Qt::ControlModifier;
    QVERIFY(hand.key(Qt::Key_W, false) && !hand.tick());
}

void tst_ViewTools::dragsFlyInThePlaneOrUpAndDown()
{
    Hand hand(0.5f);
    hand.startDrag({Qt::RightButton});
    hand.move(0, 60); // look up or down first
    hand.settle();
    QCOMPARE(hand.camera.pitch(), -30.0f);
    hand.release(Qt::RightButton);
    hand.startDrag({Qt::LeftButton});
    hand.move(10, 20);
    hand.settle();
    // The forward direction is 30 degrees off the level; its height is dropped, not made up for.
    QVERIFY(near(hand.way(), {5.0f, 0.0f, 10.0f * std::cos(float(M_PI) / 6.0f)}));
    QCOMPARE(hand.way().y(), 0.0f);

    Hand both(0.5f);
    both.startDrag({Qt::LeftButton, Qt::RightButton});
    both.move(4, 30);
    both.settle();
    QVERIFY(near(both.way(), {2.0f, 15.0f, 0.0f}));

    for (const int dy : {-5000, 5000}) {
        Hand steep;
        steep.startDrag({Qt::RightButton});
        steep.move(0, dy);
        steep.settle();
        QVERIFY(std::fabs(steep.camera.pitch() - (dy < 0 ? 89.0f : -89.0f)) < 0.01f);
    }
}

void tst_ViewTools::positionGoesBeforeAngles()
{
    Hand hand;
    hand.startDrag({Qt::RightButton});
    hand.move(-100, 0);
    hand.press({Qt::LeftButton});
    hand.move(100, 0);
    hand.tick();
    hand.tick();
    QVERIFY(hand.way().x() > 0.0f);
    QCOMPARE(hand.camera.yaw(), 180.0f);
    // Once the position rests the angles go on, with both buttons still down. Towards a target height that
    // is reached at once only x has to arrive.
    hand.settle();
    QVERIFY(near(hand.way(), {100.0f, 0.0f, 0.0f}));
    QVERIFY(std::fabs(hand.camera.yaw() - 230.0f) < 0.01f);
}

void tst_ViewTools::capture()
{
    Hand hand;
    hand.press({Qt::LeftButton});
    // The cursor may still be on its way to the middle.
    QVERIFY(hand.isCaptured() && !hand.move(40, 0));
    hand.tick();
    QVERIFY(!hand.move(0, 0) && hand.move(40, 0));
    hand.press({Qt::RightButton, Qt::MiddleButton});
    QVERIFY(hand.move(40, 0));
    // The last of left and right gives the mouse back; the middle button does not hold it.
    hand.release(Qt::LeftButton);
    QVERIFY(hand.isCaptured());
    hand.release(Qt::RightButton);
    QVERIFY(!hand.isCaptured());
    hand.release(Qt::MiddleButton);
    for (const Qt::MouseButton button : {Qt::MiddleButton, Qt::BackButton}) {
        hand.press({button});
        QVERIFY(hand.isCaptured());
        hand.release(button);
        QVERIFY(!hand.isCaptured());
    }
    // What was not reached by then is not gone to, and no release comes after a cancel.
    hand.startDrag({Qt::LeftButton});
    hand.move(40, 0);
    hand.tools.cancel();
    QVERIFY(!hand.isCaptured() && !hand.tick() && !hand.tick());
    QCOMPARE(hand.way(), QVector3D());
}

void tst_ViewTools::aCameraPutElsewhereStaysThere()
{
    using Put = std::function<void(Hand &)>;
    const Put reset = [](Hand &hand) { hand.key(Qt::Key_C); };
    const Put look = [](Hand &hand) { hand.camera.lookFrom(Camera::Side::Left, Pivot); };
    const Put frame = [](Hand &hand) { hand.camera.frame({Pivot}, {400, 300}); };
    const Put dolly = [](Hand &hand) {
        hand.with.modifiers = Qt::AltModifier;
        hand.wheel(0, 120);
    };
    const auto putInDrag = [](Qt::MouseButton button, const Put &put, Hand &hand) {
        hand.startDrag({button});
        hand.move(100, 50);
        for (int i = 0; i < 10; ++i)
            hand.tick();
        put(hand);
        const Camera there = hand.camera;
        hand.settle();
        return there;
    };
    for (const Put &put : {reset, look, frame, dolly}) {
        Hand hand;
        const Camera there = putInDrag(Qt::LeftButton, put, hand);
        QCOMPARE(hand.camera.position(), there.position());
        // The drag goes on from there.
        hand.move(0, 30);
        hand.settle();
        QVERIFY(std::fabs((hand.camera.position() - there.position()).length() - 30.0f) < 0.01f);
    }
    for (const Put &put : {reset, look}) {
        Hand hand;
        const Camera there = putInDrag(Qt::RightButton, put, hand);
        QCOMPARE(hand.camera.yaw(), there.yaw());
        QCOMPARE(hand.camera.pitch(), there.pitch());
    }
    // What only moves the camera lets it turn on.
    for (const Put &put : {frame, dolly}) {
        Hand hand;
        putInDrag(Qt::RightButton, put, hand);
        QVERIFY(std::fabs(hand.camera.yaw() - 130.0f) < 0.01f);
    }
}

void tst_ViewTools::altTurnsAroundThePivot()
{
    for (const bool always : {false, true}) {
        Hand hand;
        QVERIFY(!hand.wheel(0, 120));
        hand.tools.orbit->setAlways(always);
        hand.with.modifiers = always ? Qt::NoModifier : Qt::AltModifier;
        const QVector3D seen = hand.camera.viewMatrix().map(Pivot);
        hand.press({Qt::LeftButton});
        QVERIFY(hand.tools.cursor() == ViewCursor::ClosedHand);
        QVERIFY(hand.move(90, 0) && hand.move(90, 0) && !hand.move(0, 0));
        hand.release(Qt::LeftButton);
        QVERIFY(hand.tools.cursor() == ViewCursor::Arrow);
        QCOMPARE(hand.camera.yaw(), 90.0f);
        QVERIFY(near(hand.camera.viewMatrix().map(Pivot), seen));

        QVERIFY(hand.wheel(120, 0)); // turned sideways by the system
        QVERIFY(near(hand.camera.viewMatrix().map(Pivot), 0.88f * seen));
        QVERIFY(hand.wheel(120, -120));
        QVERIFY(near(hand.camera.viewMatrix().map(Pivot), seen));

        hand.press({Qt::MiddleButton});
        hand.move(0, 75); // a quarter of the picture, which is as high as it is twice away
        hand.release(Qt::MiddleButton);
        QVERIFY(
            near(hand.camera.viewMatrix().map(Pivot), seen * QVector3D(1, 0, 1) - QVector3D(0, 300.5f, 0)));
        hand.press({Qt::RightButton});
        QVERIFY(hand.isCaptured());
    }
}

void tst_ViewTools::aDragAroundThePivotIsAlone()
{
    Hand hand;
    hand.key(Qt::Key_W);
    hand.with.modifiers = Qt::AltModifier;
    hand.press({Qt::LeftButton, Qt::RightButton});
    hand.release(Qt::RightButton);
    QVERIFY(hand.tools.cursor() == ViewCursor::ClosedHand);
    QVERIFY(hand.tick());
    hand.release(Qt::LeftButton); // and of the keys
    QVERIFY(!hand.tick());
    hand.press({Qt::MiddleButton});
    hand.tools.cancel();
    QVERIFY(hand.tools.cursor() == ViewCursor::Arrow);

    // Nor does it begin in a flight.
    hand.press({Qt::RightButton, Qt::LeftButton});
    QVERIFY(hand.isCaptured());
}

void tst_ViewTools::clicksPick()
{
    Hand hand;
    const auto click = [&hand](const QPoint &pixel, Qt::MouseButton button, int times, QPoint way) {
        hand.told.clear();
        hand.with.position = pixel;
        hand.press({button});
        hand.tick();
        for (int i = 0; i < times; ++i)
            hand.move(i % 2 == 0 ? way.x() : -way.x(), way.y());
        hand.release(button);
        return hand.told.join(QLatin1Char(','));
    };
    const QString surface = Hand::text("picked %1 %2", int(PickTool::Kind::Surface), 7);
    QCOMPARE(click(OnBone, Qt::LeftButton, 0, {}), Hand::text("picked %1 %2", int(PickTool::Kind::Bone), 3));
    QCOMPARE(click(OnHotPoint, Qt::LeftButton, 0, {}),
             Hand::text("picked %1 %2", int(PickTool::Kind::HotPoint), 5));
    for (const bool orbit : {false, true}) {
        hand.tools.orbit->setAlways(orbit);
        QCOMPARE(click(OnNothing, Qt::LeftButton, 0, {}), QString());
        QCOMPARE(click(OnSurface, Qt::RightButton, 0, {}), QString());
        QCOMPARE(click(OnSurface, Qt::LeftButton, 1, {5, 4}), surface);
        QCOMPARE(click(OnSurface, Qt::LeftButton, 1, {6, 4}), QString());
        QCOMPARE(click(OnSurface, Qt::LeftButton, 2, {6, 0}), QString()); // there and back is a drag
        hand.with.modifiers = Qt::AltModifier;
        QCOMPARE(click(OnSurface, Qt::LeftButton, 0, {}), QString());
        hand.with.modifiers = {};
        hand.press({Qt::RightButton});
        QCOMPARE(click(OnSurface, Qt::LeftButton, 0, {}), QString());
        hand.release(Qt::RightButton);
    }
}

void tst_ViewTools::tipsNameMarks()
{
    Hand hand;
    hand.tools.hover->setNames([](int bone) { return Hand::text("bone %1%2", bone, 0); }, {});
    for (const QPoint &pixel : {OnNothing, OnBone, OnBone, OnHotPoint, OnSurface})
        hand.hover(pixel);
    QCOMPARE(hand.told, QStringList({QStringLiteral("bone 30"), QString(), QString()}));
    hand.press({Qt::LeftButton});
    hand.hover(OnBone);
    hand.tools.cancel(); // the button is held on
    hand.hover(OnBone);
    hand.release(Qt::LeftButton);
    QCOMPARE(hand.told.size(), 4);
    hand.hover(OnBone);
    hand.tools.leave();
    hand.hover(OnBone);
    QCOMPARE(hand.told.size(), 6);
}

void tst_ViewTools::absurdSpeeds()
{
    const std::vector<QVector3D> model{{-90, 0, -100}, {110, 200, 40}};
    Camera fresh;
    fresh.frame(model, {400, 300});
    for (const float speed : {1e8f, 3e38f, INFINITY, NAN}) {
        Hand hand(speed);
        hand.key(Qt::Key_S);
        for (int i = 0; i < 5; ++i)
            hand.tick();
        QVERIFY(hand.camera.position().z() < 1e10f);
        hand.startDrag({Qt::LeftButton});
        for (int i = 0; i < 5; ++i)
            hand.move(0, 10);
        hand.settle();
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

    for (float dt : {0.0005f, 0.001f, 0.016f, 0.5f, 100.0f}) {
        float value = -3.0f;
        velocity = 0.0f;
        for (int i = 0; i < 5000; ++i) {
            const float next = smoothDamp(value, 4.0f, velocity, 0.05f, dt);
            QVERIFY(next >= value && next <= 4.0f);
            value = next;
        }
        QVERIFY(std::fabs(value - 4.0f) < 0.01f);
    }

    velocity = 0.0f;
    QCOMPARE(smoothDamp(5.0f, 5.0f, velocity, 0.05f, 0.0f), 5.0f);
    QCOMPARE(velocity, 0.0f);
    QCOMPARE(smoothDamp(1.0f, 5.0f, velocity, 0.05f, 0.0f), 1.0f);
    QVERIFY(std::isfinite(velocity));
}

QTEST_GUILESS_MAIN(tst_ViewTools)
#include "tst_viewtools.moc"
