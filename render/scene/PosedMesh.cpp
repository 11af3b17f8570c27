// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PosedMesh.h"

#include "AnimFile.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "Transform.h"

StaticMesh posedMesh(const SkinnedMesh &mesh, const BonePalette &palette, const QQuaternion &yaw)
{
    StaticMesh posed;
    posed.version = mesh.version;
    for (const SkinnedMeshSurface &surface : mesh.surfaces)
        posed.surfaces.push_back({surface.materialPath, surface.triangleIndexes});
    QMatrix4x4 turn;
    turn.rotate(yaw);
    for (const SkinnedMeshVertex &vertex : mesh.vertices) {
        const QMatrix4x4 place = vertex.nodeIndex < palette.size() ? turn * palette[vertex.nodeIndex] : turn;
        posed.vertices.push_back({place.map(vertex.position), vertex.uv, place.mapVector(vertex.normal)});
    }
    if (const std::optional<Box> box = meshBox(posed)) {
        posed.bbMin = box->min;
        posed.bbMax = box->max;
    }
    return posed;
}

StaticMesh posedMesh(const SkinnedMesh &mesh, Playback state)
{
    BonePalette palette(mesh.nodes.size());
    QQuaternion yaw;
    PoseEvaluator evaluator;
    if (const AnimBlock *block = playableBlock(state)) {
        if (state.playState == PlayState::InitialPose)
            evaluator.evaluateInitialPose(palette, mesh, *block);
        else
            evaluator.evaluateAnimatedPose(palette, mesh, *block, state, yaw);
    }
    return posedMesh(mesh, palette, yaw);
}
