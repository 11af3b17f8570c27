// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoiceBox.h"
#include "Find.h"
#include "FloatSpinBox.h"
#include "IntSpinBox.h"
#include "NumberText.h"
#include "SampleModels.h"

#include <cstring>
#include <limits>
#include <random>

class tst_FloatSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void everyFiniteTextReadsBackTheSame()
    {
        std::mt19937 random(1);
        for (int i = 0; i < 100000; ++i) {
            const float value = i < int(SampleModels::oddFloats.size())
                                    ? SampleModels::oddFloats[size_t(i)]
                                    : SampleModels::floatOfBits(quint32(random()));
            if (!std::isfinite(value))
                continue;
            float back = 0.0f;
            const QString text = NumberText::text(value);
            if (!NumberText::parse(text, back) || toBits(back) != toBits(value))
                QFAIL(qPrintable(text));
        }
        QCOMPARE(NumberText::text(0.1f), QStringLiteral("0.1"));
        QCOMPARE(NumberText::text(-250.0f), QStringLiteral("-250"));
    }

    void showingChangesNothing()
    {
        FloatSpinBox box;
        QSignalSpy edited(&box, &FloatSpinBox::valueEdited);
        box.show();
        for (const quint32 bits :
             {0x7fa01234u, 0x7f800000u, 0xff800000u, 0x00000001u, 0x80000000u, 0x3dcccccdu}) {
            box.setValue(SampleModels::floatOfBits(bits));
            box.setFocus();
            QTest::keyClick(&box, Qt::Key_Tab);
            QTest::keyClick(&box, Qt::Key_Return);
            box.clearFocus();
            QCOMPARE(toBits(box.value()), bits);
        }
        QCOMPARE(edited.count(), 0);
    }

    void typing()
    {
        // The keys, and the value and the text that they leave; "" as text: that of the value.
        const auto check = [](auto &&box, auto shown, const char *typed, auto result, const char *text = "") {
            using Box = std::decay_t<decltype(box)>;
            QSignalSpy edited(&box, &Box::valueEdited);
            box.setValue(shown);
            auto *line = box.template findChild<QLineEdit *>();
            const QString before = line->text();
            type(box, QString::fromLatin1(typed));
            QCOMPARE(box.isRefused(), *text != '\0');
            QCOMPARE(box.accessibleDescription().isEmpty(), *text == '\0');
            QTest::keyClick(&box, Qt::Key_Return);
            QCOMPARE(box.value(), result);
            QCOMPARE(edited.count(), shown == result ? 0 : 1);
            QCOMPARE(box.isRefused(), *text != '\0');
            if (!*text)
                return;
            // It stays when the field is left and shown again, until Escape.
            box.clearFocus();
            box.setValue(shown);
            QCOMPARE(line->text(), QString::fromLatin1(text));
            QTest::keyClick(&box, Qt::Key_Up);
            QCOMPARE(box.value(), shown);
            QTest::keyClick(&box, Qt::Key_Escape);
            QVERIFY(!box.isRefused() && line->text() == before);
        };
        const QLocale german(QLocale::German);
        QLocale::setDefault(german);
        const auto real = [](double least, double most) {
            auto box = std::make_unique<FloatSpinBox>();
            box->setMinimum(least);
            box->setMaximum(most);
            box->setDecimals(6);
            return box;
        };
        check(FloatSpinBox(), 1.0f, "2,5", 2.5f);
        check(FloatSpinBox(), 1.0f, "2.5", 2.5f);
        check(FloatSpinBox(), 1.0f, "-1e-7", -1e-7f);
        check(FloatSpinBox(), 2.5f, "2.50", 2.5f);
        check(FloatSpinBox(), std::numeric_limits<float>::quiet_NaN(), "3", 3.0f);
        check(FloatSpinBox(), 1.0f, "1e39", 1.0f, "1e39"); // too large for a float
        check(FloatSpinBox(), 1.0f, "inf", 1.0f, "inf");
        check(FloatSpinBox(), 1.0f, "=2*3", 6.0f);
        check(FloatSpinBox(), 0.1f, "*=3", 0.3f);
        check(FloatSpinBox(), 1.0f, "=1/(x-x)", 1.0f, "=1/(x-x)");
        check(FloatSpinBox(), 1.0f, "2*1e38*10", 1.0f, "2*1e38*10");
        check(FloatSpinBox(), 1.0f, "2*y", 1.0f, "2*y");
        check(*real(1e-6, 1e6), 1.0f, "2.5", 2.5f);
        check(*real(1e-6, 1e6), 1.0f, "0,01", 0.01f);
        check(*real(1e-6, 1e6), 1.0f, "1.0000000001", 1.0f);
        check(*real(1e-6, 1e6), 1.0f, "-5", 1.0f, "-5");
        check(*real(1e-6, 1e6), 1.0f, "1/3", 0.333333f);
        check(*real(0.1, 4), 1.0f, "3*2", 1.0f, "3*2");
        check(*real(0.1, 4), 1.0f, "1/10", 0.1f);
        check(*real(0.1, 4), 1.0f, "1.000,5", 1.0f, "1.000,5");
        const auto whole = [](int most) {
            auto box = std::make_unique<IntSpinBox>();
            box->setMaximum(most);
            return box;
        };
        check(*whole(255), 7, "30", 30);
        check(*whole(255), 7, " +4", 4);
        check(*whole(65535), 7, "1000", 1000);
        check(*whole(255), 7, "=x*2+1", 15);
        check(*whole(255), 7, "0,1*30", 3);
        check(*whole(65535), 7, "0xFFFF", 65535);
        for (const char *typed : {"300", "-5", "1.9", "1,000", "99999999999", "9*99999999999", "0x100",
                                  "+=250", "x/2", "/=0", "2x"})
            check(*whole(255), 7, typed, 7, typed);
        QLocale::setDefault(QLocale::c());

        // What is not finished is not marked yet, and not stored either.
        FloatSpinBox box;
        type(box, QStringLiteral("1e-"));
        QVERIFY(!box.isRefused() && box.value() == 0.0f);
        for (const char *begun : {"2*", "(7", "*", "p", "=", "+=0x"}) {
            type(box, QString::fromLatin1(begun));
            QVERIFY2(!box.isRefused(), begun);
            QTest::keyClick(&box, Qt::Key_Return);
            QVERIFY2(box.isRefused() && box.value() == 0.0f, begun);
        }
    }

    void stepping()
    {
        const auto check = [](float value, double step, int key, int times, float result) {
            FloatSpinBox box;
            box.setSingleStep(step);
            box.setValue(value);
            QSignalSpy edited(&box, &FloatSpinBox::valueEdited);
            for (int i = 0; i < times; ++i)
                QTest::keyClick(&box, Qt::Key(key));
            QCOMPARE(box.value(), result);
            QCOMPARE(edited.count(), value == result ? 0 : times);
        };
        check(2.5f, 0.1, Qt::Key_Up, 2, 2.7f);
        check(0.3f, 0.1, Qt::Key_Down, 3, 0.0f);
        check(0.1f, 1.0, Qt::Key_PageDown, 1, -9.9f);
        check(2.547f, 0.1, Qt::Key_Up, 1, 2.647f);
        check(1e-7f, 0.01, Qt::Key_Up, 1, 0.0100001f);
        // A step that the float cannot hold is none.
        check(std::numeric_limits<float>::max(), 1.0, Qt::Key_Up, 1, std::numeric_limits<float>::max());
    }

    void aChoiceWithoutANameIsShownAsItsNumber()
    {
        ChoiceBox box;
        box.setNames({"zero", "one"});
        QSignalSpy edited(&box, &ChoiceBox::valueEdited);
        box.setValue(200);
        QCOMPARE(box.currentText(), QStringLiteral("200"));
        box.setNames({"null", "eins"});
        QCOMPARE(box.value(), 200);
        QCOMPARE(edited.count(), 0);
        QTest::keyClick(&box, Qt::Key_Home);
        QCOMPARE(box.value(), 0);
        QCOMPARE(box.count(), 2);
        QCOMPARE(edited.count(), 1);
        // A name that is looked for by its letters is given up by Escape, and stored once.
        QTest::keyClicks(&box, QStringLiteral("ei"));
        QCOMPARE(box.currentText(), QStringLiteral("eins"));
        QTest::keyClick(&box, Qt::Key_Escape);
        QVERIFY(box.currentIndex() == 0 && edited.count() == 1);
        ChoiceBox other;
        other.setNames({"null", "eins"});
        QSignalSpy chosen(&other, &ChoiceBox::valueEdited);
        QTest::keyClicks(&other, QStringLiteral("ei"));
        QCOMPARE(chosen.count(), 0);
        QTest::keyClick(&other, Qt::Key_Return);
        QVERIFY(other.value() == 1 && chosen.count() == 1);
    }

private:
    static quint32 toBits(float value)
    {
        quint32 bits;
        std::memcpy(&bits, &value, sizeof bits);
        return bits;
    }
    static void type(QWidget &editor, const QString &text)
    {
        editor.findChild<QLineEdit *>()->selectAll();
        QTest::keyClicks(&editor, text);
    }
};

QTEST_MAIN(tst_FloatSpinBox)
#include "tst_floatspinbox.moc"
