// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ExchangeCommand.h"
#include "FieldCommand.h"
#include "MeshBones.h"
#include "ReplaceCommand.h"
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
    ROW(UC_SkinnedMeshBBMin, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bounding Box Min"), Records::SkinnedMeshRoot, Member<&SkinnedMesh::bbMin>) \
    ROW(UC_SkinnedMeshBBMax, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bounding Box Max"), Records::SkinnedMeshRoot, Member<&SkinnedMesh::bbMax>) \
    ROW(UC_SkinnedMeshHTStart, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Head Track Start Bone"), Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackStart>) \
    ROW(UC_SkinnedMeshHTEnd, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Head Track End Bone"), Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackEnd>) \
    ROW(UC_SkinnedMeshHTFactor, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Head Track Factor"), Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackFactor>) \
    ROW(UC_SkinnedMeshCnode, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Child Bone Index"), Records::ChildBone, Itself) \
    ROW(UC_SkinnedMeshHPOrigin, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Hot Point Origin"), Records::HotPoint, Member<&SkinnedMeshHotPoint::origin>) \
    ROW(UC_SkinnedMeshHPFlags, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Hot Point Flags"), Records::HotPoint, Member<&SkinnedMeshHotPoint::flags>) \
    ROW(UC_SkinnedMeshHPNodeID, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Hot Point BoneID"), Records::HotPoint, Member<&SkinnedMeshHotPoint::nodeId>) \
    ROW(UC_SkinnedMeshHPEffect, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Hot Point Particle Effect"), Records::HotPoint, HotPointEffects) \
    ROW(UC_SkinnedMeshNodeBBMin, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Bounding Box Min"), Records::Bone, Member<&SkinnedMeshNode::bbMin>) \
    ROW(UC_SkinnedMeshNodeBBMax, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Bounding Box Max"), Records::Bone, Member<&SkinnedMeshNode::bbMax>) \
    ROW(UC_SkinnedMeshNodeSFlags, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Symbol Flags"), Records::Bone, Member<&SkinnedMeshNode::symbolFlags>) \
    ROW(UC_SkinnedMeshNodeImpactType, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Impact Type"), Records::Bone, Member<&SkinnedMeshNode::impactType>) \
    ROW(UC_SkinnedMeshNodeParentNode, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Parent Bone Index"), Records::Bone, Member<&SkinnedMeshNode::parentNode>) \
    ROW(UC_SkinnedMeshNodeDamageScale, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Damage Scale"), Records::Bone, Member<&SkinnedMeshNode::damageScale>) \
    ROW(UC_SkinnedMeshNodeFlags, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Flags"), Records::Bone, Member<&SkinnedMeshNode::flags>) \
    ROW(UC_SkinnedMeshNodeName, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Name"), Records::Bone, Member<&SkinnedMeshNode::name>) \
    ROW(UC_SkinnedMeshAnimationNames, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation Name"), Records::SkinnedMeshRoot, Member<&SkinnedMesh::animationNames>) \
    ROW(UC_SkinnedMeshSurfaceMaterial, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Surface Material"), Records::SkinnedSurface, Member<&SkinnedMeshSurface::materialPath>) \
    ROW(UC_SkinnedMeshTriIndex, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Triangle Index"), Records::SkinnedTriangleIndex, Itself) \
    ROW(UC_SkinnedMeshVertNodeIndex, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Vertex Bone Index"), Records::SkinnedVertex, Member<&SkinnedMeshVertex::nodeIndex>) \
    ROW(UC_SkinnedMeshVertPosition, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Vertex Position"), Records::SkinnedVertex, Member<&SkinnedMeshVertex::position>) \
    ROW(UC_SkinnedMeshVertUV, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Vertex UV"), Records::SkinnedVertex, Member<&SkinnedMeshVertex::uv>) \
    ROW(UC_SkinnedMeshVertNormal, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Vertex Normal"), Records::SkinnedVertex, Member<&SkinnedMeshVertex::normal>) \
    ROW(UC_SkinnedMeshAddHotPoint, InsertCommand, QT_TRANSLATE_NOOP("UndoCommands", "Add Hot Point"), Records::HotPoint, RecordKind::HotPoints) \
    ROW(UC_SkinnedMeshRemoveHotPoint, RemoveCommand, QT_TRANSLATE_NOOP("UndoCommands", "Remove Hot Point"), Records::HotPoint, RecordKind::HotPoints) \
    ROW(UC_SkinnedMeshPasteHotPoint, InsertCommand, QT_TRANSLATE_NOOP("UndoCommands", "Paste Hot Point"), Records::HotPoint, RecordKind::HotPoints) \
    ROW(UC_SkinnedMeshAddCnode, InsertCommand, QT_TRANSLATE_NOOP("UndoCommands", "Add Child Bone Index"), Records::ChildBone, RecordKind::ChildBones) \
    ROW(UC_SkinnedMeshRemoveCnode, RemoveCommand, QT_TRANSLATE_NOOP("UndoCommands", "Remove Child Bone Index"), Records::ChildBone, RecordKind::ChildBones) \
    ROW(UC_SkinnedMeshAddSurface, InsertCommand, QT_TRANSLATE_NOOP("UndoCommands", "Paste Surface"), Records::SkinnedSurface, RecordKind::SkinnedSurfaces) \
    ROW(UC_SkinnedMeshRemoveSurface, RemoveCommand, QT_TRANSLATE_NOOP("UndoCommands", "Remove Surface"), Records::SkinnedSurface, RecordKind::SkinnedSurfaces) \
    ROW(UC_SkinnedMeshBones, ExchangeCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bones"), Records::SkinnedMeshRoot, MeshBones) \
    ROW(UC_SkinnedMeshUpdate, ReplaceCommand, QT_TRANSLATE_NOOP("UndoCommands", "Update from %1"), Records::SkinnedMeshRoot) \
    ROW(UC_SkinnedMeshTakeTheirs, ReplaceCommand, QT_TRANSLATE_NOOP("UndoCommands", "Take from %1"), Records::SkinnedMeshRoot) \
    ROW(UC_SkinnedMeshRotate, RotateCommand, QT_TRANSLATE_NOOP("UndoCommands", "Rotate Vertices"), Records::SkinnedMeshRoot) \
    ROW(UC_SkinnedMeshScale, ScaleCommand, QT_TRANSLATE_NOOP("UndoCommands", "Scale Vertices"), Records::SkinnedMeshRoot)
// clang-format on

KORVANE_SKINNED_MESH_COMMANDS(KORVANE_COMMAND)

/// Every command of the skinned mesh stack.
inline constexpr auto skinnedMeshCommands =
    std::tuple_cat(KORVANE_SKINNED_MESH_COMMANDS(KORVANE_COMMAND_TAG) std::tuple<>());
