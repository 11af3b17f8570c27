// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ConsoleLog.h"
#include "Find.h"

class tst_Console : public QObject
{
    Q_OBJECT

private slots:
    void rowsAndCounters()
    {
        QListWidget list;
        ConsoleLog console(&list);
        QSignalSpy counts(&console, &ConsoleLog::countsChanged);
        console.info(QStringLiteral("a"));
        console.info(QStringLiteral("b"));
        console.warning(QStringLiteral("c"));
        QVERIFY(!console.hasErrors());

        Log::setSink([&console](LogSeverity severity, const QString &text) { console.log(severity, text); });
        Log::error(QStringLiteral("d\ne"));
        Log::setSink({});
        QTest::ignoreMessage(QtDebugMsg, "a \"quoted\" line");
        Log::info(QStringLiteral("a \"quoted\" line"));
        QVERIFY(console.hasErrors());
        const auto numbers = [&console] {
            return QVector<int>{console.rowCount(), console.infoCount(), console.warningCount(),
                                console.errorCount()};
        };
        for (int i = 0; i < 2; ++i)
            console.error(QStringLiteral("d\ne"));
        console.warning(QStringLiteral("d\ne"));
        QCOMPARE(numbers(), QVector<int>({7, 2, 2, 3}));
        QCOMPARE(counts.count(), 7);

        QStringList rows;
        for (int row = 0; row < list.count(); ++row)
            rows << list.item(row)->text() + list.item(row)->data(Qt::UserRole).toString();
        QCOMPARE(rows, QStringList({"a2", "b2", "c1", "d\ne (3 times)0", "d\ne1"}));

        // Selected from the bottom up, copied from the top down.
        QVERIFY(!console.copyAction()->isEnabled());
        list.show();
        const auto click = [&list](int row, Qt::KeyboardModifiers modifiers) {
            QTest::mouseClick(list.viewport(), Qt::LeftButton, modifiers,
                              list.visualItemRect(list.item(row)).center());
        };
        click(2, Qt::NoModifier);
        click(0, Qt::ControlModifier);
        click(3, Qt::ControlModifier);
        console.copyAction()->trigger();
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("a\nc\nd\ne (3 times)"));
        console.clear();
        QVERIFY(!console.copyAction()->isEnabled());
        QCOMPARE(list.count(), 0);
        QCOMPARE(numbers(), QVector<int>(4));
        QVERIFY(!console.hasErrors());
    }

    void clearsWhatWaits()
    {
        QListWidget list;
        ConsoleLog console(&list);
        for (int i = 0; i < 2 * ConsoleLog::MostInATurn; ++i)
            console.info(QString::number(i));
        console.clear();
        console.error(QStringLiteral("last"));
        QTRY_COMPARE(list.count(), 1);
        QTest::qWait(0);
        QCOMPARE(list.item(0)->text(), QStringLiteral("last"));
        QCOMPARE(console.rowCount(), 1);
    }

    void followsTheEndOnlyWhenThere()
    {
        QListWidget list;
        ConsoleLog console(&list);
        list.resize(300, 100);
        list.show();
        QVERIFY(QTest::qWaitForWindowExposed(&list));
        QScrollBar *bar = list.verticalScrollBar();
        for (int i = 0; i < 9990; ++i)
            console.info(QString::number(i));
        // A burst comes in parts, whole and in its order, and the list follows all of them.
        QCOMPARE(list.count(), ConsoleLog::MostInATurn);
        QTRY_COMPARE(list.count(), 9990);
        for (int row = 0; row < list.count(); ++row)
            QCOMPARE(list.item(row)->text(), QString::number(row));
        QTRY_VERIFY(bar->maximum() > 0);
        QTRY_COMPARE(bar->value(), bar->maximum());
        QVERIFY(list.viewport()->rect().contains(list.visualItemRect(list.item(9989)).center()));

        bar->setValue(10);
        const int before = bar->maximum();
        console.error(QStringLiteral("unseen"));
        QTRY_VERIFY(bar->maximum() > before);
        QCOMPARE(bar->value(), 10);

        bar->setValue(bar->maximum());
        console.info(QStringLiteral("seen"));
        QTRY_VERIFY(bar->maximum() > before + 1);
        QTRY_COMPARE(bar->value(), bar->maximum());

        // The oldest go, while what is read stays where it is.
        bar->setValue(100);
        const QString top = list.itemAt(5, 5)->text();
        for (int i = 0; i < 20; ++i)
            console.info(QStringLiteral("more ") + QString::number(i));
        QCOMPARE(list.count(), ConsoleLog::MostRows);
        QCOMPARE(console.rowCount(), 10012);
        QCOMPARE(list.item(0)->text(), QStringLiteral("12"));
        QTest::qWait(0);
        QCOMPARE(list.itemAt(5, 5)->text(), top);

        // The longest line can be read to its end.
        console.error(QString(400, QLatin1Char('w')));
        console.info(QStringLiteral("short"));
        QTRY_VERIFY(list.horizontalScrollBar()->maximum() + list.viewport()->width() >=
                    list.fontMetrics().horizontalAdvance(QString(400, QLatin1Char('w'))));
    }
};

QTEST_MAIN(tst_Console)
#include "tst_console.moc"
