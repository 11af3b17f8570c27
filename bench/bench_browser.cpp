// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "BrowserDock.h"
#include "FileList.h"
#include "GapProbe.h"
#include "MainWindow.h"
#include "Settings.h"
#include "StaticMesh.h"

#include <QDir>
#include <QLineEdit>
#include <QScrollBar>
#include <QTemporaryDir>

// How long the window answers nobody while the browser lists 20,000 files, while somebody types into its
// filter, and while its list is scrolled and small pictures of what is in sight are drawn.
namespace {
constexpr int Files = 20000;

void makeFiles(const QDir &folder)
{
    StaticMesh mesh;
    mesh.surfaces = {{QStringLiteral("materials/m/_white"), {0, 1, 2}}};
    mesh.vertices = {{{-100, 0, 0}, {}, {}}, {{0, 0, 200}, {}, {}}, {{100, 0, 0}, {}, {}}};
    for (int i = 0; i < Files; ++i) {
        const QString path = QStringLiteral("%1/models/set%2").arg(i % 10 == 0 ? "mod" : "game").arg(i / 10);
        folder.mkpath(path);
        if (mesh.write(folder.filePath(QStringLiteral("%1/prop%2.staticmesh").arg(path).arg(i))))
            qFatal("no model could be written");
    }
}

template <typename Work>
void measure(const char *name, Work work)
{
    wait(500);
    const GapProbe probe;
    work();
    wait(500);
    addGap(name, probe.largest());
}

void measureAll()
{
    MainWindow window;
    window.resize(1366, 768);
    window.show();
    wait(3000);
    auto *dock = window.findChild<BrowserDock *>();
    auto *list = dock->findChild<FileList *>(QStringLiteral("listFiles"));
    auto *line = dock->findChild<QLineEdit *>(QStringLiteral("lineFiles"));
    measure("browser_lists_20000_files", [&] {
        dock->show();
        while (list->rows().rowCount() < Files)
            wait(20);
    });
    measure("browser_filters_20000_files", [&] {
        for (const QString &words :
             {QStringLiteral("p"), QStringLiteral("pr"), QStringLiteral("pr 7"), QString()}) {
            line->setText(words);
            wait(400);
        }
    });
    measure("browser_scrolls_20000_files", [&] {
        for (int step = 0; step < 40; ++step) {
            list->verticalScrollBar()->setValue(list->verticalScrollBar()->maximum() / 40 * step);
            wait(step % 10 == 9 ? 500 : 30);
        }
    });
}
} // namespace

int main(int argc, char *argv[])
{
    const BenchHome home;
    qputenv("XDG_CACHE_HOME", QFile::encodeName(home.path()));
    BenchHome::askForCoreProfile();
    const PaintedApplication application(argc, argv);
    makeFiles(QDir(home.path()));
    Settings::GamePath.setValue(home.filePath(QStringLiteral("game")));
    Settings::OutputDir.setValue(home.filePath(QStringLiteral("mod")));
    Settings::Updates.setValue(false);
    measureAll();
    return Bench::run(argc, argv);
}
