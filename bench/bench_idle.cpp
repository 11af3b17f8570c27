// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "KVOpenGLWidget.h"
#include "MainWindow.h"
#include "Playback.h"
#include "Settings.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QSettings>
#include <QSurfaceFormat>
#include <QTemporaryDir>
#include <QTimer>

#include <ctime>

// The whole window with a model and its animation, which has stopped: nothing is painted, and the processor
// has next to nothing to do. All threads count, those of the GL driver too.
namespace {
constexpr int Settling = 3000;  // milliseconds
constexpr int Watching = 10000; // milliseconds

class PaintCounter : public QObject
{
public:
    int paints = 0;

    bool eventFilter(QObject *, QEvent *event) override
    {
        paints += event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest ? 1 : 0;
        return false;
    }
};

void wait(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}
} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    QCoreApplication::setOrganizationName(QStringLiteral("KorvaneBench"));
    QCoreApplication::setApplicationName(QStringLiteral("Korvane"));
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, home.path());
    QSurfaceFormat format;
    format.setDepthBufferSize(24);
    format.setProfile(QSurfaceFormat::CoreProfile);
    QSurfaceFormat::setDefaultFormat(format);
    QApplication application(argc, argv);
    const QString game = QStringLiteral(KORVANE_SAMPLES "/game");
    Settings::GamePath.setValue(game);
    Settings::OutputDir.setValue(QStringLiteral(KORVANE_SAMPLES "/mod"));
    Settings::Updates.setValue(false);
    Settings::AnimationAutoPlay.setValue(true);

    MainWindow window;
    window.show();
    window.openFiles({game + QStringLiteral("/models/tinker/tinker.skinnedmesh"),
                      game + QStringLiteral("/anims/tinker/tinker.anim")});
    auto *view = window.findChild<KVOpenGLWidget *>(QStringLiteral("viewSkinned"));
    PaintCounter counter;
    application.installEventFilter(&counter);
    wait(Settling);
    if (!playback().mesh || !playback().anim || counter.paints < 10)
        qFatal("the sample does not play");
    playback().playState = PlayState::Paused;
    view->playbackChanged();
    wait(Settling);

    counter.paints = 0;
    QElapsedTimer elapsed;
    elapsed.start();
    const std::clock_t before = std::clock();
    wait(Watching);
    const double busy = double(std::clock() - before) / CLOCKS_PER_SEC;
    const double watched = double(elapsed.elapsed()) / 1000.0;
    Bench::addLimitLine("idle_paints", counter.paints, 0.0, "");
    Bench::addLimitLine("idle_cpu", 100.0 * busy / watched, 2.0, "%");
    Bench::printReport();
    return 0;
}
