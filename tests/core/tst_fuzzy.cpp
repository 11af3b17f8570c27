// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Fuzzy.h"

#include <QtTest>

#include <limits>

class tst_Fuzzy : public QObject
{
    Q_OBJECT

private slots:
    void comparesRelativeToTheLarger()
    {
        using Limits = std::numeric_limits<float>;
        constexpr float denormal = Limits::denorm_min(); // 1.4e-45
        const struct
        {
            float a, b;
            bool equal;
        } pairs[] = {
            {0.0f, -0.0f, true},
            {1000.0f, 1000.0009f, true}, // just inside a millionth
            {1000.0f, 1000.0012f, false},
            {1e-7f, 1.1e-7f, false},
            {1.0f, -1.0f, false},
            {denormal, 0.0f, true},
            {8.0f * denormal, 0.0f, false},
            {Limits::max(), -Limits::max(), false},
            {Limits::quiet_NaN(), Limits::quiet_NaN(), false},
            {Limits::infinity(), Limits::max(), false},
        };
        for (const auto &[a, b, equal] : pairs)
            QVERIFY2(fuzzyEqual(a, b) == equal && fuzzyEqual(b, a) == equal,
                     qPrintable(QString::number(double(a), 'g', 9)));
    }
};

QTEST_GUILESS_MAIN(tst_Fuzzy)
#include "tst_fuzzy.moc"
