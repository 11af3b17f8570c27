// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"
#include "StructureCommand.h"
#include "TransformCommand.h"

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
#define KORVANE_SKINNED_MESH_COMMANDS(ROW) \
    ROW(UC_SkinnedMeshBBMin, FieldCommand, "Bounding Box Min", Records::SkinnedMeshRoot, Member<&SkinnedMesh::bbMin>) \
    ROW(UC_SkinnedMeshBBMax, FieldCommand, "Bounding Box Max", Records::SkinnedMeshRoot, Member<&SkinnedMesh::bbMax>) \
    ROW(UC_SkinnedMeshHTStart, FieldCommand, "Head Track Start Bone", Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackStart>) \
    ROW(UC_SkinnedMeshHTEnd, FieldCommand, "Head Track End Bone", Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackEnd>) \
    ROW(UC_SkinnedMeshHTFactor, FieldCommand, "Head Track Factor", Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackFactor>) \
    ROW(UC_SkinnedMeshCnode, FieldCommand, "Child Bone Index", Records::ChildBone, Itself) \
    ROW(UC_SkinnedMeshHPOrigin, FieldCommand, "Hot Point Origin", Records::HotPoint, Member<&SkinnedMeshHotPoint::origin>) \
    ROW(UC_SkinnedMeshHPFlags, FieldCommand, "Hot Point Flags", Records::HotPoint, Member<&SkinnedMeshHotPoint::flags>) \
    ROW(UC_SkinnedMeshHPNodeID, FieldCommand, "Hot Point BoneID", Records::HotPoint, Member<&SkinnedMeshHotPoint::nodeId>) \
    ROW(UC_SkinnedMeshHPEffect, FieldCommand, "Hot Point Particle Effect", Records::HotPoint, HotPointEffects) \
    ROW(UC_SkinnedMeshNodeBBMin, FieldCommand, "Bone Bounding Box Min", Records::Bone, Member<&SkinnedMeshNode::bbMin>) \
    ROW(UC_SkinnedMeshNodeBBMax, FieldCommand, "Bone Bounding Box Max", Records::Bone, Member<&SkinnedMeshNode::bbMax>) \
    ROW(UC_SkinnedMeshNodeSFlags, FieldCommand, "Bone Symbol Flags", Records::Bone, Member<&SkinnedMeshNode::symbolFlags>) \
    ROW(UC_SkinnedMeshNodeImpactType, FieldCommand, "Bone Impact Type", Records::Bone, Member<&SkinnedMeshNode::impactType>) \
    ROW(UC_SkinnedMeshNodeParentNode, FieldCommand, "Parent Bone Index", Records::Bone, Member<&SkinnedMeshNode::parentNode>) \
    ROW(UC_SkinnedMeshNodeDamageScale, FieldCommand, "Bone Damage Scale", Records::Bone, Member<&SkinnedMeshNode::damageScale>) \
    ROW(UC_SkinnedMeshNodeFlags, FieldCommand, "Bone Flags", Records::Bone, Member<&SkinnedMeshNode::flags>) \
    ROW(UC_SkinnedMeshSurfaceMaterial, FieldCommand, "Surface Material", Records::SkinnedSurface, Member<&SkinnedMeshSurface::materialPath>) \
    ROW(UC_SkinnedMeshTriIndex, FieldCommand, "Triangle Index", Records::SkinnedTriangleIndex, Itself) \
    ROW(UC_SkinnedMeshVertNodeIndex, FieldCommand, "Vertex Bone Index", Records::SkinnedVertex, Member<&SkinnedMeshVertex::nodeIndex>) \
    ROW(UC_SkinnedMeshVertPosition, FieldCommand, "Vertex Position", Records::SkinnedVertex, Member<&SkinnedMeshVertex::position>) \
    ROW(UC_SkinnedMeshVertUV, FieldCommand, "Vertex UV", Records::SkinnedVertex, Member<&SkinnedMeshVertex::uv>) \
    ROW(UC_SkinnedMeshVertNormal, FieldCommand, "Vertex Normal", Records::SkinnedVertex, Member<&SkinnedMeshVertex::normal>) \
    ROW(UC_SkinnedMeshAddHotPoint, InsertCommand, "Add Hot Point", Records::HotPoint, RecordKind::HotPoints) \
    ROW(UC_SkinnedMeshRemoveHotPoint, RemoveCommand, "Remove Hot Point", Records::HotPoint, RecordKind::HotPoints) \
    ROW(UC_SkinnedMeshPasteHotPoint, InsertCommand, "Paste Hot Point", Records::HotPoint, RecordKind::HotPoints) \
    ROW(UC_SkinnedMeshAddCnode, InsertCommand, "Add Child Bone Index", Records::ChildBone, RecordKind::ChildBones) \
    ROW(UC_SkinnedMeshRemoveCnode, RemoveCommand, "Remove Child Bone Index", Records::ChildBone, RecordKind::ChildBones) \
    ROW(UC_SkinnedMeshRotate, RotateCommand, "Rotate Vertices", Records::SkinnedMeshRoot) \
    ROW(UC_SkinnedMeshScale, ScaleCommand, "Scale Vertices", Records::SkinnedMeshRoot)
// clang-format on

KORVANE_SKINNED_MESH_COMMANDS(KORVANE_COMMAND)

/// Every command of the skinned mesh stack.
inline constexpr auto skinnedMeshCommands =
    std::tuple_cat(KORVANE_SKINNED_MESH_COMMANDS(KORVANE_COMMAND_TAG) std::tuple<>());
