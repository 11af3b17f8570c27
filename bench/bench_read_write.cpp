// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Bench.h"
#include "LargeModels.h"
#include "ReferenceIds.h"
#include "Validation.h"

#include <QCoreApplication>
#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>

#include <cstdlib>
#include <cstring>
#include <memory>

// Reads and writes a 64 MB file of each kind. Looks for what is wrong with them, of which there is much:
// normals, for one, are zero. And refuses a short file that claims to be much longer.
namespace {
constexpr int Repetitions = 15;

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
    addRows("skinnedmesh", folder.path(), LargeModels::skinnedMesh());
    addRows("anim", folder.path(), LargeModels::animFile());
    addRows("staticmesh", folder.path(), LargeModels::staticMesh());
    addHostileRow<SkinnedMesh>("skinnedmesh", folder.path());
    addHostileRow<AnimFile>("anim", folder.path());
    addHostileRow<StaticMesh>("staticmesh", folder.path());
    return Bench::run(argc, argv);
}
