// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ServersDock.h"

#include "Find.h"
#include "LocalServers.h"
#include "Log.h"

/// The dock of running servers, against a master server on this machine.
class tst_ServersDock : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Log::setSink([](LogSeverity, const QString &) {});
    }
    void cleanupTestCase() { Log::setSink({}); }
    void asksShowsAndCopies()
    {
        const QTemporaryDir home;
        TestSupport::useSettingsHome(home);
        LocalMaster master;
        Settings::MasterServerHost.setValue(QStringLiteral("127.0.0.1"));
        Settings::MasterServerPort.setValue(master.localPort());
        QMainWindow window;
        QAction action;
        auto *dock = new ServersDock(&window);
        window.addDockWidget(Qt::RightDockWidgetArea, dock);
        dock->setQueryAction(&action);
        dock->hide();
        window.show();
        auto *table = find<QTableWidget>(*dock, "tableServers");
        const auto *bar = find<QProgressBar>(*dock, "barServers");
        auto *copy = find<QPushButton>(*dock, "btnCopyAddress");
        const auto status = [dock] { return find<QLabel>(*dock, "lblServersStatus")->text(); };

        QCOMPARE(status(), QStringLiteral("No query yet."));
        action.trigger();
        QVERIFY(dock->isVisible() && bar->isVisible());
        QCOMPARE(status(), QStringLiteral("Asking the master server…"));
        QTRY_COMPARE(master.requests.size(), 1);
        master.send({QByteArray::fromHex("040302015C6D")});
        QTRY_COMPARE(status(), QStringLiteral("Asking the master server… 1 server"));
        QVERIFY(!copy->isEnabled());
        master.send({QByteArray::fromHex("050302015C6D000000000000")});
        QTRY_COMPARE(status(), QStringLiteral("2 servers"));
        QVERIFY(!bar->isVisible());
        QCOMPARE(table->rowCount(), 2);
        QCOMPARE(table->item(0, 0)->text(), QStringLiteral("1.2.3.4"));
        QCOMPARE(table->item(0, 1)->text(), QStringLiteral("27996"));

        const auto place = [table](int row) { return table->visualItemRect(table->item(row, 0)).center(); };
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place(1));
        QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place(1));
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1.2.3.5:27996"));
        QCOMPARE(window.statusBar()->currentMessage(), QStringLiteral("Copied \"1.2.3.5:27996\""));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place(0));
        QTest::mouseClick(copy, Qt::LeftButton);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1.2.3.4:27996"));
        QApplication::setActiveWindow(&window);
        table->setFocus();
        table->selectAll();
        QTest::keySequence(table, QKeySequence::Copy);
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1.2.3.4:27996\n1.2.3.5:27996"));

        master.replies = {QByteArray(6, 0)};
        QTest::mouseClick(find<QPushButton>(*dock, "btnQueryServers"), Qt::LeftButton);
        QCOMPARE(table->rowCount(), 0);
        QTRY_COMPARE(status(), QStringLiteral("No server is running."));
        Settings::MasterServerHost.setValue(QString());
        action.trigger();
        QVERIFY(status().startsWith(QLatin1String("No master server is set.")));
    }
};

QTEST_MAIN(tst_ServersDock)
#include "tst_serversdock.moc"
