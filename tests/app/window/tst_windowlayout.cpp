// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Hand.h"
#include "Language.h"
#include "Log.h"
#include "NoticeBar.h"
#include "ScreenScale.h"

/// How the window uses the screen that it is shown on; runs on several.
class tst_WindowLayout : public QObject
{
    Q_OBJECT

private slots:
    void init() { m_files.emplace(); }
    void cleanup() { Language::install(QStringLiteral("en")); }

    void fitsTheScreen()
    {
        const QScreen *screen = QGuiApplication::primaryScreen();
        // One and a half is not rounded to two.
        const bool fine = qAbs(screen->geometry().width() - 1280) < 5;
        QVERIFY(qAbs(screen->devicePixelRatio() - (fine ? 1.5 : 1.0)) < 0.01);
        Settings::SkinnedMeshExplorePath.setValue(QStringLiteral("/no/") + QString(200, QLatin1Char('x')));
        for (const char *language : {"en", "de"}) {
            Language::install(QLatin1String(language));
            ShownWindow window(
                {m_files->save("long names of files, which widen nothing.skinnedmesh", triangleMan()),
                 m_files->save("a.anim", twoBlocks())});
            for (NoticeBar *bar : window.findChildren<NoticeBar *>())
                bar->tell(QString(400, QLatin1Char('x')));
            QVERIFY(screen->availableSize().width() > window.frameGeometry().width());
            QVERIFY(screen->availableSize().height() > window.frameGeometry().height());
            QVERIFY2(window.minimumSizeHint().width() <= 960, language);
            QVERIFY2(window.minimumSizeHint().height() <= 540,
                     qPrintable(QString::number(window.minimumSizeHint().height())));
            for (const int width : {960, 1440}) {
                window.resize(width, 560);
                for (const char *name : {"btnAnimTrackMarkForward", "sliderAnimTrack", "sbAnimTrackSpeed"}) {
                    const auto *part = find<QWidget>(window, name);
                    QTRY_VERIFY2(part->visibleRegion().boundingRect() == part->rect(), name);
                }
            }
        }
    }

    void whatHasNoRoomInABarIsInItsMenu()
    {
        ShownWindow window;
        window.resize(960, 560);
        auto *slider = find<QSlider>(window, "sliderMoveSpeed");
        QTRY_VERIFY(!slider->isVisible());
        QToolButton *more = nullptr;
        for (auto *button :
             find<QWidget>(window, "viewSkinnedPanel")->findChildren<QToolButton *>("qt_toolbar_ext_button"))
            more = button->isVisible() ? button : more;
        QVERIFY(more);
        QVERIFY(more->menu());
        QTimer poll;
        connect(&poll, &QTimer::timeout, more, [more] {
            auto *twin = more->menu()->findChild<QSlider *>();
            if (!twin || !twin->isVisible())
                return;
            QTest::keyClick(twin, Qt::Key_End);
            more->menu()->close();
        });
        poll.start(10);
        QTest::mouseClick(more, Qt::LeftButton);
        QTRY_COMPARE(Settings::MouseSpeed.value(), 10.0f);
        QCOMPARE(slider->value(), 1000);
    }

    void theModelHasTheRoom()
    {
        MainWindow window;
        window.resize(1440, 900);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto *console = find<QDockWidget>(window, "dockConsole");
        const auto *view = find<QWidget>(window, "viewSkinned");
        QVERIFY(!console->isVisible() && !find<QDockWidget>(window, "dockProblems")->isVisible());
        QVERIFY2(2 * view->width() * view->height() >= 1440 * 900,
                 QByteArray::number(view->width() * view->height()));
        const int tree = find<QWidget>(window, "tabTrees")->height();
        QVERIFY(qAbs(tree - find<QWidget>(window, "stackSkinned")->height()) < tree / 10);

        // The first error opens the console; who closes it is not bothered again.
        Log::warning(QStringLiteral("nothing much"));
        QVERIFY(!console->isVisible());
        Log::error(QStringLiteral("a fault"));
        QVERIFY(console->isVisible());
        console->close();
        Log::error(QStringLiteral("another"));
        QVERIFY(!console->isVisible());

        // Docks are about models.
        auto *tabs = find<QTabWidget>(window, "tabWidget");
        auto *button = find<QToolButton>(window, "btnConsole");
        button->click();
        tabs->setCurrentIndex(2);
        QVERIFY(!console->isVisible());
        button->click();
        QVERIFY(console->isVisible());
        tabs->setCurrentIndex(3);
        QVERIFY(!console->isVisible());
        // One that a hand closes there stays closed.
        button->click();
        console->close();
        tabs->setCurrentIndex(0);
        QVERIFY(!console->isVisible());
        button->click();
        tabs->setCurrentIndex(3);
        QVERIFY(!console->isVisible());
        window.close();
        MainWindow next;
        QVERIFY(!find<QDockWidget>(next, "dockConsole")->isHidden());
    }

private:
    std::optional<ProgramFolder> m_files;
};

int main(int argc, char *argv[])
{
    useScreenScale();
    QApplication application(argc, argv);
    tst_WindowLayout test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_windowlayout.moc"
