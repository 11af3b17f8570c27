// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Framing.h"

#include <QtTest>

#include <limits>

/// The camera that has a whole model in view.
class tst_Framing : public QObject
{
    Q_OBJECT

private slots:
    void fillsThePicture();
    void centresTheModel();
    void standsWhereAsked();
    void oddPoints();
};

namespace {
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

void tst_Framing::fillsThePicture()
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
void tst_Framing::centresTheModel()
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

void tst_Framing::standsWhereAsked()
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

void tst_Framing::oddPoints()
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

QTEST_APPLESS_MAIN(tst_Framing)
#include "tst_framing.moc"
