// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WindowGeometry.h"

#include "Settings.h"
#include "TestSupport.h"

#include <QMainWindow>
#include <QScreen>
#include <QWindow>

class tst_WindowGeometry : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestSupport::useSettingsHome(m_home); }
    void storesOnCloseAndRestores();
    void maximisingKeepsNormalGeometry_data();
    void maximisingKeepsNormalGeometry();
    void closedMaximisedComesBackMaximised();
    void ignoresDamagedValues();
    void onScreen_data();
    void onScreen();

private:
    static QRect available() { return QGuiApplication::primaryScreen()->availableGeometry(); }

    QTemporaryDir m_home;
};

void tst_WindowGeometry::storesOnCloseAndRestores()
{
    {
        QMainWindow window;
        window.resize(400, 300);
        WindowGeometry geometry(&window);
        geometry.restore();
        QVERIFY(QSettings().allKeys().isEmpty());
        QCOMPARE(window.size(), QSize(400, 300));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.resize(500, 350);
        window.move(40, 60);
        QVERIFY(window.close());
    }
    QCOMPARE(Settings::MainWindowSize.value(), QSize(500, 350));
    QCOMPARE(Settings::MainWindowPos.value(), QPoint(40, 60));
    QCOMPARE(Settings::MainWindowMaximized.value(), false);
    QVERIFY(Settings::MainWindowMaximized.exists());

    QMainWindow window;
    WindowGeometry geometry(&window);
    geometry.restore();
    QCOMPARE(window.size(), QSize(500, 350));
    QCOMPARE(window.pos(), QPoint(40, 60));
    QVERIFY(!window.isMaximized());
}

void tst_WindowGeometry::maximisingKeepsNormalGeometry_data()
{
    QTest::addColumn<bool>("grownFirst");
    QTest::newRow("grown first, then called maximised") << true;
    QTest::newRow("called maximised first, then grown") << false;
}

void tst_WindowGeometry::maximisingKeepsNormalGeometry()
{
    QFETCH(bool, grownFirst);
    QMainWindow window;
    WindowGeometry geometry(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.resize(450, 320);
    window.move(50, 70);
    QCoreApplication::processEvents();
    window.resize(460, 330); // a change of the user's own must not be taken back
    QCoreApplication::processEvents();

    // The window system's doing: told to the window, not asked of it.
    const auto grow = [&window] {
        window.windowHandle()->setGeometry(available());
        QTRY_COMPARE(window.size(), available().size());
    };
    if (grownFirst)
        grow();
    window.overrideWindowState(Qt::WindowMaximized);
    QWindowStateChangeEvent change(Qt::WindowNoState);
    QCoreApplication::sendEvent(&window, &change);
    if (!grownFirst)
        grow();
    QVERIFY(window.isMaximized());
    QCOMPARE(geometry.normalSize(), QSize(460, 330));
    QCOMPARE(geometry.normalPosition(), QPoint(50, 70));
}

void tst_WindowGeometry::closedMaximisedComesBackMaximised()
{
    {
        QMainWindow window;
        WindowGeometry geometry(&window);
        window.resize(480, 340);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        window.move(30, 50);
        QCoreApplication::processEvents();
        window.showMaximized();
        QTRY_VERIFY(window.width() > 480);
        QVERIFY(window.close());
    }
    QCOMPARE(Settings::MainWindowMaximized.value(), true);
    QCOMPARE(Settings::MainWindowSize.value(), QSize(480, 340));
    QCOMPARE(Settings::MainWindowPos.value(), QPoint(30, 50));

    // Never shown normally, closed again: the normal geometry is still that of the first time.
    QMainWindow window;
    WindowGeometry geometry(&window);
    geometry.restore();
    QVERIFY(window.isMaximized());
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    window.close();
    QCOMPARE(Settings::MainWindowMaximized.value(), true);
    QCOMPARE(Settings::MainWindowSize.value(), QSize(480, 340));
    QCOMPARE(Settings::MainWindowPos.value(), QPoint(30, 50));
}

void tst_WindowGeometry::ignoresDamagedValues()
{
    for (const QSize &size : {QSize(-1, -1), QSize(0, 300), QSize(-2000000000, 7)}) {
        Settings::MainWindowSize.setValue(size);
        QMainWindow window;
        window.resize(400, 300);
        WindowGeometry geometry(&window);
        geometry.restore();
        QCOMPARE(window.size(), QSize(400, 300));
    }
    Settings::MainWindowSize.setValue({2000000000, 2000000000});
    Settings::MainWindowPos.setValue({-2000000000, 2000000000});
    QMainWindow window;
    WindowGeometry geometry(&window);
    geometry.restore();
    QVERIFY(available().contains(QRect(window.pos(), window.size())));
}

void tst_WindowGeometry::onScreen_data()
{
    const QList<QRect> one{{0, 0, 1000, 800}};
    const QList<QRect> two{{0, 0, 1000, 800}, {1000, 0, 1000, 800}};
    QTest::addColumn<QRect>("stored");
    QTest::addColumn<QList<QRect>>("screens");
    QTest::addColumn<QRect>("placed");
    QTest::newRow("inside") << QRect(10, 20, 300, 200) << one << QRect(10, 20, 300, 200);
    QTest::newRow("half out but within reach")
        << QRect(800, 700, 300, 200) << one << QRect(800, 700, 300, 200);
    QTest::newRow("on a screen that is gone")
        << QRect(1500, 100, 300, 200) << one << QRect(700, 100, 300, 200);
    QTest::newRow("on the second screen") << QRect(1500, 100, 300, 200) << two << QRect(1500, 100, 300, 200);
    QTest::newRow("title bar above the screen")
        << QRect(100, -150, 300, 200) << one << QRect(100, 0, 300, 200);
    QTest::newRow("too large") << QRect(10, 20, 5000, 5000) << one << QRect(10, 20, 1000, 800);
    QTest::newRow("no screen") << QRect(10, 20, 300, 200) << QList<QRect>() << QRect(10, 20, 300, 200);
}

void tst_WindowGeometry::onScreen()
{
    QFETCH(QRect, stored);
    QFETCH(QList<QRect>, screens);
    QTEST(WindowGeometry::onScreen(stored, screens), "placed");
}

QTEST_MAIN(tst_WindowGeometry)
#include "tst_windowgeometry.moc"
