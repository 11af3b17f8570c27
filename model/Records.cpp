// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Records.h"

namespace {
template <typename Model, typename Count>
int countUnder(const Model *owner, Count count)
{
    return owner ? int(count(*owner)) : 0;
}
} // namespace

int recordCount(const SkinnedMesh &mesh, RecordKind kind, const RecordIndex &index)
{
    switch (kind) {
    case RecordKind::Bone:
        return int(mesh.nodes.size());
    case RecordKind::ChildBone:
        return countUnder(Records::element(mesh.nodes, index[0]),
                          [](const SkinnedMeshNode &bone) { return bone.childNodes.size(); });
    case RecordKind::HotPoint:
        return int(mesh.hotPoints.size());
    case RecordKind::SkinnedSurface:
        return int(mesh.surfaces.size());
    case RecordKind::SkinnedTriangleIndex:
        return countUnder(Records::element(mesh.surfaces, index[0]),
                          [](const SkinnedMeshSurface &surface) { return surface.triangleIndexes.size(); });
    case RecordKind::SkinnedVertex:
        return int(mesh.vertices.size());
    default:
        return 0;
    }
}

int recordCount(const AnimFile &file, RecordKind kind, const RecordIndex &index)
{
    if (kind == RecordKind::AnimBlock)
        return int(file.blocks.size());
    const AnimBlock *block = Records::element(file.blocks, index[0]);
    if (!block)
        return 0;
    switch (kind) {
    case RecordKind::AnimBone:
        return int(block->nodes.size());
    case RecordKind::AnimFrame:
        return block->frameCount();
    case RecordKind::TranslationTrack:
        return block->translations.trackCount();
    case RecordKind::TranslationKey:
        return block->translations.frameCount();
    case RecordKind::RotationTrack:
        return block->rotations.trackCount();
    case RecordKind::RotationKey:
        return block->rotations.frameCount();
    case RecordKind::AnimAction:
        return int(block->actions.size());
    default:
        return 0;
    }
}

int recordCount(const StaticMesh &mesh, RecordKind kind, const RecordIndex &index)
{
    switch (kind) {
    case RecordKind::StaticSurface:
        return int(mesh.surfaces.size());
    case RecordKind::StaticTriangleIndex:
        return countUnder(Records::element(mesh.surfaces, index[0]),
                          [](const StaticMeshSurface &surface) { return surface.triangleIndexes.size(); });
    case RecordKind::StaticVertex:
        return int(mesh.vertices.size());
    default:
        return 0;
    }
}
