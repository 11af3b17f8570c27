// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Camera.h"
#include "TestSupport.h"

#include <cmath>

Q_DECLARE_METATYPE(std::vector<QVector3D>)

class tst_Camera : public QObject
{
    Q_OBJECT

private slots:
    void startSeesTheFront();
    void projection();
    void flight_data();
    void flight();
    void pitchStopsAt89();
    void leftDragStaysLevel();
    void bothButtonsMoveVertically();
    void positionGoesBeforeAngles();
    void capture();
    void dragWaitsForATick();
    void framesWhatItIsGiven_data();
    void framesWhatItIsGiven();
    void orbitKeepsThePivot();
    void sides();
    void panAndDolly();
    void staysWhereNumbersReach();
    void springArrives();
    void springAtRestKeepsNumbers();
};

namespace {
constexpr float Tick = 0.001f;

bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 1e-3f;
}

void settle(Camera &camera)
{
    for (int i = 0; i < 2000; ++i)
        camera.tick(Tick, 1.0f);
}

void startDrag(Camera &camera, std::initializer_list<Camera::Button> buttons)
{
    for (Camera::Button button : buttons)
        camera.press(button);
    camera.tick(Tick, 1.0f);
}
} // namespace

// A model stands with z up after the view's turn: its left hand (+x) appears on the right, its feet below
// the middle, and it is in front of the eye.
void tst_Camera::startSeesTheFront()
{
    const Camera camera;
    QCOMPARE(camera.position(), QVector3D(0.0f, -300.0f, 600.0f));
    QCOMPARE(camera.yaw(), 180.0f);
    const QVector3D origin = camera.viewMatrix().map(QVector3D());
    QVERIFY(near(origin, {0.0f, -300.0f, -601.0f}));
    QVERIFY(camera.viewMatrix().map(QVector3D(-50.0f, 0.0f, 0.0f)).x() > 0.0f);
    QVERIFY(camera.viewMatrix().map(QVector3D(0.0f, 200.0f, 0.0f)).y() > origin.y());
}

void tst_Camera::projection()
{
    const QMatrix4x4 wide = Camera::projectionMatrix(200, 100);
    QVERIFY(std::fabs(wide(1, 1) - 1.0f) < 1e-5f);
    QVERIFY(std::fabs(wide(0, 0) - 0.5f) < 1e-5f);
    for (const QSize &size : {QSize(0, 100), QSize(100, 0), QSize(0, 0)}) {
        const QMatrix4x4 flat = Camera::projectionMatrix(size.width(), size.height());
        QVERIFY(std::isfinite(flat(0, 0)) && flat(0, 0) > 0.0f);
    }
}

void tst_Camera::flight_data()
{
    QTest::addColumn<QList<int>>("keys");
    QTest::addColumn<QVector3D>("moved");
    // At the start the view looks along +z and so right is -x.
    QTest::newRow("W") << QList<int>{Camera::Forward} << QVector3D(0.0f, 0.0f, -2.0f);
    QTest::newRow("S") << QList<int>{Camera::Back} << QVector3D(0.0f, 0.0f, 2.0f);
    QTest::newRow("D") << QList<int>{Camera::Right} << QVector3D(2.0f, 0.0f, 0.0f);
    QTest::newRow("A") << QList<int>{Camera::Left} << QVector3D(-2.0f, 0.0f, 0.0f);
    QTest::newRow("W before S") << QList<int>{Camera::Forward, Camera::Back} << QVector3D(0.0f, 0.0f, -2.0f);
    QTest::newRow("D before A") << QList<int>{Camera::Right, Camera::Left} << QVector3D(2.0f, 0.0f, 0.0f);
    QTest::newRow("Shift triples") << QList<int>{Camera::Forward, Camera::Fast}
                                   << QVector3D(0.0f, 0.0f, -6.0f);
    QTest::newRow("Shift alone") << QList<int>{Camera::Fast} << QVector3D();
}

void tst_Camera::flight()
{
    QFETCH(QList<int>, keys);
    QFETCH(QVector3D, moved);
    Camera camera;
    const QVector3D start = camera.position();
    for (int key : keys)
        camera.setKey(Camera::Key(key), true);
    // A step a tick, whatever time has passed.
    QCOMPARE(camera.tick(5.0f, 2.0f), !moved.isNull());
    QVERIFY(near(camera.position() - start, moved));

    camera.press(Camera::LeftButton);
    const QVector3D held = camera.position();
    QVERIFY(!camera.tick(Tick, 2.0f));
    QCOMPARE(camera.position(), held);

    camera.releaseAll();
    QVERIFY(!camera.tick(Tick, 2.0f));
    QVERIFY(!camera.flies());
}

