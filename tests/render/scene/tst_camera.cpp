// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoundingSphere.h"
#include "Camera.h"
#include "Framing.h"
#include "TestSupport.h"

#include <cmath>
#include <limits>

/// Where the viewport looks from, and the camera that has a whole model in its picture.
class tst_Camera : public QObject
{
    Q_OBJECT

private slots:
    void startSeesTheFront();
    void framesWhatItIsGiven();
    void leavesStraysOut();
    void goesAroundThePivot();
    void lensesKeepWhatIsFramed();
    void orthographicSides();
    void orthographicSizeStays();
    void staysWhereNumbersReach();
    void fillsThePicture();
    void centresTheModel();
    void standsWhereAsked();
    void oddPoints();
};

namespace {
bool near(const QVector3D &a, const QVector3D &b)
{
    return (a - b).length() < 1e-3f;
}

/// The corners of a box that is long in x and lies off the origin.
std::vector<QVector3D> box(float scale)
{
    std::vector<QVector3D> points;
    points.reserve(8);
    for (int corner = 0; corner < 8; ++corner) {
        points.push_back(scale * QVector3D(corner & 1 ? 90.0f : -10.0f, corner & 2 ? 40.0f : 20.0f,
                                           corner & 4 ? 5.0f : -5.0f));
    }
    return points;
}

/// Where a point comes to lie in the picture, -1 to 1 from left to right, bottom to top and near to far.
QVector3D seen(const Framing &framing, const QVector3D &point)
{
    return (framing.projection * framing.view).map(point);
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
        const QMatrix4x4 flat = Camera().projectionMatrix(size.width(), size.height());
        QVERIFY(std::isfinite(flat(0, 0)) && flat(0, 0) > 0.0f);
    }
}

void tst_Camera::framesWhatItIsGiven()
{
    const QSize size(640, 400);
    const std::vector<QVector3D> point{{1, 2, 3}}, far{{5000, 9000, -3000}, {NAN, 5, INFINITY}};
    for (const auto &points : {point, far, box(4.0f), box(100.0f)}) {
        Camera camera;
        camera.orbit({}, 130.0f, -25.0f);
        camera.frame(points, size);
        QCOMPARE(camera.yaw(), 130.0f);
        float widest = 0.0f;
        for (const QVector3D &place : points) {
            const QVector3D at = seen({camera.viewMatrix(), Camera().projectionMatrix(640, 400)}, place);
            QVERIFY(std::fabs(at.z()) < 1.0f || std::isnan(place.x()));
            widest = std::max({widest, std::fabs(at.x()), std::fabs(at.y())});
        }
        QVERIFY(widest < 0.95f && (widest > 0.4f || points.size() < 8));
        // As far away from every side, so that the model can be turned.
        const float distance = (camera.eye() - *camera.framed()).length();
        camera.orbit({}, 40.0f, 60.0f);
        camera.frame(points, size);
        QVERIFY(std::fabs((camera.eye() - *camera.framed()).length() / distance - 1.0f) < 1e-3f);
        camera.orbit({}, 130.0f, -25.0f);
        camera.frame(points, size);

        // What was framed is forgotten by flying, and nothing to frame changes nothing.
        const QVector3D stands = camera.position();
        camera.frame({}, size);
        QVERIFY(camera.position() == stands && camera.framed());
        camera.flyTo(stands);
        QVERIFY(!camera.framed());
    }
}

void tst_Camera::leavesStraysOut()
{
    const auto strays = [](const std::vector<QVector3D> &odd, int boxes = 3) {
        std::vector<QVector3D> points = odd;
        for (int i = 0; i < boxes; ++i) {
            const auto more = box(1.0f + 0.1f * float(i));
            points.insert(points.end(), more.begin(), more.end());
        }
        const size_t all = points.size();
        const int dropped = dropStrays(points);
        return size_t(dropped) + points.size() == all ? dropped : -1;
    };
    QCOMPARE(strays({{1e5f, 0, 0}, {0, -3e38f, 0}}), 2);
    QCOMPARE(strays({{NAN, 0, 0}}), 1);
    QCOMPARE(strays({{900, 0, 0}}), 0);                                            // to be seen
    QCOMPARE(strays({{1e5f, 0, 0}, {1e5f, 9, 0}, {1e5f, 0, 9}, {1e5f, 9, 9}}), 0); // no longer a few
    QCOMPARE(strays({{0, 0, 0}, {0, 0, 10}, {0, 0, 2000}}, 0), 0);
    QCOMPARE(strays(std::vector<QVector3D>(50, {7, 7, 7})), 0);
    QCOMPARE(strays({}, 0), 0);

    Camera camera;
    QVERIFY(camera.frame(box(100.0f), {640, 400}));
    QVERIFY(!camera.frame(box(2000.0f), {640, 400})); // beyond the far plane
}

