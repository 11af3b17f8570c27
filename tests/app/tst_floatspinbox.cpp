// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoiceBox.h"
#include "FloatSpinBox.h"
#include "TestSupport.h"

#include <QLineEdit>
#include <QSignalSpy>

#include <cstring>
#include <limits>
#include <random>

class tst_FloatSpinBox : public QObject
{
    Q_OBJECT

private slots:
    void everyFiniteTextReadsBackTheSame();
    void showingChangesNothing();
    void typing_data();
    void typing();
    void stepping();
    void aChoiceWithoutANameIsShownAsItsNumber();

private:
    static float fromBits(quint32 bits)
    {
        float value;
        std::memcpy(&value, &bits, sizeof value);
        return value;
    }
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

void tst_FloatSpinBox::everyFiniteTextReadsBackTheSame()
{
    std::mt19937 random(1);
    const float chosen[] = {0.0f,
                            -0.0f,
                            0.1f,
                            1e-7f,
                            1.17549435e-38f,
                            std::numeric_limits<float>::denorm_min(),
                            std::numeric_limits<float>::max(),
                            16777217.0f,
                            123456.789f};
    for (int i = 0; i < 100000; ++i) {
        const float value = i < int(std::size(chosen)) ? chosen[i] : fromBits(quint32(random()));
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

void tst_FloatSpinBox::showingChangesNothing()
{
    FloatSpinBox box;
    QSignalSpy edited(&box, &FloatSpinBox::valueEdited);
    box.show();
    for (const quint32 bits :
         {0x7fa01234u, 0x7f800000u, 0xff800000u, 0x00000001u, 0x80000000u, 0x3dcccccdu}) {
        box.setValue(fromBits(bits));
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Tab);
        QTest::keyClick(&box, Qt::Key_Return);
        box.clearFocus();
        QCOMPARE(toBits(box.value()), bits);
    }
    QCOMPARE(edited.count(), 0);
}

void tst_FloatSpinBox::typing_data()
{
    QTest::addColumn<float>("shown");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<int>("key");
    QTest::addColumn<float>("result");
    QTest::addColumn<int>("edits");
    const int enter = Qt::Key_Return;
    QTest::newRow("number") << 1.0f << "2.5" << enter << 2.5f << 1;
    QTest::newRow("comma") << 1.0f << "2,5" << enter << 2.5f << 1;
    QTest::newRow("exponent") << 1.0f << "-1e-7" << enter << -1e-7f << 1;
    QTest::newRow("the same") << 2.5f << "2.50" << enter << 2.5f << 0;
    QTest::newRow("over a NaN") << std::numeric_limits<float>::quiet_NaN() << "3" << enter << 3.0f << 1;
    QTest::newRow("no number") << 1.0f << "e" << enter << 1.0f << 0;
    QTest::newRow("too large for a float") << 1.0f << "1e39" << enter << 1.0f << 0;
    QTest::newRow("infinity cannot be typed") << 1.0f << "inf" << enter << 1.0f << 0;
    QTest::newRow("given up") << 1.0f << "7" << int(Qt::Key_Escape) << 1.0f << 0;
}

void tst_FloatSpinBox::typing()
{
    QFETCH(float, shown);
    QFETCH(QString, typed);
    QFETCH(int, key);
    QFETCH(float, result);
    QFETCH(int, edits);
    FloatSpinBox box;
    QSignalSpy edited(&box, &FloatSpinBox::valueEdited);
    box.setValue(shown);
    type(box, typed, Qt::Key(key));
    QCOMPARE(box.value(), result);
    QCOMPARE(edited.count(), edits);
    QCOMPARE(box.findChild<QLineEdit *>()->text(), FloatSpinBox::textOf(result));
}

void tst_FloatSpinBox::stepping()
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

void tst_FloatSpinBox::aChoiceWithoutANameIsShownAsItsNumber()
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

QTEST_MAIN(tst_FloatSpinBox)
#include "tst_floatspinbox.moc"