void tst_Camera::pitchStopsAt89()
{
    for (float sign : {1.0f, -1.0f}) {
        Camera camera;
        startDrag(camera, {Camera::RightButton});
        for (int i = 0; i < 1000; ++i) {
            camera.drag(0.0f, 50.0f * sign, 1.0f);
            camera.tick(Tick, 1.0f);
            QVERIFY(std::fabs(camera.pitch()) <= 89.0f);
        }
        settle(camera);
        QVERIFY(std::fabs(camera.pitch() + 89.0f * sign) < 0.01f);
        QVERIFY(camera.viewMatrix().map(QVector3D()).z() < 1000.0f);
    }
}

void tst_Camera::leftDragStaysLevel()
{
    Camera camera;
    startDrag(camera, {Camera::RightButton});
    camera.drag(0.0f, 60.0f, 1.0f); // look up or down first
    settle(camera);
    camera.release(Camera::RightButton);

    const QVector3D start = camera.position();
    startDrag(camera, {Camera::LeftButton});
    camera.drag(10.0f, 20.0f, 0.5f);
    settle(camera);
    QCOMPARE(camera.position().y(), start.y());
    QVERIFY(std::fabs(camera.position().x() - start.x() - 5.0f) < 0.01f);
    // The forward direction is 30 degrees off the level; its height is dropped, not made up for.
    QVERIFY(std::fabs(camera.position().z() - start.z() - 10.0f * std::cos(float(M_PI) / 6.0f)) < 0.01f);
}

void tst_Camera::bothButtonsMoveVertically()
{
    Camera camera;
    const QVector3D start = camera.position();
    startDrag(camera, {Camera::LeftButton, Camera::RightButton});
    camera.drag(4.0f, 30.0f, 0.5f);
    settle(camera);
    QVERIFY(near(camera.position() - start, {2.0f, 15.0f, 0.0f}));
}

void tst_Camera::positionGoesBeforeAngles()
{
    Camera camera;
    startDrag(camera, {Camera::RightButton});
    camera.drag(-100.0f, 0.0f, 1.0f);
    QCOMPARE(camera.targetYaw(), 230.0f);
    camera.press(Camera::LeftButton);
    camera.drag(100.0f, 0.0f, 1.0f);
    camera.tick(Tick, 1.0f);
    camera.tick(Tick, 1.0f);
    QVERIFY(camera.position().x() > 0.0f);
    QCOMPARE(camera.yaw(), 180.0f);
    // Once the position rests the angles go on, with both buttons still down. Towards a target height that
    // is reached at once only x has to arrive.
    settle(camera);
    QVERIFY(std::fabs(camera.position().x() - 100.0f) < 0.01f);
    QVERIFY(camera.yaw() > 180.0f);
}

void tst_Camera::capture()
{
    Camera camera;
    QVERIFY(camera.press(Camera::LeftButton));
    QVERIFY(!camera.press(Camera::RightButton));
    QVERIFY(!camera.release(Camera::RightButton));
    QVERIFY(camera.isCaptured());
    // The middle button does not hold the capture, nor does its release end that of another.
    QVERIFY(!camera.press(Camera::MiddleButton));
    QVERIFY(!camera.release(Camera::MiddleButton));
    QVERIFY(camera.release(Camera::LeftButton));
    QVERIFY(!camera.isCaptured());

    QVERIFY(camera.press(Camera::MiddleButton));
    QVERIFY(camera.release(Camera::MiddleButton));
    QVERIFY(!camera.release(Camera::MiddleButton));

    camera.press(Camera::RightButton);
    QVERIFY(camera.releaseAll());
    QVERIFY(!camera.releaseAll());
}

void tst_Camera::dragWaitsForATick()
{
    Camera camera;
    camera.drag(50.0f, 50.0f, 1.0f);
    camera.press(Camera::RightButton);
    camera.drag(50.0f, 50.0f, 1.0f);
    QCOMPARE(camera.targetYaw(), 180.0f);
    camera.tick(Tick, 1.0f);
    camera.drag(50.0f, 0.0f, 1.0f);
    QCOMPARE(camera.targetYaw(), 155.0f);
    // Smoothing starts with the second tick.
    QCOMPARE(camera.yaw(), 180.0f);
    QVERIFY(camera.tick(Tick, 1.0f));
    QVERIFY(camera.yaw() < 180.0f);
}

