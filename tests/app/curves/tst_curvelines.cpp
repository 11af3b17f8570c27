// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveLines.h"
#include "ValueScale.h"

#include <QRandomGenerator>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <map>

/// Curves as points, and the axis of their values.
class tst_CurveLines : public QObject
{
    Q_OBJECT

private slots:
    void eachColumnKeepsItsExtremes()
    {
        QRandomGenerator random(7);
        std::vector<double> values;
        for (int i = 0; i < 10000; ++i)
            values.push_back(random.bounded(1000.0));
        const auto xOf = [](int frame) { return 40.0 + frame * 0.03; };
        const auto yOf = [&](int frame) { return values[size_t(frame)]; };
        const QVector<QPolygonF> lines = curveLines(0, 9999, xOf, yOf);
        QCOMPARE(lines.size(), 1);
        QVERIFY(lines[0].size() <= 4 * 301);
        using Range = std::pair<double, double>;
        std::map<int, Range> wanted, drawn;
        const auto widen = [](std::map<int, Range> &ranges, double x, double y) {
            const auto [range, isNew] = ranges.try_emplace(int(x), y, y);
            range->second = {std::min(range->second.first, y), std::max(range->second.second, y)};
        };
        for (int i = 0; i < 10000; ++i)
            widen(wanted, xOf(i), yOf(i));
        double last = 0;
        for (const QPointF &point : lines[0]) {
            widen(drawn, point.x(), point.y());
            QVERIFY(point.x() >= last);
            last = point.x();
        }
        QVERIFY(drawn == wanted);
        QCOMPARE(lines[0].first(), QPointF(xOf(0), yOf(0)));
        QCOMPARE(lines[0].last(), QPointF(xOf(9999), yOf(9999)));
    }

    void aKeyThatIsNoNumberMakesAGap()
    {
        const auto yOf = [](int frame) { return frame == 3 || frame == 4 ? NAN : double(frame * frame); };
        for (const double width : {10.0, 0.4}) {
            const auto lines = curveLines(
                0, 7, [width](int frame) { return frame * width; }, yOf);
            QCOMPARE(lines.size(), 2);
            QCOMPARE(lines[0].last().y(), 4.0);
            QCOMPARE(lines[1].first().y(), 25.0);
        }
    }

    void theAxisHasRoundNumbers()
    {
        ValueScale scale;
        scale.fit(10, 210);
        scale.show(-30, 50);
        QVERIFY(scale.yOf(50) > 10 && scale.yOf(-30) < 210);
        QCOMPARE(scale.step(22), 20.0);
        const double value = scale.valueAt(60);
        scale.zoom(4, 60);
        QVERIFY(std::abs(scale.valueAt(60) - value) < 1e-9);
        QCOMPARE(scale.step(22), 5.0);
        scale.show(3, 3); // level
        QVERIFY(std::abs(scale.yOf(3) - 110) < 1e-6);
        for (int i = 0; i < 200; ++i)
            scale.zoom(2, 30);
        QVERIFY(scale.perPixel() > 0 && std::isfinite(scale.step(22)));
    }
};

QTEST_GUILESS_MAIN(tst_CurveLines)
#include "tst_curvelines.moc"
