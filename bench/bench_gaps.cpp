// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "CompareTree.h"
#include "DocumentLoader.h"
#include "FileComparison.h"
#include "GapProbe.h"
#include "ImportDialog.h"
#include "KVOpenGLWidget.h"
#include "LargeModels.h"
#include "MainWindow.h"
#include "PictureDialog.h"
#include "Settings.h"
#include "WorkerJob.h"

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QDockWidget>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <functional>
#include <utility>

// How long the window answers nobody while it works: the largest gap between two turns of its event loop,
// while large files open and are saved, pictures of them too, a large import arrives, and much is wrong with
// a model or with a whole mod. A paint of such a model is up to the graphics driver, and takes a turn by
// itself; how long is told beside.
namespace {
bool isLoading()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [](const QWidget *window) {
        const auto loaders = window->findChildren<DocumentLoader *>();
        return std::any_of(loaders.begin(), loaders.end(), [](auto *loader) { return loader->isLoading(); });
    });
}

/// The largest gap while `work` is done and what follows of it.
template <typename Work>
Gap largestGap(Work work)
{
    wait(300);
    const GapProbe probe;
    QTimer::singleShot(10, qApp, work);
    // What follows of it begins when it is done: the search for problems, and an animation.
    do
        wait(3000);
    while (isLoading() || QApplication::activeModalWidget());
    wait(300); // for what was done at the very end
    return probe.largest();
}

template <typename Model>
QString written(const QString &path, const Model &model)
{
    if (model.write(path))
        qFatal("no model could be written");
    return path;
}

/// Large in memory and on the card, and nothing else: few vertices, many triangles.
StaticMesh manyTriangles()
{
    StaticMesh mesh = LargeModels::staticMesh();
    mesh.vertices.resize(65000);
    mesh.surfaces.resize(4);
    for (StaticMeshSurface &surface : mesh.surfaces)
        surface.triangleIndexes = LargeModels::triangleIndexes(LargeModels::FileBytes / 8 / 3 * 3, 65000);
    return mesh;
}

/// 5,000 surfaces, each of a material of its own that is not there.
StaticMesh manyProblems()
{
    StaticMesh mesh = LargeModels::staticMesh();
    mesh.vertices.resize(3);
    mesh.surfaces.resize(5000);
    for (size_t i = 0; i < mesh.surfaces.size(); ++i) {
        mesh.surfaces[i].materialPath = QStringLiteral("materials/mat_%1/material").arg(i);
        mesh.surfaces[i].triangleIndexes = {0, 1, 2};
    }
    return mesh;
}

/// A mod of 2,000 files, each with twenty faults and more.
void writeManyFiles(const QDir &mod)
{
    StaticMesh mesh = LargeModels::staticMesh();
    mesh.vertices.resize(25);
    for (StaticMeshVertex &vertex : mesh.vertices)
        vertex.normal = {};
    mesh.surfaces.resize(1);
    mesh.surfaces[0].triangleIndexes = {0, 1, 2};
    for (int i = 0; i < 2000; ++i) {
        const QString folder = QStringLiteral("models/prop%1").arg(i % 50);
        mod.mkpath(folder);
        written(mod.filePath(QStringLiteral("%1/%2.staticmesh").arg(folder, QString::number(i))), mesh);
    }
}

/// What stands in for the program that reads foreign files: it leaves models that were ready before.
int answerAsWorker(const QString &folder, const QString &models)
{
    const WorkerFolder job(folder);
    WorkerJob asked;
    bool failed = job.read(asked);
    if (asked.task != WorkerJob::Task::Summarize)
        failed = failed || !QFile::copy(models + QStringLiteral("/import.skinnedmesh"), job.skinnedMesh()) ||
                 !QFile::copy(models + QStringLiteral("/import.anim"), job.anim());
    return failed || job.write(WorkerAnswer()) ? EXIT_FAILURE : EXIT_SUCCESS;
}