void tst_Camera::goesAroundThePivot()
{
    Camera camera;
    const QVector3D pivot(30.0f, 200.0f, -50.0f);
    const QVector3D seen = camera.viewMatrix().map(pivot);
    for (int i = 0; i < 500; ++i)
        camera.orbitDrag(pivot, 7.0f, i % 5 == 0 ? -3.0f : 1.0f);
    QVERIFY((camera.viewMatrix().map(pivot) - seen).length() < 0.05f);
    camera.orbitDrag(pivot, 0.0f, 1e6f);
    QCOMPARE(camera.pitch(), -89.0f);
    // What is near follows the mouse: the eye goes up when it is dragged down.
    QVERIFY(camera.eye().y() > pivot.y());

    camera.reset();
    const QMatrix4x4 projection = Camera().projectionMatrix(400, 300);
    const QVector3D before = (projection * camera.viewMatrix()).map(pivot);
    camera.pan(pivot, 40.0f, -30.0f, 300);
    const QVector3D after = (projection * camera.viewMatrix()).map(pivot);
    QVERIFY(std::fabs((after.x() - before.x()) * 200.0f - 40.0f) < 0.01f);
    QVERIFY(std::fabs((after.y() - before.y()) * 150.0f - 30.0f) < 0.01f);

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

// What the pivot's plane shows stays as large and in its place, whatever the lens and the projection.
void tst_Camera::lensesKeepWhatIsFramed()
{
    const QVector3D pivot(30.0f, 320.0f, -50.0f);
    Camera camera;
    camera.orbit(pivot, 160.0f, -20.0f);
    const QVector3D across = pivot + 40.0f * camera.rotation().rotatedVector({1.0f, 0.0f, 0.0f});
    const auto at = [&](const QVector3D &place) {
        return seen({camera.viewMatrix(), camera.projectionMatrix(400, 300)}, place).toVector2D();
    };
    const QVector2D here = at(pivot), there = at(across);
    const auto stays = [&] {
        return (at(pivot) - here).length() < 1e-3f && (at(across) - there).length() < 1e-3f;
    };
    for (const float lens : {60.0f, 45.0f, NAN, 0.0f, 180.0f, 90.0f, 45.0f}) {
        camera.setLens(lens, pivot);
        QVERIFY(stays());
        camera.setOrthographic(true, pivot);
        QVERIFY(camera.isOrthographic() && stays());
        camera.setLens(60.0f, pivot);
        camera.setOrthographic(true, pivot);
        QVERIFY(stays());
        camera.setOrthographic(false, pivot);
        QVERIFY(!camera.isOrthographic() && stays());
    }
    camera.reset();
    QCOMPARE(camera.position(), Camera().position());
    QCOMPARE(camera.lens(), 60.0f); // the last one that is one
}

void tst_Camera::orthographicSides()
{
    const std::vector<QVector3D> model = box(3.0f);
    const QSize size(400, 300);
    Camera camera;
    camera.setOrthographicSides(true);
    camera.frame(model, size);
    const QVector3D pivot = *camera.framed();
    const auto at = [&](const QVector3D &place) {
        return seen({camera.viewMatrix(), camera.projectionMatrix(400, 300)}, place);
    };
    using Side = Camera::Side;
    for (const Side side : {Side::Front, Side::Back, Side::Left, Side::Right, Side::Top, Side::Bottom}) {
        camera.lookFrom(side, pivot);
        QVERIFY(camera.isOrthographic());
        // Along the sight nothing moves in the picture, and nothing is cut off, however far it is.
        for (const float depth : {-5000.0f, 0.0f, 5000.0f}) {
            const QVector3D place = at(model[1] + depth * camera.sight());
            QVERIFY((place.toVector2D() - at(model[1]).toVector2D()).length() < 1e-3f);
            QVERIFY(std::fabs(place.z()) < 1.0f);
        }
        const QVector3D corner = at(model[7]) - at(pivot);
        camera.dolly(pivot, 0.5f);
        QVERIFY(near(at(pivot), {0.0f, 0.0f, at(pivot).z()}));
        QVERIFY(((at(model[7]) - at(pivot)) - 2.0f * corner).toVector2D().length() < 1e-3f);
        camera.dolly(pivot, 2.0f);
        camera.pan(pivot, 40.0f, -30.0f, 300);
        QVERIFY(std::fabs(at(pivot).x() * 200.0f - 40.0f) < 0.01f);
        QVERIFY(std::fabs(at(pivot).y() * 150.0f - 30.0f) < 0.01f);
        camera.pan(pivot, -40.0f, 30.0f, 300);
        QVERIFY(camera.isOrthographic());
    }
    // As near as one likes; what turns or flies sees in perspective again, as large.
    camera.lookFrom(Side::Top, pivot);
    QVERIFY(std::fabs(camera.sight().y() + 1.0f) < 1e-5f);
    camera.orbitDrag(pivot, 1.0f, 0.0f);
    QVERIFY(!camera.isOrthographic());
    QCOMPARE(camera.pitch(), -Camera::PitchLimit);
    QVERIFY(near(at(pivot), {0.0f, 0.0f, at(pivot).z()}));
    for (int turn = 0; turn < 2; ++turn) {
        camera.lookFrom(Side::Front, pivot);
        turn == 0 ? camera.turnTo(170.0f, 0.0f) : camera.flyTo(camera.position() + QVector3D(0, 0, 1));
        QVERIFY(!camera.isOrthographic());
    }
    // One that stays orthographic comes nearer by flying forward.
    camera.lookFrom(Side::Front, pivot);
    camera.setOrthographic(true, pivot);
    const float large = std::fabs(at(model[7]).x() - at(pivot).x());
    camera.flyTo(camera.position() + 20.0f * QVector3D(0, 0, 1) * (camera.sight().z() > 0 ? -1.0f : 1.0f));
    camera.orbit(pivot, camera.yaw(), 0.0f);
    QVERIFY(camera.isOrthographic() && std::fabs(at(model[7]).x() - at(pivot).x()) > 1.01f * large);
    for (int i = 0; i < 200; ++i)
        camera.dolly(pivot, i < 100 ? 0.5f : 3.0f);
    QVERIFY(std::fabs(at(model[7]).x()) < 1.0f && isWithin(1e6f, camera.position()));
}

// However near, and however large what was framed, another side and a flight aside show it as large.
void tst_Camera::orthographicSizeStays()
{
    const QVector3D pivot(0.0f, 300.0f, 0.0f);
    const auto height = [](const Camera &camera) { return 1.0f / camera.projectionMatrix(400, 300)(1, 1); };
    Camera close;
    close.setOrthographicSides(true);
    close.lookFrom(Camera::Side::Front, pivot);
    close.dolly(pivot, 0.005f);
    QVERIFY(height(close) < 5.0f);
    const float before = height(close);
    for (const auto side : {Camera::Side::Right, Camera::Side::Top, Camera::Side::Back}) {
        close.lookFrom(side, pivot);
        QCOMPARE(height(close), before);
    }
    close.setOrthographic(true, pivot);
    close.flyTo(close.position() + close.rotation().rotatedVector({1.0f, 0.0f, 0.0f}));
    QVERIFY(std::fabs(height(close) - before) < 1e-3f);
    close.flyTo(close.position() + close.sight()); // back by one
    QVERIFY(std::fabs(height(close) - before - 1.0f) < 1e-3f);

    Camera huge;
    huge.setOrthographic(true, pivot);
    huge.frame(box(1500.0f), {400, 300});
    const float large = height(huge);
    huge.dolly(pivot, 1.1f);
    huge.setLens(91.0f, pivot);
    huge.flyTo(huge.position() + huge.sight());
    QVERIFY(height(huge) > 0.99f * large);
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

void tst_Camera::fillsThePicture()
{
    struct Row
    {
        const char *name;
        float yaw, pitch;
        QSize size;
        float scale;
    };
    const Row rows[] = {
        {"askew, wide", 30.0f, 15.0f, {400, 100}, 1.0f}, {"behind, high", 200.0f, -40.0f, {100, 300}, 1.0f},
        {"above", 0.0f, 90.0f, {100, 100}, 1.0f},        {"tiny", 30.0f, 15.0f, {100, 100}, 0.001f},
        {"huge", 30.0f, 15.0f, {100, 100}, 10000.0f},
    };
    for (const Row &row : rows) {
        const std::vector<QVector3D> points = box(row.scale);
        const Framing framing = frameAll(points, row.yaw, row.pitch, row.size);
        float widest = 0.0f;
        for (const QVector3D &point : points) {
            const QVector3D place = seen(framing, point);
            for (int axis = 0; axis < 3; ++axis)
                QVERIFY2(qAbs(place[axis]) < 1.0f, row.name);
            widest = qMax(widest, qMax(qAbs(place.x()), qAbs(place.y())));
        }
        QVERIFY2(widest > 0.92f, row.name);
    }
}

// What reaches towards the eye beside a model does not draw it out of the middle, be it tall in a wide
// picture or broad in a high one.
void tst_Camera::centresTheModel()
{
    for (const bool upright : {true, false}) {
        std::vector<QVector3D> points{{-20, -90, 0}, {20, -90, 0}, {-20, 90, 0}, {20, 90, 0}, {60, 10, -170}};
        if (!upright) {
            for (QVector3D &point : points)
                point = {point.y(), point.x(), point.z()};
        }
        const Framing framing = frameAll(points, 0.0f, 0.0f, upright ? QSize(200, 100) : QSize(100, 200));
        for (int axis = 0; axis < 2; ++axis) {
            float low = 1.0f, high = -1.0f;
            for (const QVector3D &point : points) {
                low = qMin(low, seen(framing, point)[axis]);
                high = qMax(high, seen(framing, point)[axis]);
            }
            QVERIFY(low > -0.96f && high < 0.96f);
            QVERIFY2(qAbs(low + high) < 0.01f, qPrintable(QString::number(double(low))));
            QVERIFY(high > 0.92f || (axis == 1) != upright);
        }
    }
}

void tst_Camera::standsWhereAsked()
{
    // A model's left side, at +x of its own space, lies at -x of the view's.
    const std::vector<QVector3D> sides{{-10.0f, 0.0f, 0.0f}, {10.0f, 0.0f, 0.0f}};
    const QSize size(100, 100);
    const Framing front = frameAll(sides, 0.0f, 0.0f, size);
    QVERIFY(seen(front, sides[0]).x() > seen(front, sides[1]).x());
    const Framing left = frameAll(sides, 90.0f, 0.0f, size);
    QVERIFY(seen(left, sides[0]).z() < seen(left, sides[1]).z());
    const std::vector<QVector3D> heights{{0.0f, 10.0f, 0.0f}, {0.0f, -10.0f, 0.0f}};
    const Framing above = frameAll(heights, 0.0f, 60.0f, size);
    QVERIFY(seen(above, heights[0]).z() < seen(above, heights[1]).z());
}

void tst_Camera::oddPoints()
{
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const QSize size(100, 100);
    std::vector<QVector3D> points = box(1.0f);
    const Framing plain = frameAll(points, 30.0f, 15.0f, size);
    points.push_back({nan, 0.0f, 0.0f});
    points.push_back({0.0f, std::numeric_limits<float>::infinity(), 0.0f});
    const Framing withOdd = frameAll(points, 30.0f, 15.0f, size);
    QCOMPARE(withOdd.view, plain.view);
    QCOMPARE(withOdd.projection, plain.projection);

    const QVector3D alone(7.0f, 8.0f, 9.0f);
    const QVector3D middle = seen(frameAll({alone}, 30.0f, 15.0f, size), alone);
    QVERIFY(qAbs(middle.x()) < 0.01f && qAbs(middle.y()) < 0.01f);
    QVERIFY(qAbs(seen(frameAll({}, 0.0f, 0.0f, size), {}).x()) < 0.01f);
}

QTEST_GUILESS_MAIN(tst_Camera)
#include "tst_camera.moc"
