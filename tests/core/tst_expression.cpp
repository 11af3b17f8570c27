// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Expression.h"
#include "NumberText.h"

#include <QtTest>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

class tst_Expression : public QObject
{
    Q_OBJECT

private slots:
    void calculates()
    {
        // What x = 8 and i = 3 make of it.
        const struct
        {
            const char *text;
            double result;
            bool relative;
        } cases[] = {
            {"2*3", 6.0, false},
            {" 1 / 4 ", 0.25, false},
            {"-(4+5)", -9.0, false},
            {"2+3*4-5", 9.0, false},
            {"2-3-4", -5.0, false},
            {"64/8/2", 4.0, false},
            {"2*-3", -6.0, false},
            {"--3", 3.0, false},
            {"0x1F", 31.0, false},
            {"0XfF-1", 254.0, false},
            {"180deg", Expression::Pi, false},
            {"(30+60) DEG", Expression::Pi / 2, false},
            {"-90deg", -Expression::Pi / 2, false},
            {"2*pi", 2 * Expression::Pi, false},
            {"1,5*2", 3.0, false},
            {"1e3+.5", 1000.5, false},
            {"-5", -5.0, false},
            {"+5", 5.0, false},
            {"=7", 7.0, false},
            {"+=5", 13.0, true},
            {"-=5", 3.0, true},
            {"*=1.5", 12.0, true},
            {"/=2", 4.0, true},
            {"-= 2*3", 2.0, true},
            {"*=1+1", 16.0, true},
            {"=x*2+1", 17.0, true},
            {"X-i", 5.0, true},
            {"100+10*i", 130.0, true},
            {"=-x", -8.0, true},
        };
        for (const auto &[text, result, relative] : cases) {
            Expression expression;
            QCOMPARE(expression.read(QLatin1String(text)), QString());
            const double value = expression.value({8.0, 3.0, Expression::Radian});
            QVERIFY2(std::fabs(value - result) < 1e-12, text);
            QVERIFY2(expression.isRelative() == relative, text);
        }
        Expression angle;
        QVERIFY(angle.read(QStringLiteral("45deg")).isEmpty() && angle.value({0.0, 0.0, 1.0}) == 45.0);
    }

    void refuses()
    {
        // The reason's beginning; whether more could follow.
        const struct
        {
            const char *text;
            const char *reason;
            bool incomplete;
        } cases[] = {
            {"", "Something is missing", true},
            {"2*", "Something is missing", true},
            {"*=", "Something is missing", true},
            {"*", "'*'", true},
            {"(2", "A parenthesis is not closed", true},
            {"2)", "')'", false},
            {"(2 3)", "'3)'", false},
            {"2 3", "'3'", false},
            {"0x", "Something is missing", true},
            {"2+0xg", "'0xg'", false},
            {"p", "'p'", true},
            {"45de", "'de'", true},
            {"2*1e-", "'e-'", true},
            {"2y", "'y'", false},
            {"pie", "'pie'", false},
            {"x2", "'x2'", false},
            {"2x", "'x'", false},
            {"1.2.3*2", "'.3*2'", false},
            {"2*1e999", "A number in it is too large", false},
            {"==2", "'=2'", false},
        };
        for (const auto &[text, reason, incomplete] : cases) {
            Expression expression;
            const QString refusal = expression.read(QLatin1String(text));
            QVERIFY2(refusal.startsWith(QLatin1String(reason)), qPrintable(text + (": " + refusal)));
            QVERIFY2(expression.isIncomplete() == incomplete, text);
            QCOMPARE(expression.value({}), 0.0);
        }
        // Bounded, whatever is pasted.
        const auto refused = [](const QString &text) { return !Expression().read(text).isEmpty(); };
        const QString deep(Expression::MostDepth - 1, QLatin1Char('('));
        const QString shut(Expression::MostDepth - 1, QLatin1Char(')'));
        const QString least = deep + QLatin1Char('1') + shut;
        QVERIFY(!refused(least) && refused(QLatin1Char('(') + least + QLatin1Char(')')));
        QVERIFY(refused(QString(Expression::MostCharacters + 1, QLatin1Char('1'))));
        QVERIFY(refused(QString(400, QLatin1Char('-')) + QLatin1Char('1')));
        QVERIFY(refused(QStringLiteral("5") + QChar() + QStringLiteral("+1")));
        // As many operands as wait at once.
        QString nested(QStringLiteral("1"));
        for (int i = 1; i < Expression::MostDepth; ++i)
            nested = QStringLiteral("1+1*(%1)").arg(nested);
        Expression expression;
        QCOMPARE(expression.read(QStringLiteral("+=") + nested), QString());
        QCOMPARE(expression.value({}), double(Expression::MostDepth));
    }

    void anyTextIsReadOrRefused()
    {
        std::mt19937 random(7);
        const QString letters = QStringLiteral("0123456789.,+-*/=()xipdeg \t0xE\u00e9\u0442");
        int read = 0;
        for (int round = 0; round < 50000; ++round) {
            QString text;
            for (auto i = random() % 12; i > 0; --i)
                text += letters[int(random() % quint32(letters.size()))];
            Expression expression;
            const bool isRead = expression.read(text).isEmpty();
            read += isRead;
            expression.value({1.0, 2.0, 3.0});
            QVERIFY2(!isRead || !expression.isIncomplete(), qPrintable(text));
        }
        QVERIFY(read > 500);
    }

    void wholeNumbersAndFloats()
    {
        qint64 whole = 0;
        QVERIFY(Expression::whole(0.1 * 3 * 10, whole) && whole == 3);
        QVERIFY(Expression::whole(-2147483648.0, whole) && whole == -2147483648LL);
        for (const double none : {2.5, 2.0001, 4294967295.25, 1e300, std::nan(""), HUGE_VAL})
            QVERIFY(!Expression::whole(none, whole));

        float value = 0.0f;
        constexpr float most = std::numeric_limits<float>::max();
        QVERIFY(NumberText::narrow(3.4028235e38, value) && value == most);
        QVERIFY(NumberText::narrow(-3.4028235e38, value) && value == -most);
        for (const double none : {3.4028236e38, -1e39, std::nan(""), -HUGE_VAL})
            QVERIFY(!NumberText::narrow(none, value));
        // What is not changed stays what it is.
        std::mt19937 random(3);
        for (int i = 0; i < 100000; ++i) {
            const auto bits = quint32(random());
            float each = 0.0f;
            std::memcpy(&each, &bits, sizeof each);
            if (std::isfinite(each))
                QVERIFY(NumberText::narrow(NumberText::written(each), value) && value == each);
        }
        QCOMPARE(NumberText::written(0.1f), 0.1);
        QVERIFY(Expression::isPlain(QStringLiteral("-1.000,5e")) &&
                !Expression::isPlain(QStringLiteral("1-2")));
    }
};

QTEST_GUILESS_MAIN(tst_Expression)
#include "tst_expression.moc"
