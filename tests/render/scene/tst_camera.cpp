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
    void framesWhatItIsGiven();
    void orbitKeepsThePivot();
    void panAndDolly();
    void staysWhereNumbersReach();
};

namespace {
bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 1e-3f;
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
        QVERIFY(camera.framed());
        camera.flyTo(stands);
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
    camera.frame(model, {400, 300});
    const QVector3D framed = camera.position();
    camera.frame({{3e38f, 3e38f, 3e38f}, {-3e38f, 0.0f, 0.0f}}, {400, 300});
    QVERIFY(near(camera.position(), framed));
}

QTEST_GUILESS_MAIN(tst_Camera)
#include "tst_camera.moc"
