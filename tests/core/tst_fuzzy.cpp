// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Fuzzy.h"

#include <QtTest>

#include <limits>

class TestFuzzy : public QObject
{
    Q_OBJECT

private slots:
    void comparesRelativeToTheLarger();
};

void TestFuzzy::comparesRelativeToTheLarger()
{
    constexpr float inf = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float denormal = std::numeric_limits<float>::denorm_min(); // 1.4e-45
    constexpr float max = std::numeric_limits<float>::max();
    const struct
    {
        float a;
        float b;
        bool equal;
    } pairs[] = {
        {0.0f, -0.0f, true},
        {1000.0f, 1000.0009f, true}, // just inside a millionth
        {1000.0f, 1000.0012f, false},
        {1e-7f, 1.1e-7f, false},
        {1.0f, -1.0f, false},
        {denormal, 0.0f, true},
        {8.0f * denormal, 0.0f, false},
        {max, -max, false},
        {nan, nan, false},
        {inf, max, false},
    };
    for (const auto &[a, b, equal] : pairs) {
        QVERIFY2(fuzzyEqual(a, b) == equal, qPrintable(QString::number(double(a), 'g', 9)));
        QVERIFY2(fuzzyEqual(b, a) == equal, qPrintable(QString::number(double(a), 'g', 9)));
    }
}

QTEST_GUILESS_MAIN(TestFuzzy)
#include "tst_fuzzy.moc"
