// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "DocumentFiles.h"
#include "FolderExplorer.h"
#include "KVOpenGLWidget.h"
#include "MainWindow.h"
#include "PictureFile.h"
#include "Settings.h"
#include "StaticMesh.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

#include <ctime>

// From a click in the explorer to the picture of the model, against the least that shows it: its file read,
// its textures decoded, and the window painted once. `ahead` is the same where the neighbour in the list was
// looked at for a moment before. All threads of the process count, those of the graphics driver too, so that
// other programs do not.
namespace {
constexpr double Budget = 1.3;
constexpr int Repetitions = 15;
constexpr int Models = 3;      // the one that is opened, its neighbour, and one to be shown before
constexpr int Settling = 1500; // milliseconds: problems are found, and neighbours decoded

double processSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/// A game with copies of a sample, each with a texture of its own.
class Game
{
public:
    explicit Game(const QString &folder)
        : m_folder(folder)
    {
        for (const char *name : {"models", "materials", "textures"})
            QDir(folder).mkpath(QLatin1String(name));
        const QString samples = QStringLiteral(KORVANE_SAMPLES "/game/");
        StaticMesh mesh;
        if (mesh.read(samples + QStringLiteral("models/crate/crate.staticmesh")))
            qFatal("there is no sample to open");
        QFile sample(samples + QStringLiteral("materials/mat_crate.kmat"));
        if (!sample.open(QIODevice::ReadOnly))
            qFatal("there is no material");
        const QByteArray material = sample.readAll();
        for (int i = 0; i < Models; ++i) {
            for (StaticMeshSurface &surface : mesh.surfaces)
                surface.materialPath = QStringLiteral("materials/mat_%1/wood").arg(i);
            QFile file(path(QStringLiteral("materials/mat_%1.kmat").arg(i)));
            const QByteArray own = QByteArray(material).replace("crate.png", QByteArray::number(i) + ".png");
            if (mesh.write(model(i)) ||
                !QFile::copy(samples + QStringLiteral("textures/crate.png"), texture(i)) ||
                !file.open(QIODevice::WriteOnly) || file.write(own) != own.size())
                qFatal("no game could be made");
        }
    }
    QString model(int number) const { return path(QStringLiteral("models/%1.staticmesh").arg(number)); }
    QString texture(int number) const { return path(QStringLiteral("textures/%1.png").arg(number)); }
    /// Nothing that was decoded of it counts any more.
    void renew(int number)
    {
        QFile file(texture(number));
        m_now = m_now.addSecs(1);
        if (!file.open(QIODevice::ReadWrite) || !file.setFileTime(m_now, QFileDevice::FileModificationTime))
            qFatal("no texture could be renewed");
    }

private:
    QString path(const QString &name) const { return m_folder + QLatin1Char('/') + name; }

    QString m_folder;
    QDateTime m_now = QDateTime::currentDateTime();
};

/// Runs the event loop until the view has been put on the screen after `begin`, which tells when it is to be:
/// seconds of the processor, and by the clock.
template <typename Begin>
std::pair<double, double> untilShown(KVOpenGLWidget &view, Begin begin)
{
    QEventLoop loop;
    bool isAwaited = false;
    QObject::connect(&view, &QOpenGLWidget::frameSwapped, &loop, [&] {
        if (isAwaited)
            loop.quit();
    });
    QTimer::singleShot(20000, &loop, [] { qFatal("nothing is shown"); });
    const double before = processSeconds();
    const double clock = Bench::seconds([&] {
        begin(loop, [&isAwaited] { isAwaited = true; });
        loop.exec();
    });
    return {processSeconds() - before, clock};
}
} // namespace

int main(int argc, char *argv[])
{
    const BenchHome home;
    BenchHome::askForCoreProfile();
    const QApplication application(argc, argv);
    Game game(home.filePath(QStringLiteral("game")));
    Settings::GamePath.setValue(home.filePath(QStringLiteral("game")));
    Settings::OutputDir.setValue(home.filePath(QStringLiteral("game")));
    Settings::StaticMeshExplorePath.setValue(home.filePath(QStringLiteral("game/models")));
    Settings::Updates.setValue(false);

    MainWindow window;
    window.show();
    window.openFiles({game.model(2)});
    auto &view = *window.findChild<KVOpenGLWidget *>(QStringLiteral("viewStatic"));
    FolderExplorer *explorer = nullptr;
    for (auto *each : window.findChildren<FolderExplorer *>()) {
        if (each->kind().type == DocumentType::StaticMesh)
            explorer = each;
    }
    const Document &document = *window.findChild<DocumentFiles *>()->document(DocumentType::StaticMesh);
    const auto open = [&](int number) {
        return untilShown(view, [&, number](QObject &context, auto await) {
            QObject::connect(&document, &Document::replaced, &context, await);
            emit explorer->fileChosen(game.model(number));
        });
    };
    const auto leastOf = [&](int number) {
        return untilShown(view, [&, number](QObject &, auto await) {
            StaticMesh mesh;
            if (mesh.read(game.model(number)) ||
                readPicture(game.texture(number)).image.convertToFormat(QImage::Format_RGBA8888).isNull())
                qFatal("the model cannot be read");
            view.update();
            await();
        });
    };
    wait(3000);
    std::vector<double> figures;
    std::vector<double> aheads;
    std::vector<double> floors;
    std::vector<double> ratios;
    std::vector<double> aheadRatios;
    std::vector<double> clocks;
    for (int turn = 0; turn <= Repetitions; ++turn) {
        game.renew(0);
        game.renew(1);
        const auto figure = open(0);
        wait(Settling);
        const double floor = leastOf(0).first;
        wait(100);
        const auto ahead = open(1);
        wait(Settling);
        open(2);
        wait(Settling);
        if (turn == 0)
            continue;
        figures.push_back(figure.first);
        aheads.push_back(ahead.first);
        floors.push_back(floor);
        ratios.push_back(figure.first / floor);
        aheadRatios.push_back(ahead.first / floor);
        clocks.push_back(figure.second);
    }
    std::printf("INFO by the clock a first picture takes %.2fms\n", Bench::median(clocks) * 1e3);
    const double floor = Bench::median(floors);
    Bench::addRatioLine("first_picture", Bench::median(figures), floor, Bench::median(ratios), Budget);
    Bench::addRatioLine("first_picture_ahead", Bench::median(aheads), floor, Bench::median(aheadRatios),
                        Budget);
    Bench::printReport();
    return 0;
}
