// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ServersDock.h"

#include "LocalServers.h"
#include "Log.h"
#include "Settings.h"
#include "TestSupport.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QMainWindow>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>

/// The dock of running servers, against a master server on this machine.
class tst_ServersDock : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanupTestCase() { Log::setSink({}); }
    void showsEveryState();
    void copiesAddresses();

private:
    struct Shown
    {
        QMainWindow window;
        QAction action;
        ServersDock *dock = new ServersDock(&window);

        Shown()
        {
            window.addDockWidget(Qt::RightDockWidgetArea, dock);
            dock->setQueryAction(&action);
            dock->hide();
            window.show();
        }
        template <typename Widget>
        Widget *child(const char *name) const
        {
            return dock->findChild<Widget *>(QLatin1String(name));
        }
        QString status() const { return child<QLabel>("lblServersStatus")->text(); }
        QTableWidget *table() const { return child<QTableWidget>("tableServers"); }
    };

    QTemporaryDir m_home;
    std::unique_ptr<LocalMaster> m_master;
};

void tst_ServersDock::init()
{
    TestSupport::useSettingsHome(m_home);
    Log::setSink([](LogSeverity, const QString &) {});
    m_master = std::make_unique<LocalMaster>();
    Settings::MasterServerHost.setValue(QStringLiteral("127.0.0.1"));
    Settings::MasterServerPort.setValue(m_master->localPort());
}

void tst_ServersDock::showsEveryState()
{
    Shown shown;
    QCOMPARE(shown.status(), QStringLiteral("No query yet."));
    shown.action.trigger();
    QVERIFY(shown.dock->isVisible());
    QVERIFY(shown.child<QProgressBar>("barServers")->isVisible());
    QCOMPARE(shown.status(), QStringLiteral("Asking the master server…"));
    QTRY_COMPARE(m_master->requests.size(), 1);
    m_master->send({QByteArray::fromHex("040302015C6D")});
    QTRY_COMPARE(shown.status(), QStringLiteral("Asking the master server… 1 server"));
    m_master->send({QByteArray::fromHex("050302015C6D000000000000")});
    QTRY_COMPARE(shown.status(), QStringLiteral("2 servers"));
    QVERIFY(!shown.child<QProgressBar>("barServers")->isVisible());
    QCOMPARE(shown.table()->rowCount(), 2);
    QCOMPARE(shown.table()->item(0, 0)->text(), QStringLiteral("1.2.3.4"));
    QCOMPARE(shown.table()->item(0, 1)->text(), QStringLiteral("27996"));

    m_master->replies = {QByteArray(6, 0)};
    QTest::mouseClick(shown.child<QPushButton>("btnQueryServers"), Qt::LeftButton);
    QCOMPARE(shown.table()->rowCount(), 0);
    QTRY_COMPARE(shown.status(), QStringLiteral("No server is running."));

    Settings::MasterServerHost.setValue(QString());
    shown.action.trigger();
    QVERIFY(shown.status().startsWith(QLatin1String("No master server is set.")));
}

void tst_ServersDock::copiesAddresses()
{
    m_master->replies = {QByteArray::fromHex("040302015C6D050302015C6D")};
    Shown shown;
    QTableWidget *table = shown.table();
    auto *button = shown.child<QPushButton>("btnCopyAddress");
    QVERIFY(!button->isEnabled());
    shown.action.trigger();
    QTRY_COMPARE(table->rowCount(), 2);
    const auto place = [table](int row) { return table->visualItemRect(table->item(row, 0)).center(); };
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place(1));
    QTest::mouseDClick(table->viewport(), Qt::LeftButton, {}, place(1));
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1.2.3.5:27996"));
    QCOMPARE(shown.window.statusBar()->currentMessage(), QStringLiteral("Copied \"1.2.3.5:27996\""));

    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place(0));
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1.2.3.4:27996"));
    QApplication::setActiveWindow(&shown.window);
    table->setFocus();
    table->selectAll();
    QTest::keySequence(table, QKeySequence::Copy);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("1.2.3.4:27996\n1.2.3.5:27996"));
}

QTEST_MAIN(tst_ServersDock)
#include "tst_serversdock.moc"
