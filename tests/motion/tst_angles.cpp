// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KeySmoothing.h"
#include "TurnAngles.h"

#include <QtTest>

#include <cmath>

using namespace Motion;

/// Rotations as angles, and keys smoothed.
class tst_Angles : public QObject
{
    Q_OBJECT

private slots:
    void anglesMakeTheRotationThatTheyCameOf()
    {
        for (const double x : {-170.0, -45.0, 0.0, 30.0, 180.0, 400.0}) {
            for (const double y : {-270.0, -90.0, -89.9999, 0.0, 60.0, 90.0, 90.00001, 135.0}) {
                for (const double z : {-180.0, -10.0, 0.0, 90.0, 725.0}) {
                    const Angles angles{x, y, z};
                    const Turn turn = turnOf(angles);
                    const Angles first = anglesOf(turn);
                    QVERIFY(first[1] >= -90 && first[1] <= 90);
                    QVERIFY(angleBetween(turnOf(first), turn) < 1e-4);
                    // From a single-precision key, near to where it was: nothing jumps.
                    const Angles near{x + 3, y - 2, z + 4};
                    const Turn key = Turn::of(turn.toVector());
                    const Angles found = anglesNear(key, near);
                    QVERIFY2(angleBetween(turnOf(found), turn) < 1e-4,
                             qPrintable(QStringLiteral("%1 %2 %3").arg(x).arg(y).arg(z)));
                    const bool isAtPole = std::abs(std::cos(y * M_PI / 180)) < 1e-3;
                    for (size_t i = 0; i < 3; ++i)
                        QVERIFY(std::abs(found[i] - angles[i]) < (isAtPole ? 10 : 0.01));
                }
            }
        }
        // The axes are fixed ones, x first.
        const Place up = turnOf({90, 0, 90}) * Place{0, 1, 0};
        QVERIFY(lengthOf(up - Place{0, 0, 1}) < 1e-12);
    }

    void aTrackGoesOnOverFullTurnsAndPoles()
    {
        std::vector<QVector4D> keys;
        constexpr int count = 721;
        for (int i = 0; i < count; ++i) {
            const Turn turn = turnOf({20.0 + i, double(i) / 2, 3.0 * i});
            keys.push_back((i % 3 ? turn : turn.negated()).toVector());
        }
        keys[5] = {0, 0, 0, 0};
        keys[9].setX(NAN);
        const std::vector<Angles> angles = anglesOfTrack(keys.data(), count);
        QVERIFY(std::isnan(angles[5][0]) && std::isnan(angles[9][2]));
        QVERIFY(std::abs(angles[720][0] - 740) < 0.1);
        QVERIFY(std::abs(angles[720][1] - 360) < 0.1);
        QVERIFY(std::abs(angles[720][2] - 2160) < 0.1);
        // A key keeps its sign.
        for (const int i : {1, 3})
            QVERIFY((keyOf(angles[size_t(i)], keys[size_t(i)]) - keys[size_t(i)]).length() < 1e-5f);
    }

    void smoothingLeavesEndsAndStraightLines()
    {
        std::vector<double> line, spike(11, 0.0);
        for (int i = 0; i < 11; ++i)
            line.push_back(3.0 * i);
        spike[5] = 8.0;
        std::vector<bool> all(11, true), numbers(11, true);
        QCOMPARE(smoothingReach(all, numbers, 3), (std::vector<int>{0, 1, 2, 3, 3, 3, 3, 3, 2, 1, 0}));
        std::vector<bool> some(11, false);
        for (const int i : {3, 4, 5, 6})
            some[size_t(i)] = true;
        const std::vector<int> reach = smoothingReach(some, numbers, 5);
        QCOMPARE(reach, (std::vector<int>{0, 0, 0, 1, 2, 2, 1, 0, 0, 0, 0}));
        for (int i = 0; i < 11; ++i)
            QVERIFY(std::abs(smoothed(line, i, reach[size_t(i)]) - line[size_t(i)]) < 1e-12);
        QCOMPARE(smoothed(spike, 5, 1), 4.0);
        QCOMPARE(smoothed(spike, 4, 1), 2.0);
        QCOMPARE(smoothed(spike, 5, 2), 3.0);
        numbers[4] = false;
        QCOMPARE(smoothingReach(all, numbers, 3), (std::vector<int>{0, 1, 1, 0, 0, 0, 1, 2, 2, 1, 0}));
    }

    void rotationsAreBlendedWhateverTheirSigns()
    {
        std::vector<QVector4D> keys;
        for (int i = 0; i < 5; ++i) {
            const Turn turn = turnOf({0, 0, 10.0 * i + (i == 2 ? 8 : 0)});
            keys.push_back((i % 2 ? turn.negated() : turn).toVector());
        }
        const Turn middle = Turn::of(smoothed(keys.data(), 2, 1));
        QVERIFY(std::abs(anglesOf(middle)[2] - 24) < 0.05);
        QVERIFY(std::abs(smoothed(keys.data(), 2, 2).length() - 1.0f) < 1e-6f);
    }
};

QTEST_GUILESS_MAIN(tst_Angles)
#include "tst_angles.moc"
