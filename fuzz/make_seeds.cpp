// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfExport.h"
#include "ImportMessages.h"
#include "KMat.h"
#include "ModelJson.h"
#include "SampleModels.h"
#include "TestArchive.h"

#include <QDir>
#include <QFile>

using namespace SampleModels;

namespace {
template <typename Model>
bool seed(const QDir &folder, const char *target, const char *name, const Model &model)
{
    const QString path = folder.filePath(QLatin1String(target) + QLatin1Char('/') + QLatin1String(name));
    return folder.mkpath(QLatin1String(target)) && !model.write(path);
}

/// An input of fuzz_scene: its controls, then the files.
bool sceneSeed(const QDir &folder, const char *name, const QByteArray &controls,
               const std::initializer_list<QByteArray> &files)
{
    QFile file(folder.filePath(QStringLiteral("fuzz_scene/%1").arg(QLatin1String(name))));
    if (!folder.mkpath(QStringLiteral("fuzz_scene")) || !file.open(QIODevice::WriteOnly))
        return false;
    bool written = file.write(controls) == controls.size();
    for (const QByteArray &each : files)
        written = written && file.write(each) == each.size();
    return written;
}

bool gltfSeed(const QDir &folder, const char *name, const GltfWriter &content)
{
    QFile file(folder.filePath(QStringLiteral("fuzz_gltf/%1").arg(QLatin1String(name))));
    const QByteArray bytes = content.glb();
    return folder.mkpath(QStringLiteral("fuzz_gltf")) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

bool archiveSeed(const QDir &folder, const char *name, bool isZip64)
{
    TestArchive made;
    made.add("models/a.skinnedmesh", QByteArray(300, 'a'));
    made.add({"b", "stored", false});
    QFile file(folder.filePath(QStringLiteral("fuzz_archive/%1").arg(QLatin1String(name))));
    const QByteArray bytes = made.bytes(-1, isZip64);
    return folder.mkpath(QStringLiteral("fuzz_archive")) && file.open(QIODevice::WriteOnly) &&
           file.write(bytes) == bytes.size();
}

bool jsonSeed(const QDir &folder, const char *name, const ModelJson::Content &content)
{
    QFile file(folder.filePath(QStringLiteral("fuzz_json/%1").arg(QLatin1String(name))));
    bool written = folder.mkpath(QStringLiteral("fuzz_json")) && file.open(QIODevice::WriteOnly);
    ModelJson::write(content,
                     [&](const QByteArray &part) { written = written && file.write(part) == part.size(); });
    return written;
}

SkinnedMesh withoutSurfaces()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(1);
    return mesh;
}
} // namespace

/// make_seeds <folder>: writes the first inputs of the fuzz targets of file formats into their folders there.
int main(int argc, char **argv)
{
    if (argc != 2)
        return 1;
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    AnimFile block;
    block.blocks.resize(1);
    StaticMesh surface;
    surface.surfaces.resize(1);
    const MaterialTable materials{{QStringLiteral("a"), QStringLiteral("textures/a.png")},
                                  {QStringLiteral("b"), QString()}};
    const AnimFile anim = plainAnim();
    ImportMessages messages;
    const bool written =
        gltfSeed(folder, "skinned",
                 exportGltf(plainMesh(), &anim, allBlocks(anim), GltfSource(), messages)) &&
        gltfSeed(folder, "static", exportGltf(plainStatic(), GltfSource(), messages)) &&
        jsonSeed(folder, "skinned", {skinnedMesh(), {}}) && jsonSeed(folder, "anim", {animFile(), "more"}) &&
        jsonSeed(folder, "static", {staticMesh(), {}}) && archiveSeed(folder, "two_entries", false) &&
        archiveSeed(folder, "zip64", true) && seed(folder, "fuzz_skinnedmesh", "everything", skinnedMesh()) &&
        seed(folder, "fuzz_skinnedmesh", "no_surfaces", withoutSurfaces()) &&
        seed(folder, "fuzz_anim", "everything", animFile()) &&
        seed(folder, "fuzz_anim", "one_block", block) &&
        seed(folder, "fuzz_staticmesh", "everything", staticMesh()) &&
        seed(folder, "fuzz_staticmesh", "one_surface", surface) &&
        sceneSeed(folder, "playing", QByteArray::fromHex("000100000000803f0000003f"),
                  {bytesOf(plainMesh()), bytesOf(plainAnim())}) &&
        sceneSeed(folder, "odd", QByteArray::fromHex("000201000000003f000000bf"),
                  {bytesOf(skinnedMesh()), bytesOf(animFile())}) &&
        sceneSeed(folder, "static", QByteArray::fromHex("010000000000000000000000"),
                  {bytesOf(staticMesh())}) &&
        folder.mkpath(QStringLiteral("fuzz_kmat")) &&
        writeKMat(folder.filePath(QStringLiteral("fuzz_kmat/two_materials")), materials).isEmpty();
    return written ? 0 : 1;
}