/// Presses buttons of dialogs as a hand would, as soon as they are there, while `work` goes on.
template <typename Dialog, typename Work>
void clickThrough(const std::function<QAbstractButton *(const Dialog &)> &next, Work work)
{
    QTimer clicks;
    int left = 300;
    QObject::connect(&clicks, &QTimer::timeout, [&left, &next] {
        const auto *dialog = qobject_cast<Dialog *>(QApplication::activeModalWidget());
        if (dialog && --left == 0)
            qFatal("a dialog stays open");
        QAbstractButton *button = dialog ? next(*dialog) : nullptr;
        if (button && button->isVisible())
            button->click();
    });
    clicks.start(200);
    work();
}

/// The button of the dialog that imports, and then the one that closes it.
void importThrough(MainWindow &window, const QString &path)
{
    const auto next = [](const ImportDialog &dialog) -> QAbstractButton * {
        for (const char *name : {"btnImport", "btnSuccess"}) {
            auto *button = dialog.findChild<QPushButton *>(QLatin1String(name));
            if (button && button->isVisible())
                return button;
        }
        return nullptr;
    };
    clickThrough<ImportDialog>(next, [&] { window.openFiles({path}); });
}

/// Saves a sequence of pictures, of the kind and in the folder that the settings name.
void savePictures(MainWindow &window)
{
    const auto next = [](const PictureDialog &dialog) -> QAbstractButton * {
        return dialog.findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Save);
    };
    clickThrough<PictureDialog>(
        next, [&] { window.findChild<QAction *>(QStringLiteral("actionSavePicture"))->trigger(); });
}

/// Saves pictures of the view in front; how many the folder then has says that it did.
void measurePictures(MainWindow &window, const char *kind, PictureDialog::Kind sequence)
{
    QDir folder(Settings::PicturePath.value());
    folder.removeRecursively();
    Settings::PictureKind.setValue(sequence);
    addGap(std::string("pictures_") + kind, largestGap([&] { savePictures(window); }));
    const int saved = folder.entryList(QDir::Files).size();
    if (saved < 2)
        qFatal("no pictures were saved");
    std::printf("INFO %d pictures of %s\n", saved, kind);
}

/// Compares the document with a file that differs everywhere, and takes all of that over.
template <typename Model>
void measureComparison(MainWindow &window, DocumentType type, const Model &theirs, const QString &path)
{
    auto *comparison = window.findChild<FileComparison *>();
    const std::string kind = documentKind(type).extension.toStdString();
    written(path, theirs);
    addGap("compare_" + kind, largestGap([&] { comparison->start(type, path); }));
    while (comparison->isRunning())
        wait(100);
    window.findChild<QDockWidget *>(QStringLiteral("dockCompare"))->show();
    window.findChild<CompareTree *>()->selectAll();
    addGap("take_" + kind,
           largestGap([&] { window.findChild<QAction *>(QStringLiteral("actionCompareTake"))->trigger(); }));
    if (!comparison->differences().empty())
        qFatal("not all was taken");
    // Nothing is to be asked about what is not saved.
    window.findChild<QAction *>(QStringLiteral("actionUndo"))->trigger();
}

