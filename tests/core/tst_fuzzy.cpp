// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Fuzzy.h"

#include <QtTest>

#include <limits>

class TestFuzzy : public QObject
{
    Q_OBJECT

private slots:
    void comparesRelativeToTheLarger_data();
    void comparesRelativeToTheLarger();
};

void TestFuzzy::comparesRelativeToTheLarger_data()
{
    QTest::addColumn<float>("a");
    QTest::addColumn<float>("b");
    QTest::addColumn<bool>("equal");

    constexpr float inf = std::numeric_limits<float>::infinity();
    constexpr float nan = std::numeric_limits<float>::quiet_NaN();
    constexpr float denormal = std::numeric_limits<float>::denorm_min(); // 1.4e-45
    constexpr float max = std::numeric_limits<float>::max();

    QTest::newRow("same") << 1.5f << 1.5f << true;
    QTest::newRow("zeros of both signs") << 0.0f << -0.0f << true;
    QTest::newRow("one step of a float apart") << 1.0f << std::nextafter(1.0f, 2.0f) << true;
    QTest::newRow("just inside a millionth") << 1000.0f << 1000.0009f << true;
    QTest::newRow("just outside a millionth") << 1000.0f << 1000.0012f << false;
    QTest::newRow("relative, not absolute") << 1e-7f << 1.1e-7f << false;
    QTest::newRow("opposite signs") << 1.0f << -1.0f << false;
    QTest::newRow("smallest denormal and zero") << denormal << 0.0f << true;
    QTest::newRow("eight denormal steps from zero") << 8.0f * denormal << 0.0f << false;
    QTest::newRow("tiny but normal against zero") << 1e-30f << 0.0f << false;
    QTest::newRow("the ends of the range") << max << -max << false;
    QTest::newRow("NaN and itself") << nan << nan << false;
    QTest::newRow("NaN and a number") << nan << 1.0f << false;
    QTest::newRow("infinity and a number") << inf << max << false;
}

void TestFuzzy::comparesRelativeToTheLarger()
{
    QFETCH(float, a);
    QFETCH(float, b);
    QFETCH(bool, equal);
    QCOMPARE(fuzzyEqual(a, b), equal);
    QCOMPARE(fuzzyEqual(b, a), equal);
}

QTEST_GUILESS_MAIN(TestFuzzy)
#include "tst_fuzzy.moc"
