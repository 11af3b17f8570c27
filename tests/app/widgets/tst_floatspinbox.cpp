// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoiceBox.h"
#include "Find.h"
#include "FloatSpinBox.h"
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
            const QString text = FloatSpinBox::textOf(value);
            if (!FloatSpinBox::parse(text, back) || toBits(back) != toBits(value))
                QFAIL(qPrintable(text));
        }
        QCOMPARE(FloatSpinBox::textOf(0.1f), QStringLiteral("0.1"));
        QCOMPARE(FloatSpinBox::textOf(-250.0f), QStringLiteral("-250"));
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
        const auto check = [](float shown, const char *typed, float result, Qt::Key end = Qt::Key_Return) {
            FloatSpinBox box;
            QSignalSpy edited(&box, &FloatSpinBox::valueEdited);
            box.setValue(shown);
            type(box, QString::fromLatin1(typed), end);
            QCOMPARE(box.value(), result);
            QCOMPARE(edited.count(), shown == result ? 0 : 1);
            QCOMPARE(box.findChild<QLineEdit *>()->text(), FloatSpinBox::textOf(result));
        };
        check(1.0f, "2,5", 2.5f);
        check(1.0f, "-1e-7", -1e-7f);
        check(2.5f, "2.50", 2.5f);
        check(std::numeric_limits<float>::quiet_NaN(), "3", 3.0f);
        check(1.0f, "e", 1.0f);
        check(1.0f, "1e39", 1.0f); // too large for a float
        check(1.0f, "inf", 1.0f);
        check(1.0f, "7", 1.0f, Qt::Key_Escape);
    }

    void stepping()
    {
        FloatSpinBox box;
        box.setValue(0.1f);
        QSignalSpy edited(&box, &FloatSpinBox::valueEdited);
        QTest::keyClick(&box, Qt::Key_Up);
        QCOMPARE(box.value(), 0.1f + 1.0f);
        QTest::keyClick(&box, Qt::Key_PageDown);
        QCOMPARE(box.value(), 0.1f + 1.0f - 10.0f);
        QCOMPARE(edited.count(), 2);
        // A step that the float cannot hold is none.
        box.setValue(std::numeric_limits<float>::max());
        QTest::keyClick(&box, Qt::Key_Up);
        QCOMPARE(edited.count(), 2);
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
    }

private:
    static quint32 toBits(float value)
    {
        quint32 bits;
        std::memcpy(&bits, &value, sizeof bits);
        return bits;
    }
    static void type(QWidget &editor, const QString &text, Qt::Key end)
    {
        auto *line = editor.findChild<QLineEdit *>();
        line->selectAll();
        QTest::keyClicks(line, text);
        QTest::keyClick(&editor, end);
    }
};

QTEST_MAIN(tst_FloatSpinBox)
#include "tst_floatspinbox.moc"
