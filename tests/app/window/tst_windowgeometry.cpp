// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WindowGeometry.h"

#include "Find.h"

class tst_WindowGeometry : public QObject
{
    Q_OBJECT

private slots:
    void init() { TestSupport::useSettingsHome(m_home); }
    void comesBackAsItWasClosed()
    {
        for (const bool maximised : {false, true}) {
            QSettings().clear();
            {
                QMainWindow window;
                window.resize(480, 340);
                WindowGeometry geometry(&window);
                geometry.restore();
                QVERIFY(QSettings().allKeys().isEmpty());
                QCOMPARE(window.size(), QSize(480, 340));
                window.show();
                QVERIFY(QTest::qWaitForWindowExposed(&window));
                window.move(30, 50);
                QCoreApplication::processEvents();
                if (maximised) {
                    window.showMaximized();
                    QTRY_VERIFY(window.width() > 480);
                }
                QVERIFY(window.close());
            }
            // Closed again it has kept its normal geometry, even if it was never shown so.
            QMainWindow window;
            WindowGeometry geometry(&window);
            geometry.restore();
            QCOMPARE(window.isMaximized(), maximised);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            window.close();
            QCOMPARE(Settings::MainWindowMaximized.value(), maximised);
            QCOMPARE(Settings::MainWindowSize.value(), QSize(480, 340));
            QCOMPARE(Settings::MainWindowPos.value(), QPoint(30, 50));
        }
    }

    void maximisingKeepsNormalGeometry()
    {
        // Some window systems grow the window before they call it maximised, others afterwards.
        for (const bool grownFirst : {true, false}) {
            QMainWindow window;
            WindowGeometry geometry(&window);
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            window.resize(450, 320);
            window.move(50, 70);
            QCoreApplication::processEvents();
            window.resize(460, 330); // a change of the user's own must not be taken back
            QCoreApplication::processEvents();

            // The window system's doing: told to the window, not asked of it. The frame is on the screen,
            // too.
            const auto grow = [&window] {
                const QRect grown = available().adjusted(0, 0, -8, -30);
                window.windowHandle()->setGeometry(grown);
                QTRY_COMPARE(window.size(), grown.size());
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
    }

    void ignoresDamagedValues()
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

    void onScreen()
    {
        const QList<QRect> one{{0, 0, 1000, 800}};
        const QList<QRect> two{{0, 0, 1000, 800}, {1000, 0, 1000, 800}};
        const auto check = [](const QRect &stored, const QList<QRect> &screens, const QRect &placed) {
            QCOMPARE(WindowGeometry::onScreen(stored, screens), placed);
        };
        // Half out, but within reach.
        check({800, 700, 300, 200}, one, {800, 700, 300, 200});
        // On a second screen, and when that is gone.
        check({1500, 100, 300, 200}, two, {1500, 100, 300, 200});
        check({1500, 100, 300, 200}, one, {700, 100, 300, 200});
        // With the title bar above the screen.
        check({100, -150, 300, 200}, one, {100, 0, 300, 200});
        check({10, 20, 5000, 5000}, one, {10, 20, 1000, 800});
        check({10, 20, 300, 200}, {}, {10, 20, 300, 200});
    }

private:
    static QRect available() { return QGuiApplication::primaryScreen()->availableGeometry(); }

    QTemporaryDir m_home;
};

QTEST_MAIN(tst_WindowGeometry)
#include "tst_windowgeometry.moc"
