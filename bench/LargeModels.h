// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

/// Models of 64 MB, their bytes shared out as in real ones: a third indexes and two thirds vertices in the
/// meshes; in the animations blocks of 41 bones and 120 frames, most of it keys.
namespace LargeModels {
constexpr size_t FileBytes = 64 * 1000 * 1000;

inline std::vector<quint16> triangleIndexes(size_t count, quint16 limit)
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

inline SkinnedMesh skinnedMesh()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(41);
    fillMesh(mesh, 34);
    return mesh;
}

inline StaticMesh staticMesh()
{
    StaticMesh mesh;
    fillMesh(mesh, 32);
    return mesh;
}

inline AnimFile animFile(size_t bytes = FileBytes)
{
    AnimBlock block;
    block.nodes.resize(41);
    block.actions.resize(6);
    block.setFrameCount(120);
    block.setTranslationCount(12);
    block.setRotationCount(30);
    AnimFile file;
    file.blocks.assign(bytes / (120 * (12 * 12 + 30 * 16 + 4) + 41 * 32 + 6 * 50 + 44), block);
    return file;
}
} // namespace LargeModels
