// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "BenchHome.h"
#include "FolderExplorer.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QEventLoop>
#include <QTemporaryDir>
#include <QTreeWidgetItemIterator>

#include <sched.h>

// Filling an explorer from 10,000 files in 100 folders, as the models of a game lie, against a bare walk over
// them, by the time of the processor. Both in a folder whose entries the system has at hand, and both on one
// processor: the explorer reads in a thread of its own, and how much two processors that work at once hold
// each other up changes from run to run.
namespace {
constexpr int Folders = 100;
constexpr int FilesAFolder = 100;
constexpr int Repetitions = 31;

void makeFiles(const QString &root)
{
    for (int i = 0; i < Folders; ++i) {
        const QString folder = root + QStringLiteral("/character%1").arg(i);
        if (!QDir().mkpath(folder))
            qFatal("no folder to fill");
        for (int j = 0; j < FilesAFolder; ++j) {
            QFile file(folder + QStringLiteral("/Walk %1.skinnedmesh").arg(j));
            if (!file.open(QIODevice::WriteOnly))
                qFatal("no file to list");
        }
    }
}
} // namespace

int main(int argc, char *argv[])
{
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(unsigned(sched_getcpu()), &one);
    if (sched_setaffinity(0, sizeof one, &one) != 0)
        qFatal("no processor to itself");
    const BenchHome home;
    const QTemporaryDir files;
    const QApplication application(argc, argv);
    makeFiles(files.path());
    const DocumentKind &kind = documentKind(DocumentType::SkinnedMesh);
    kind.explorePath.setValue(files.path());

    FolderExplorer explorer(kind);
    explorer.resize(300, 600);
    explorer.show();
    Bench::ratio(
        "explorer_10000_files", 2.5, Repetitions,
        [&explorer] {
            return Bench::processSeconds([&explorer] {
                QEventLoop loop;
                QObject::connect(&explorer, &FolderExplorer::filled, &loop, &QEventLoop::quit);
                explorer.refill();
                loop.exec();
            });
        },
        [root = files.path()] {
            return Bench::processSeconds([&root] {
                int found = 0;
                for (QDirIterator it(root, QDirIterator::Subdirectories); it.hasNext(); it.next())
                    ++found;
                if (found < Folders * FilesAFolder)
                    qFatal("the walk has missed files");
            });
        });
    const int status = Bench::run(argc, argv);
    int listed = 0;
    for (QTreeWidgetItemIterator it(explorer.tree()); *it; ++it)
        ++listed;
    if (listed != Folders * (FilesAFolder + 1))
        qFatal("the explorer has missed files");
    return status;
}
