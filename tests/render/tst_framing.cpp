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
    void fillsThePicture_data();
    void fillsThePicture();
    void centresTheModel_data();
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

void tst_Framing::fillsThePicture_data()
{
    QTest::addColumn<float>("yaw");
    QTest::addColumn<float>("pitch");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<float>("scale");
    QTest::newRow("front") << 0.0f << 0.0f << QSize(100, 100) << 1.0f;
    QTest::newRow("askew, wide") << 30.0f << 15.0f << QSize(400, 100) << 1.0f;
    QTest::newRow("behind, high") << 200.0f << -40.0f << QSize(100, 300) << 1.0f;
    QTest::newRow("above") << 0.0f << 90.0f << QSize(100, 100) << 1.0f;
    QTest::newRow("tiny") << 30.0f << 15.0f << QSize(100, 100) << 0.001f;
    QTest::newRow("huge") << 30.0f << 15.0f << QSize(100, 100) << 10000.0f;
}

void tst_Framing::fillsThePicture()
{
    QFETCH(float, yaw);
    QFETCH(float, pitch);
    QFETCH(QSize, size);
    QFETCH(float, scale);
    const std::vector<QVector3D> points = box(scale);
    const Framing framing = frameAll(points, yaw, pitch, size);
    float widest = 0.0f;
    for (const QVector3D &point : points) {
        const QVector3D place = seen(framing, point);
        for (int axis = 0; axis < 3; ++axis)
            QVERIFY(qAbs(place[axis]) < 1.0f);
        widest = qMax(widest, qMax(qAbs(place.x()), qAbs(place.y())));
    }
    QVERIFY(widest > 0.92f);
}

void tst_Framing::centresTheModel_data()
{
    QTest::addColumn<bool>("upright");
    QTest::newRow("tall in a wide picture") << true;
    QTest::newRow("broad in a high picture") << false;
}

// What reaches towards the eye beside a model does not draw it out of the middle.
void tst_Framing::centresTheModel()
{
    QFETCH(bool, upright);
    std::vector<QVector3D> points{{-20, -90, 0}, {20, -90, 0}, {-20, 90, 0}, {20, 90, 0}, {60, 10, -170}};
    if (!upright) {
        for (QVector3D &point : points)
            point = {point.y(), point.x(), point.z()};
    }
    const Framing framing = frameAll(points, 0.0f, 0.0f, upright ? QSize(200, 100) : QSize(100, 200));
    QVector3D low(1, 1, 1), high(-1, -1, -1);
    for (const QVector3D &point : points) {
        const QVector3D place = seen(framing, point);
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] = qMin(low[axis], place[axis]);
            high[axis] = qMax(high[axis], place[axis]);
        }
    }
    for (int axis = 0; axis < 2; ++axis) {
        QVERIFY(low[axis] > -0.96f && high[axis] < 0.96f);
        QVERIFY2(qAbs(low[axis] + high[axis]) < 0.01f, qPrintable(QString::number(double(low[axis]))));
    }
    QVERIFY(high[upright ? 1 : 0] > 0.92f);
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
