// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "GapProbe.h"
#include "IndexCache.h"
#include "LargeModels.h"
#include "MainWindow.h"
#include "NamedThing.h"
#include "Settings.h"

#include <QAbstractItemView>
#include <QDir>
#include <QDirIterator>
#include <QDockWidget>
#include <QProgressBar>
#include <QThread>

#include <fcntl.h>
#include <unistd.h>

// The index of who names what over 5,000 models and 500 material files of a game and a mod: the second time,
// when only stamps are looked at and the cache is read, against the first, by the clock: what is saved is the
// reading of files that the system does not have at hand, as on the first day. How long the window answers
// nobody while the dock has the index made, with a cache and without one.
namespace {
constexpr int Models = 5000;
constexpr int MaterialFilesCount = 500;

QString place(const QString &folder, const char *kind, int number, const char *suffix)
{
    const QString path = QStringLiteral("%1/%2/%3/set%4")
                             .arg(folder, QLatin1String(number % 10 == 0 ? "mod" : "game"),
                                  QLatin1String(kind), QString::number(number / 50));
    QDir().mkpath(path);
    return QStringLiteral("%1/m%2.%3").arg(path, QString::number(number), QLatin1String(suffix));
}

template <typename Model>
void save(const Model &model, const QString &path)
{
    if (model.write(path))
        qFatal("no model could be written");
}

QString material(int number)
{
    return QStringLiteral("materials/mat_%1/skin").arg(number % MaterialFilesCount);
}

/// As large as usual: 110 KB a skinned mesh, 100 KB an animation, 45 KB a static mesh.
void makeModels(const QString &folder)
{
    SkinnedMesh mesh;
    mesh.nodes.resize(41);
    mesh.hotPoints.resize(6);
    mesh.surfaces.resize(4);
    mesh.vertices.resize(2500);
    StaticMesh rigid;
    rigid.surfaces.resize(3);
    rigid.vertices.resize(1200);
    AnimFile anim = LargeModels::animFile(110000);
    for (int i = 0; i < Models; ++i) {
        if (i % 5 < 2) {
            for (size_t s = 0; s < mesh.surfaces.size(); ++s)
                mesh.surfaces[s] = {material(i + int(s)), LargeModels::triangleIndexes(3000, 2500)};
            for (size_t p = 0; p < mesh.hotPoints.size(); ++p)
                mesh.hotPoints[p].particleEffect2 = quint16(i % 300 + int(p));
            save(mesh, place(folder, "models", i, "skinnedmesh"));
        } else if (i % 5 < 4) {
            for (size_t b = 0; b < anim.blocks.size(); ++b) {
                anim.blocks[b].animId = i % 900 + int(b);
                for (AnimAction &action : anim.blocks[b].actions)
                    action.args[0] = float(i % 1000);
            }
            save(anim, place(folder, "anims", i, "anim"));
        } else {
            for (size_t s = 0; s < rigid.surfaces.size(); ++s)
                rigid.surfaces[s] = {material(i + int(s)), LargeModels::triangleIndexes(900, 1200)};
            save(rigid, place(folder, "models", i, "staticmesh"));
        }
    }
    QDir().mkpath(folder + QStringLiteral("/game/materials"));
    for (int i = 0; i < MaterialFilesCount; ++i) {
        const QString path = QStringLiteral("%1/game/materials/mat_%2.kmat").arg(folder).arg(i);
        const QString texture = QStringLiteral("textures/t%1.png").arg(i % 100);
        if (!writeKMat(path, {{QStringLiteral("skin"), texture}}).isEmpty())
            qFatal("no material could be written");
    }
}

/// Has the system let go of what it keeps of the files, which are on the disk by then.
void forgetContents(const QString &folder)
{
    QDirIterator walk(folder, QDir::Files, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const int file = open(QFile::encodeName(walk.next()).constData(), O_RDONLY);
        if (file < 0 || fsync(file) != 0 || posix_fadvise(file, 0, 0, POSIX_FADV_DONTNEED) != 0)
            qFatal("a file stays in memory");
        close(file);
    }
}

void removeCache(const MaterialFolders &folders)
{
    QFile::remove(IndexCache::pathFor(folders));
}

/// How many files were read.
int bringUpToDate(const MaterialFolders &folders)
{
    IndexProgress progress;
    const auto index =
        IndexCache::bringUpToDate(folders, nullptr, false, progress, QThread::idealThreadCount());
    if (!index || index->usesOf({NamedKind::Material, 0.0, material(7)}).empty())
        qFatal("there is no index");
    return progress.read;
}

/// The largest gap while the dock comes up and has its index made.
Gap gapOfDock(MainWindow &window)
{
    auto *dock = window.findChild<QDockWidget *>(QStringLiteral("dockUsedBy"));
    const auto *bar = dock->findChild<QProgressBar *>();
    wait(500);
    const GapProbe probe;
    dock->show();
    do
        wait(200);
    while (bar->isVisible());
    wait(500);
    const Gap gap = probe.largest();
    if (dock->findChild<QAbstractItemView *>(QStringLiteral("listUses"))
            ->accessibleDescription()
            .contains(QStringLiteral("being read")))
        qFatal("nothing was read");
    dock->hide();
    return gap;
}

void measureGaps(const MaterialFolders &folders)
{
    for (const bool isCached : {false, true}) {
        if (!isCached)
            removeCache(folders);
        MainWindow window; // which knows nothing yet
        window.resize(1366, 768);
        window.show();
        wait(3000);
        addGap(isCached ? "index_from_cache" : "index_5000_models", gapOfDock(window));
    }
}
} // namespace

int main(int argc, char *argv[])
{
    const BenchHome home;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home.path()));
    BenchHome::askForCoreProfile();
    const PaintedApplication application(argc, argv);
    makeModels(home.path());
    const MaterialFolders folders{home.filePath(QStringLiteral("game")),
                                  home.filePath(QStringLiteral("mod"))};
    Settings::GamePath.setValue(folders.gamePath);
    Settings::OutputDir.setValue(folders.outputDir);
    Settings::Updates.setValue(false);

    Bench::ratio(
        "index_second_time", 0.05, 7,
        [&folders] {
            if (bringUpToDate(folders) != 0)
                qFatal("files were read again");
        },
        [&folders, &home] {
            removeCache(folders);
            forgetContents(home.path());
            return Bench::seconds([&folders] {
                if (bringUpToDate(folders) != Models + MaterialFilesCount)
                    qFatal("not all files were read");
            });
        });
    measureGaps(folders);
    return Bench::run(argc, argv);
}
