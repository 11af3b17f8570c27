// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "KVOpenGLWidget.h"
#include "MainWindow.h"
#include "Playback.h"
#include "Settings.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSlider>
#include <QTimer>

#include <ctime>

// The whole window with a model and its animation. While it plays, a frame costs the GUI thread not much more
// than one of the view painted for itself. When it has stopped, nothing is painted, and the processor has
// next to nothing to do: there all threads count, those of the GL driver too.
namespace {
constexpr int Settling = 3000;  // milliseconds
constexpr int Watching = 10000; // milliseconds
constexpr int PlayTurn = 60;    // frames
constexpr int LongestTurn = 60; // seconds, on a machine with much else to do
constexpr int PlayTurns = 5;
constexpr int PaintInterval = 16; // milliseconds, the view's own

class PaintCounter : public QObject
{
public:
    int paints = 0;
    int widgets = 0; ///< painted
    int frames = 0;
    const QObject *view = nullptr;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && watched->isWidgetType()) {
            ++widgets;
            frames += watched == view ? 1 : 0;
        }
        paints += event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest ? 1 : 0;
        return false;
    }
};

double threadSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/// What a frame takes of this thread, in seconds.
double frameSeconds(PaintCounter &counter)
{
    counter.frames = counter.widgets = 0;
    QElapsedTimer elapsed;
    elapsed.start();
    const double before = threadSeconds();
    while (counter.frames < PlayTurn) {
        wait(100);
        if (elapsed.elapsed() > LongestTurn * 1000)
            qFatal("nothing is painted");
    }
    return (threadSeconds() - before) / counter.frames;
}

void setPlayState(KVOpenGLWidget &view, PlayState state)
{
    playback().playState = state;
    view.playbackChanged();
}

void reportPlaying(KVOpenGLWidget &view, PaintCounter &counter)
{
    std::vector<double> figures;
    std::vector<double> floors;
    std::vector<double> ratios;
    std::vector<double> widgets;
    QTimer painting;
    painting.setTimerType(Qt::PreciseTimer);
    QObject::connect(&painting, &QTimer::timeout, &view, [&view] { view.update(); });
    for (int turn = 0; turn < PlayTurns; ++turn) {
        setPlayState(view, PlayState::Playing);
        figures.push_back(frameSeconds(counter));
        widgets.push_back(double(counter.widgets) / counter.frames);
        setPlayState(view, PlayState::Paused);
        painting.start(PaintInterval);
        floors.push_back(frameSeconds(counter));
        painting.stop();
        ratios.push_back(figures.back() / floors.back());
    }
    Bench::addRatioLine("play_frame", Bench::median(figures), Bench::median(floors), Bench::median(ratios),
                        1.5);
    Bench::addLimitLine("play_widgets_a_frame", Bench::median(widgets), 6.0, "");
}
/// Steps of a drag, of which each is a setting.
void reportSlider(QSlider &slider)
{
    constexpr int Steps = 100;
    slider.setSliderDown(true);
    const double drag = Bench::seconds([&slider] {
        for (int step = 0; step < Steps; ++step)
            slider.setSliderPosition(100 + step);
    });
    slider.setSliderDown(false);
    Bench::addLimitLine("slider_step", drag / Steps * 1e3, 5.0, "ms");
}
} // namespace

int main(int argc, char *argv[])
{
    const BenchHome home;
    BenchHome::askForCoreProfile();
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
    reportSlider(*window.findChild<QSlider *>(QStringLiteral("sliderMoveSpeed")));
    counter.view = view;
    reportPlaying(*view, counter);
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