void tst_Camera::framesWhatItIsGiven_data()
{
    QTest::addColumn<std::vector<QVector3D>>("points");
    QTest::newRow("a model") << std::vector<QVector3D>{{-90, 0, -100}, {110, 200, 40}, {0, 100, -120}};
    QTest::newRow("far away") << std::vector<QVector3D>{{5000, 9000, -3000}, {5100, 9050, -3000}};
    QTest::newRow("one point") << std::vector<QVector3D>{{1, 2, 3}};
    QTest::newRow("with one that is none")
        << std::vector<QVector3D>{{1, 2, 3}, {10, 20, 30}, {NAN, 5, INFINITY}};
}

void tst_Camera::framesWhatItIsGiven()
{
    QFETCH(std::vector<QVector3D>, points);
    Camera camera;
    camera.orbit({}, 130.0f, -25.0f);
    const QSize size(640, 400);
    camera.frame(points, size);
    QCOMPARE(camera.yaw(), 130.0f);
    QVERIFY(camera.framed());
    const QMatrix4x4 toPicture = Camera::projectionMatrix(size.width(), size.height()) * camera.viewMatrix();
    float widest = 0.0f;
    for (const QVector3D &point : points) {
        const QVector3D seen = toPicture.map(point);
        if (!std::isfinite(point.x() + point.z()))
            continue;
        QVERIFY(std::fabs(seen.z()) <= 1.0f);
        widest = std::max({widest, std::fabs(seen.x()), std::fabs(seen.y())});
    }
    QVERIFY2(widest < 0.9f, qPrintable(QString::number(double(widest))));
    QVERIFY(widest > 0.8f || points.size() != 3 || std::isnan(points[2].x()));

    // What was framed is forgotten by flying, and nothing to frame changes nothing.
    const QVector3D stands = camera.position();
    camera.frame({}, size);
    QCOMPARE(camera.position(), stands);
    camera.setKey(Camera::Forward, true);
    camera.tick(Tick, 1.0f);
    QVERIFY(!camera.framed());
}

void tst_Camera::orbitKeepsThePivot()
{
    Camera camera;
    const QVector3D pivot(30.0f, 100.0f, -50.0f);
    const QVector3D seen = camera.viewMatrix().map(pivot);
    for (int i = 0; i < 500; ++i)
        camera.orbitDrag(pivot, 7.0f, i % 5 == 0 ? -3.0f : 1.0f);
    QVERIFY((camera.viewMatrix().map(pivot) - seen).length() < 0.05f);
    camera.orbitDrag(pivot, 0.0f, 1e6f);
    QCOMPARE(camera.pitch(), -89.0f);
    // What is near follows the mouse: the eye goes up when it is dragged down.
    QVERIFY(camera.eye().y() > pivot.y());
}

void tst_Camera::sides()
{
    const QVector3D pivot(10.0f, 100.0f, 20.0f);
    const auto from = [&](Camera::Side side) {
        Camera camera;
        camera.orbit({}, 47.0f, 31.0f);
        camera.lookFrom(side, camera.eye() + camera.sight() * 100.0f);
        camera.frame({pivot}, {100, 100});
        return (camera.eye() - pivot).normalized();
    };
    // The view has a model's +x at -x, its front at -z and its top at +y.
    QVERIFY(near(from(Camera::Side::Front), {0, 0, -1}));
    QVERIFY(near(from(Camera::Side::Back), {0, 0, 1}));
    QVERIFY(near(from(Camera::Side::Right), {-1, 0, 0}));
    QVERIFY(near(from(Camera::Side::Left), {1, 0, 0}));
    QVERIFY((from(Camera::Side::Top) - QVector3D(0, 1, 0)).length() < 0.02f);
    QVERIFY((from(Camera::Side::Bottom) - QVector3D(0, -1, 0)).length() < 0.02f);
}

