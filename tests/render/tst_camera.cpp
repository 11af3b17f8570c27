// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Camera.h"
#include "TestSupport.h"

#include <cmath>

class tst_Camera : public QObject
{
    Q_OBJECT

private slots:
    void startSeesTheFront();
    void flight();
    void leftDragStaysLevelAndBothButtonsMoveVertically();
    void positionGoesBeforeAngles();
    void capture();
    void framesWhatItIsGiven();
    void orbitKeepsThePivot();
    void panAndDolly();
    void staysWhereNumbersReach();
    void springArrives();
};

namespace {
constexpr float Tick = 0.001f;

bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 1e-3f;
}

/// Two ticks in one millisecond are common: nothing may divide by their distance.
void settle(Camera &camera)
{
    for (int i = 0; i < 4000; ++i)
        camera.tick(i % 2 == 0 ? 0.0f : Tick, 1.0f);
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
    const QVector3D origin = camera.viewMatrix().map(QVector3D());
    QVERIFY(near(origin, {0.0f, -300.0f, -601.0f}));
    QVERIFY(camera.viewMatrix().map(QVector3D(-50.0f, 0.0f, 0.0f)).x() > 0.0f);
    QVERIFY(camera.viewMatrix().map(QVector3D(0.0f, 200.0f, 0.0f)).y() > origin.y());
    for (const QSize &size : {QSize(0, 100), QSize(100, 0), QSize(0, 0)}) {
        const QMatrix4x4 flat = Camera::projectionMatrix(size.width(), size.height());
        QVERIFY(std::isfinite(flat(0, 0)) && flat(0, 0) > 0.0f);
    }
}

void tst_Camera::flight()
{
    struct Row
    {
        std::vector<Camera::Key> keys;
        QVector3D moved;
    };
    // At the start the view looks along +z and so right is -x.
    const Row rows[] = {
        {{Camera::Forward}, {0.0f, 0.0f, -2.0f}},
        {{Camera::Back}, {0.0f, 0.0f, 2.0f}},
        {{Camera::Right}, {2.0f, 0.0f, 0.0f}},
        {{Camera::Left}, {-2.0f, 0.0f, 0.0f}},
        {{Camera::Forward, Camera::Back}, {0.0f, 0.0f, -2.0f}},
        {{Camera::Right, Camera::Left}, {2.0f, 0.0f, 0.0f}},
        {{Camera::Forward, Camera::Fast}, {0.0f, 0.0f, -6.0f}},
        {{Camera::Fast}, {}},
    };
    for (const Row &row : rows) {
        Camera camera;
        const QVector3D start = camera.position();
        for (Camera::Key key : row.keys)
            camera.setKey(key, true);
        // A step a tick, whatever time has passed.
        QCOMPARE(camera.tick(5.0f, 2.0f), !row.moved.isNull());
        QVERIFY(near(camera.position() - start, row.moved));

        camera.press(Camera::LeftButton);
        QVERIFY(!camera.tick(Tick, 2.0f));
        camera.releaseAll();
        QVERIFY(!camera.tick(Tick, 2.0f));
        QVERIFY(!camera.flies());
    }
}

void tst_Camera::leftDragStaysLevelAndBothButtonsMoveVertically()
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

    camera = {};
    startDrag(camera, {Camera::LeftButton, Camera::RightButton});
    camera.drag(4.0f, 30.0f, 0.5f);
    settle(camera);
    QVERIFY(near(camera.position() - Camera().position(), {2.0f, 15.0f, 0.0f}));
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
    QVERIFY(!camera.releaseAll());
    camera.press(Camera::RightButton);
    QVERIFY(camera.releaseAll());
}

void tst_Camera::framesWhatItIsGiven()
{
    const std::vector<QVector3D> models[] = {{{-90, 0, -100}, {110, 200, 40}, {0, 100, -120}},
                                             {{5000, 9000, -3000}, {5100, 9050, -3000}},
                                             {{1, 2, 3}},
                                             {{1, 2, 3}, {10, 20, 30}, {NAN, 5, INFINITY}}};
    const QSize size(640, 400);
    for (const auto &points : models) {
        Camera camera;
        camera.orbit({}, 130.0f, -25.0f);
        camera.frame(points, size);
        QCOMPARE(camera.yaw(), 130.0f);
        QVERIFY(camera.framed());
        const QMatrix4x4 toPicture =
            Camera::projectionMatrix(size.width(), size.height()) * camera.viewMatrix();
        float widest = 0.0f;
        for (const QVector3D &point : points) {
            const QVector3D seen = toPicture.map(point);
            if (!std::isfinite(point.x() + point.z()))
                continue;
            QVERIFY(std::fabs(seen.z()) <= 1.0f);
            widest = std::max({widest, std::fabs(seen.x()), std::fabs(seen.y())});
        }
        QVERIFY2(widest < 0.9f, qPrintable(QString::number(double(widest))));
        QVERIFY(widest > 0.8f || &points != models);

        // What was framed is forgotten by flying, and nothing to frame changes nothing.
        const QVector3D stands = camera.position();
        camera.frame({}, size);
        QCOMPARE(camera.position(), stands);
        camera.setKey(Camera::Forward, true);
        camera.tick(Tick, 1.0f);
        QVERIFY(!camera.framed());
    }
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
    // However far it goes either way, it comes back.
    const auto depthAfter = [&](float factor, int times) {
        for (int i = 0; i < times; ++i)
            camera.dolly(pivot, factor);
        return -camera.viewMatrix().map(pivot).z();
    };
    QVERIFY(depthAfter(0.5f, 100) > Camera::NearPlane);
    QVERIFY(depthAfter(10.0f, 1) > 10.0f * Camera::NearPlane);
    const float depth = depthAfter(1.0f / 0.88f, 1000);
    QVERIFY(depth > 0.4f * Camera::FarPlane && depth < 0.9f * Camera::FarPlane);
    QVERIFY(depthAfter(0.5f, 1) < 0.6f * depth);
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

QTEST_GUILESS_MAIN(tst_Camera)
#include "tst_camera.moc"
