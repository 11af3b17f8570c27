// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MeshSource.h"

#include "BinaryFileReader.h"
#include "Log.h"
#include "MaterialTextures.h"
#include "Settings.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr float BoxStart = 999999.0f;

template <typename Model>
struct Traits;

template <>
struct Traits<SkinnedMesh>
{
    static QString logTag() { return QStringLiteral("GLMesh From Skinned Mesh"); }
    static qint32 boneId(const SkinnedMeshVertex &vertex) { return vertex.nodeIndex; }
    static size_t boneCount(const SkinnedMesh &mesh) { return mesh.nodes.size(); }
};

template <>
struct Traits<StaticMesh>
{
    static QString logTag() { return QStringLiteral("GLMesh From Static Mesh"); }
    static qint32 boneId(const StaticMeshVertex &) { return 0; }
    static size_t boneCount(const StaticMesh &) { return 0; }
};

/// What is wrong with an index list; empty when all of it can be drawn.
struct LeftOut
{
    size_t triangles = 0;
    size_t first = 0;
};

std::vector<quint16> checkedIndexes(const std::vector<quint16> &indexes, size_t vertexCount, LeftOut &leftOut)
{
    std::vector<quint16> drawable;
    drawable.reserve(indexes.size());
    for (size_t i = 0; i < indexes.size(); i += 3) {
        const auto first = indexes.begin() + std::ptrdiff_t(i);
        const auto end = indexes.begin() + std::ptrdiff_t(std::min(i + 3, indexes.size()));
        if (std::all_of(first, end, [vertexCount](quint16 index) { return index < vertexCount; })) {
            drawable.insert(drawable.end(), first, end);
        } else if (leftOut.triangles++ == 0) {
            leftOut.first = i / 3;
        }
    }
    return drawable;
}

template <typename Model>
std::vector<std::vector<quint16>> drawableIndexesOf(const Model &mesh)
{
    std::vector<std::vector<quint16>> lists;
    lists.reserve(mesh.surfaces.size());
    for (size_t surface = 0; surface < mesh.surfaces.size(); ++surface) {
        LeftOut leftOut;
        lists.push_back(
            checkedIndexes(mesh.surfaces[surface].triangleIndexes, mesh.vertices.size(), leftOut));
        if (leftOut.triangles == 0)
            continue;
        Log::warning(
            QCoreApplication::translate(
                "Viewport", "[%1] Surface %2: %3 triangles name vertices beyond the %4 of the model and "
                            "are not drawn, the first is triangle %5")
                .arg(Traits<Model>::logTag(), QString::number(surface), QString::number(leftOut.triangles),
                     QString::number(mesh.vertices.size()), QString::number(leftOut.first)));
    }
    return lists;
}

template <typename Model>
MeshSource sourceWithoutImages(const Model &mesh)
{
    MeshSource source;
    source.vertices.assign(mesh);
    source.indexes = drawableIndexesOf(mesh);
    source.boneCount = Traits<Model>::boneCount(mesh);
    return source;
}

template <typename Model>
MeshSource sourceOf(const Model &mesh, const QString &gamePath, const QString &outputDir,
                    const ReadProgress *progress)
{
    MeshSource source = sourceWithoutImages(mesh);
    MaterialTextures textures(gamePath, outputDir, Traits<Model>::logTag());
    source.images.reserve(mesh.surfaces.size());
    for (const auto &surface : mesh.surfaces) {
        if (progress && progress->isCancelled)
            break;
        source.images.push_back(textures.image(surface.materialPath));
    }
    return source;
}
} // namespace

template <typename Model>
void MeshVertices::assignModel(const Model &mesh)
{
    vertices.clear();
    vertices.reserve(mesh.vertices.size());
    for (const auto &vertex : mesh.vertices) {
        vertices.push_back({{vertex.position.x(), vertex.position.y(), vertex.position.z()},
                            {vertex.uv.x(), 1.0f - vertex.uv.y()},
                            {vertex.normal.x(), vertex.normal.y(), vertex.normal.z()},
                            Traits<Model>::boneId(vertex)});
    }
    measure();
}

void MeshVertices::assign(const SkinnedMesh &mesh)
{
    assignModel(mesh);
}

void MeshVertices::assign(const StaticMesh &mesh)
{
    assignModel(mesh);
}

void MeshVertices::assign(std::vector<GLVertex> ready)
{
    vertices = std::move(ready);
    measure();
}

void MeshVertices::measure()
{
    boxMin = {BoxStart, BoxStart, BoxStart};
    boxMax = {-BoxStart, -BoxStart, -BoxStart};
    for (const GLVertex &vertex : vertices) {
        for (int axis = 0; axis < 3; ++axis) {
            // In this order a NaN never becomes the bound.
            boxMin[axis] = std::min(boxMin[axis], vertex.position[axis]);
            boxMax[axis] = std::max(boxMax[axis], vertex.position[axis]);
        }
    }
}

MeshSource MeshSource::from(const SkinnedMesh &mesh)
{
    return sourceOf(mesh, Settings::GamePath.value(), Settings::OutputDir.value(), nullptr);
}

MeshSource MeshSource::from(const StaticMesh &mesh)
{
    return sourceOf(mesh, Settings::GamePath.value(), Settings::OutputDir.value(), nullptr);
}

MeshSource MeshSource::from(const SkinnedMesh &mesh, const QString &gamePath, const QString &outputDir,
                            const ReadProgress *progress)
{
    return sourceOf(mesh, gamePath, outputDir, progress);
}

MeshSource MeshSource::from(const StaticMesh &mesh, const QString &gamePath, const QString &outputDir,
                            const ReadProgress *progress)
{
    return sourceOf(mesh, gamePath, outputDir, progress);
}

MeshSource MeshSource::from(const StaticMesh &mesh, const QImage &image)
{
    MeshSource source = sourceWithoutImages(mesh);
    source.images.assign(mesh.surfaces.size(), image);
    return source;
}

std::vector<std::vector<quint16>> drawableIndexes(const SkinnedMesh &mesh)
{
    return drawableIndexesOf(mesh);
}

std::vector<std::vector<quint16>> drawableIndexes(const StaticMesh &mesh)
{
    return drawableIndexesOf(mesh);
}
