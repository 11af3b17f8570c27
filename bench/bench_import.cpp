// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "ImportFlags.h"
#include "ImportWorker.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTextStream>

#include <assimp/Importer.hpp>
#include <assimp/config.h>

#include <chrono>
#include <thread>

namespace {
constexpr double Budget = 1.15;
/// What starting a process and handing the model over may cost, whatever the model.
constexpr std::chrono::milliseconds ProcessAllowance(150);
constexpr quint32 Flags = ImportFlags::StaticMesh | ImportFlags::GenerateNormals;

/// A grid of 255 by 255 vertices, which is as many as a mesh can hold, under four layers of triangles: half a
/// million of them.
void writeGrid(const QString &path)
{
    constexpr int Side = 255;
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        qFatal("cannot write %s", qPrintable(path));
    QTextStream out(&file);
    for (int i = 0; i < Side * Side; ++i) {
        const int column = i % Side;
        const int row = i / Side;
        out << "v " << column << ' ' << row << ' ' << i * 7 % 13 << "\nvt " << double(column) / Side << ' '
            << double(row) / Side << '\n';
    }
    for (int layer = 0; layer < 4; ++layer) {
        for (int row = 0; row + 1 < Side; ++row) {
            for (int column = 0; column + 1 < Side; ++column) {
                const int a = row * Side + column + 1;
                const int corners[4] = {a, a + 1, a + Side + 1, a + Side};
                const int *c = corners;
                out << "f " << c[0] << '/' << c[0] << ' ' << c[1] << '/' << c[1] << ' ' << c[2] << '/' << c[2]
                    << "\nf " << c[0] << '/' << c[0] << ' ' << c[2] << '/' << c[2] << ' ' << c[3] << '/'
                    << c[3] << '\n';
            }
        }
    }
}

void import(const QString &path)
{
    WorkerJob job;
    job.task = WorkerJob::Task::ImportStaticMesh;
    job.modelPath = path;
    job.kmatPath = QStringLiteral("materials/mat_grid.kmat");
    job.flags = Flags;
    ImportWorker worker;
    worker.setProgram(QStringLiteral(KORVANE_IMPORT_WORKER));
    QEventLoop loop;
    QObject::connect(&worker, &ImportWorker::finished, &loop, &QEventLoop::quit);
    worker.start(job);
    loop.exec();
    StaticMesh mesh;
    if (worker.read(mesh) || mesh.surfaces.at(0).triangleIndexes.size() < 3 * 500000)
        qFatal("the import failed");
}

void readOnly(const QString &path)
{
    Assimp::Importer importer;
    importer.SetPropertyInteger(AI_CONFIG_PP_RVC_FLAGS, 0x36C); // what a static import has removed
    if (!importer.ReadFile(path.toUtf8().constData(), Flags))
        qFatal("the reading failed");
}
} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("grid.obj"));
    writeGrid(path);
    Bench::ratio(
        "import_obj_500k_triangles", Budget, 5, [path] { import(path); },
        [path] {
            readOnly(path);
            // The allowance stands outside the ratio.
            std::this_thread::sleep_for(ProcessAllowance / Budget);
        });
    return Bench::run(argc, argv);
}
