// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AnimFile.h"
#include "Bench.h"
#include "ReferenceIds.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "Validation.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <cstring>
#include <memory>

// Reads and writes a 64 MB file of each kind, its bytes shared out as in real models: a third indexes and
// two thirds vertices in the meshes; in the animations blocks of 41 bones and 120 frames, most of it keys.
// Looks for what is wrong with them, of which there is much: normals, for one, are zero.
// And refuses a short file that claims to be much longer.
namespace {
constexpr size_t FileBytes = 64 * 1000 * 1000;
constexpr int Repetitions = 15;

std::vector<quint16> triangleIndexes(size_t count, quint16 limit)
{
    std::vector<quint16> indexes(count);
    for (size_t i = 0; i < count; ++i)
        indexes[i] = quint16(i % limit);
    return indexes;
}

template <typename Mesh>
void fillMesh(Mesh &mesh, size_t vertexBytes)
{
    constexpr size_t surfaceIndexes = 60000;
    mesh.version = 2;
    mesh.surfaces.resize(FileBytes / 3 / (surfaceIndexes * 2));
    for (auto &surface : mesh.surfaces) {
        surface.materialPath = QStringLiteral("materials/mat_bench/material");
        surface.triangleIndexes = triangleIndexes(surfaceIndexes, 65000);
    }
    mesh.vertices.resize(FileBytes * 2 / 3 / vertexBytes);
    float step = 0.0f;
    for (auto &vertex : mesh.vertices) {
        step += 0.25f;
        vertex.position = QVector3D(step, step, -step);
    }
}

SkinnedMesh makeSkinnedMesh()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(41);
    fillMesh(mesh, 34);
    return mesh;
}

StaticMesh makeStaticMesh()
{
    StaticMesh mesh;
    fillMesh(mesh, 32);
    return mesh;
}

AnimFile makeAnimFile()
{
    AnimBlock block;
    block.nodes.resize(41);
    block.actions.resize(6);
    block.setFrameCount(120);
    block.setTranslationCount(12);
    block.setRotationCount(30);
    AnimFile file;
    file.blocks.assign(FileBytes / (120 * (12 * 12 + 30 * 16 + 4) + 41 * 32 + 6 * 50 + 44), block);
    return file;
}

/// What any reader has to do: see every byte of the file and have it in memory of its own.
void mapAndCopy(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    const auto size = size_t(file.size());
    const uchar *bytes = file.map(0, file.size());
    const std::unique_ptr<uchar[]> copy(new uchar[size]);
    std::memcpy(copy.get(), bytes, size);
    benchmark::DoNotOptimize(copy.get()[size - 1]);
}

void saveBytes(const QString &path, const QByteArray &bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        std::abort();
}

size_t findings(const AnimFile &file)
{
    return validate(file, nullptr, ReferenceIds()).size();
}

template <typename Mesh>
size_t findings(const Mesh &mesh)
{
    return validate(mesh).size();
}

template <typename Model>
void addRows(const char *kind, const QString &folder, Model model)
{
    const QString path = folder + QLatin1Char('/') + QLatin1String(kind);
    if (model.write(path))
        std::abort();
    Bench::ratio(
        std::string("read_") + kind, 2.5, Repetitions,
        [path] {
            Model read;
            if (read.read(path))
                std::abort();
        },
        [path] { mapAndCopy(path); });

    Bench::ratio(
        std::string("validate_") + kind, 4.0, Repetitions,
        [model] { benchmark::DoNotOptimize(findings(model)); }, [path] { mapAndCopy(path); });

    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        std::abort();
    Bench::ratio(
        std::string("write_") + kind, 1.5, Repetitions,
        [path, model = std::make_shared<Model>(std::move(model))] {
            if (model->write(path))
                std::abort();
        },
        [path = path + QLatin1String(".floor"), bytes = file.readAll()] { saveBytes(path, bytes); });
}
/// A short file whose every count is about two billion.
template <typename Model>
void addHostileRow(const char *kind, const QString &folder)
{
    const QString path = folder + QLatin1String("/hostile_") + QLatin1String(kind);
    saveBytes(path, QByteArray(200, '\x7f'));
    Bench::limit(std::string("hostile_") + kind, 0.010, Repetitions, [path] {
        Model read;
        if (!read.read(path))
            std::abort();
    });
}
} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QTemporaryDir folder;
    addRows("skinnedmesh", folder.path(), makeSkinnedMesh());
    addRows("anim", folder.path(), makeAnimFile());
    addRows("staticmesh", folder.path(), makeStaticMesh());
    addHostileRow<SkinnedMesh>("skinnedmesh", folder.path());
    addHostileRow<AnimFile>("anim", folder.path());
    addHostileRow<StaticMesh>("staticmesh", folder.path());
    return Bench::run(argc, argv);
}