void measure(MainWindow &window, const QString &folder)
{
    const auto saved = [&window] {
        for (auto *document : window.findChildren<QAction *>(QStringLiteral("actionSave")))
            document->trigger();
    };
    const auto measureFile = [&](const char *kind, const QString &path, const char *view) {
        addGap(std::string("open_") + kind, largestGap([&] { window.openFiles({path}); }));
        auto *widget = window.findChild<KVOpenGLWidget *>(QLatin1String(view));
        const double before = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        widget->repaint();
        std::printf("INFO a paint of %s takes %.2fms of processor time\n", kind,
                    milliseconds(CLOCK_THREAD_CPUTIME_ID) - before);
        addGap(std::string("save_") + kind, largestGap(saved));
    };
    const QString path = folder + QStringLiteral("/large.");
    measureFile("skinnedmesh", written(path + QStringLiteral("skinnedmesh"), LargeModels::skinnedMesh()),
                "viewSkinned");
    SkinnedMesh moved = LargeModels::skinnedMesh();
    for (SkinnedMeshVertex &vertex : moved.vertices)
        vertex.normal.setX(0.5f);
    measureComparison(window, DocumentType::SkinnedMesh, moved, path + QStringLiteral("2.skinnedmesh"));
    measureFile("anim", written(path + QStringLiteral("anim"), LargeModels::animFile()), "viewSkinned");
    AnimFile turned = LargeModels::animFile();
    for (AnimBlock &block : turned.blocks) {
        for (int track = 0; track < block.rotations.trackCount(); ++track)
            block.rotations.at(track, 7) = {1, 0, 0, 0};
    }
    measurePictures(window, "anim", PictureDialog::Frames);
    measureComparison(window, DocumentType::Anim, turned, path + QStringLiteral("2.anim"));
    // While the tab of skinned meshes is in front: a foreign file becomes what that shows.
    SkinnedMesh mesh;
    mesh.nodes.resize(41);
    written(folder + QStringLiteral("/import.skinnedmesh"), mesh);
    written(folder + QStringLiteral("/import.anim"), LargeModels::animFile(100 * 1000 * 1000));
    QFile(folder + QStringLiteral("/foreign.fbx")).open(QIODevice::WriteOnly);
    addGap("import", largestGap([&] { importThrough(window, folder + QStringLiteral("/foreign.fbx")); }));
    measureFile("staticmesh", written(path + QStringLiteral("staticmesh"), LargeModels::staticMesh()),
                "viewStatic");
    measurePictures(window, "staticmesh", PictureDialog::Turntable);
    measureFile("triangles", written(folder + QStringLiteral("/triangles.staticmesh"), manyTriangles()),
                "viewStatic");
    window.findChild<QDockWidget *>(QStringLiteral("dockProblems"))->show();
    measureFile("problems", written(folder + QStringLiteral("/problems.staticmesh"), manyProblems()),
                "viewStatic");
    writeManyFiles(QDir(Settings::OutputDir.value()));
    addGap("check_mod", largestGap([&] {
               window.findChild<QAction *>(QStringLiteral("actionProblemWholeMod"))->trigger();
           }));
    std::printf("INFO the list of the mod has %d rows\n",
                window.findChild<QTreeWidget *>(QStringLiteral("listProblems"))->topLevelItemCount());
}
} // namespace

int main(int argc, char *argv[])
{
    const char *const Models = "KORVANE_BENCH_MODELS";
    if (argc == 2 && qEnvironmentVariableIsSet(Models)) {
        const QCoreApplication application(argc, argv);
        return answerAsWorker(QFile::decodeName(argv[1]), qEnvironmentVariable(Models));
    }
    const BenchHome home;
    BenchHome::askForCoreProfile();
    const PaintedApplication application(argc, argv);
    qputenv(Models, QFile::encodeName(home.path()));
    qputenv("KORVANE_IMPORT_WORKER", QFile::encodeName(QCoreApplication::applicationFilePath()));
    QDir(home.path()).mkpath(QStringLiteral("game"));
    QDir(home.path()).mkpath(QStringLiteral("mod/materials"));
    QDir(home.path()).mkpath(QStringLiteral("mod/textures"));
    QDir(home.path()).mkpath(QStringLiteral("pictures"));
    Settings::GamePath.setValue(home.filePath(QStringLiteral("game")));
    Settings::OutputDir.setValue(home.filePath(QStringLiteral("mod")));
    Settings::PicturePath.setValue(home.filePath(QStringLiteral("pictures")));
    Settings::PictureTurns.setValue(24);
    Settings::PictureStep.setValue(100);
    Settings::Updates.setValue(false);

    MainWindow window;
    window.resize(1366, 768);
    window.show();
    wait(3000);
    measure(window, home.path());
    Bench::printReport();
    return 0;
}
