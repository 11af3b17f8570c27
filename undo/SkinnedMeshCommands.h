// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"

/// Particle effects 1 and 2 of a hot point, which only together say whether it deals damage.
struct HotPointEffects
{
    using Pair = std::array<quint16, 2>;

    static Pair get(const SkinnedMeshHotPoint &point)
    {
        return {point.particleEffect1, point.particleEffect2};
    }
    static void set(SkinnedMeshHotPoint &point, const Pair &effects)
    {
        point.particleEffect1 = effects[0];
        point.particleEffect2 = effects[1];
    }
};

// clang-format off
#define KORVANE_SKINNED_MESH_FIELDS(ROW) \
    ROW(UC_SkinnedMeshBBMin, Records::SkinnedMeshRoot, Member<&SkinnedMesh::bbMin>, "Bounding Box Min") \
    ROW(UC_SkinnedMeshBBMax, Records::SkinnedMeshRoot, Member<&SkinnedMesh::bbMax>, "Bounding Box Max") \
    ROW(UC_SkinnedMeshHTStart, Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackStart>, "Head Track Start Bone") \
    ROW(UC_SkinnedMeshHTEnd, Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackEnd>, "Head Track End Bone") \
    ROW(UC_SkinnedMeshHTFactor, Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackFactor>, "Head Track Factor") \
    ROW(UC_SkinnedMeshCnode, Records::ChildBone, Itself, "Child Bone Index") \
    ROW(UC_SkinnedMeshHPOrigin, Records::HotPoint, Member<&SkinnedMeshHotPoint::origin>, "Hot Point Origin") \
    ROW(UC_SkinnedMeshHPFlags, Records::HotPoint, Member<&SkinnedMeshHotPoint::flags>, "Hot Point Flags") \
    ROW(UC_SkinnedMeshHPNodeID, Records::HotPoint, Member<&SkinnedMeshHotPoint::nodeId>, "Hot Point BoneID") \
    ROW(UC_SkinnedMeshHPEffect, Records::HotPoint, HotPointEffects, "Hot Point Particle Effect") \
    ROW(UC_SkinnedMeshNodeBBMin, Records::Bone, Member<&SkinnedMeshNode::bbMin>, "Bone Bounding Box Min") \
    ROW(UC_SkinnedMeshNodeBBMax, Records::Bone, Member<&SkinnedMeshNode::bbMax>, "Bone Bounding Box Max") \
    ROW(UC_SkinnedMeshNodeSFlags, Records::Bone, Member<&SkinnedMeshNode::symbolFlags>, "Bone Symbol Flags") \
    ROW(UC_SkinnedMeshNodeImpactType, Records::Bone, Member<&SkinnedMeshNode::impactType>, "Bone Impact Type") \
    ROW(UC_SkinnedMeshNodeParentNode, Records::Bone, Member<&SkinnedMeshNode::parentNode>, "Parent Bone Index") \
    ROW(UC_SkinnedMeshNodeDamageScale, Records::Bone, Member<&SkinnedMeshNode::damageScale>, "Bone Damage Scale") \
    ROW(UC_SkinnedMeshNodeFlags, Records::Bone, Member<&SkinnedMeshNode::flags>, "Bone Flags") \
    ROW(UC_SkinnedMeshSurfaceMaterial, Records::SkinnedSurface, Member<&SkinnedMeshSurface::materialPath>, "Surface Material") \
    ROW(UC_SkinnedMeshTriIndex, Records::SkinnedTriangleIndex, Itself, "Triangle Index") \
    ROW(UC_SkinnedMeshVertNodeIndex, Records::SkinnedVertex, Member<&SkinnedMeshVertex::nodeIndex>, "Vertex Bone Index") \
    ROW(UC_SkinnedMeshVertPosition, Records::SkinnedVertex, Member<&SkinnedMeshVertex::position>, "Vertex Position") \
    ROW(UC_SkinnedMeshVertUV, Records::SkinnedVertex, Member<&SkinnedMeshVertex::uv>, "Vertex UV") \
    ROW(UC_SkinnedMeshVertNormal, Records::SkinnedVertex, Member<&SkinnedMeshVertex::normal>, "Vertex Normal")
// clang-format on

KORVANE_SKINNED_MESH_FIELDS(KORVANE_FIELD_COMMAND)

/// Every command of the skinned mesh stack.
inline constexpr auto skinnedMeshCommands =
    std::tuple_cat(KORVANE_SKINNED_MESH_FIELDS(KORVANE_COMMAND_TAG) std::tuple<>());