void tst_Camera::panAndDolly()
{
    Camera camera;
    const QVector3D pivot(30.0f, 250.0f, -50.0f);
    const QMatrix4x4 projection = Camera::projectionMatrix(400, 300);
    const QVector3D before = (projection * camera.viewMatrix()).map(pivot);
    camera.pan(pivot, 40.0f, -30.0f, 300);
    const QVector3D after = (projection * camera.viewMatrix()).map(pivot);
    QVERIFY(std::fabs((after.x() - before.x()) * 200.0f - 40.0f) < 0.01f);
    QVERIFY(std::fabs((after.y() - before.y()) * 150.0f - 30.0f) < 0.01f);

    const float distance = (camera.eye() - pivot).length();
    camera.dolly(pivot, 0.5f);
    QVERIFY(std::fabs((camera.eye() - pivot).length() - 0.5f * distance) < 0.1f);
    for (int i = 0; i < 100; ++i)
        camera.dolly(pivot, 0.5f);
    QVERIFY(-camera.viewMatrix().map(pivot).z() > Camera::NearPlane);
    camera.dolly(pivot, 10.0f);
    QVERIFY(-camera.viewMatrix().map(pivot).z() > 10.0f * Camera::NearPlane);
    for (int i = 0; i < 1000; ++i)
        camera.dolly(pivot, 1.0f / 0.88f);
    const float depth = -camera.viewMatrix().map(pivot).z();
    QVERIFY(depth > 0.4f * Camera::FarPlane && depth < 0.9f * Camera::FarPlane);
    camera.dolly(pivot, 0.5f);
    QVERIFY(-camera.viewMatrix().map(pivot).z() < 0.6f * depth);
}

void tst_Camera::staysWhereNumbersReach()
{
    Camera camera;
    const QVector3D start = camera.position();
    for (float absurd : {NAN, INFINITY, -1e38f}) {
        camera.place({0.0f, absurd, 0.0f}, 0.0f, 0.0f);
        camera.place({}, absurd, 0.0f);
        camera.place({}, 0.0f, absurd);
        QCOMPARE(camera.position(), start);
        QCOMPARE(camera.yaw(), 180.0f);
        QCOMPARE(camera.pitch(), 0.0f);
    }

    const std::vector<QVector3D> model{{-90, 0, -100}, {110, 200, 40}};
    Camera fresh;
    fresh.frame(model, {400, 300});
    for (float speed : {1e8f, 3e38f, INFINITY, NAN}) {
        camera.setKey(Camera::Back, true);
        for (int i = 0; i < 5; ++i)
            camera.tick(Tick, speed);
        QVERIFY(camera.position().z() < 1e10f);
        camera.releaseAll();
        startDrag(camera, {Camera::LeftButton});
        for (int i = 0; i < 5; ++i)
            camera.drag(0.0f, 10.0f, speed);
        settle(camera);
        QVERIFY(camera.position().z() > -1e10f);
        camera.releaseAll();
        camera.lookFrom(Camera::Side::Top, {});
        camera.lookFrom(Camera::Side::Front, {});
        camera.frame(model, {400, 300});
        QVERIFY2(near(camera.position(), fresh.position()), qPrintable(QString::number(double(speed))));
        camera.frame({{3e38f, 3e38f, 3e38f}, {-3e38f, 0.0f, 0.0f}}, {400, 300});
        QVERIFY(near(camera.position(), fresh.position()));
    }
}

void tst_Camera::springArrives()
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
        for (float time = 0.0f; time < 1.0f || dt >= 1.0f; time += dt) {
            const float next = smoothDamp(value, 4.0f, velocity, 0.05f, dt);
            QVERIFY(next >= value && next <= 4.0f);
            if (dt >= 1.0f && value == next)
                break;
            value = next;
        }
        QVERIFY(std::fabs(value - 4.0f) < 0.01f);
    }
}

// Two ticks in one millisecond are common: nothing may divide by their distance.
void tst_Camera::springAtRestKeepsNumbers()
{
    float velocity = 0.0f;
    QCOMPARE(smoothDamp(5.0f, 5.0f, velocity, 0.05f, 0.0f), 5.0f);
    QCOMPARE(velocity, 0.0f);
    QCOMPARE(smoothDamp(1.0f, 5.0f, velocity, 0.05f, 0.0f), 1.0f);
    QVERIFY(std::isfinite(velocity));

    Camera camera;
    startDrag(camera, {Camera::LeftButton});
    camera.drag(10.0f, 0.0f, 1.0f);
    for (int i = 0; i < 3000; ++i)
        camera.tick(i % 2 == 0 ? 0.0f : Tick, 1.0f);
    QVERIFY(near(camera.position(), {10.0f, -300.0f, 600.0f}));
}

QTEST_GUILESS_MAIN(tst_Camera)
#include "tst_camera.moc"
