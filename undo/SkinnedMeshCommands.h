// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"

// clang-format off
#define KORVANE_SKINNED_MESH_FIELDS(ROW) \
    ROW(UC_SkinnedMeshBBMin, Records::SkinnedMeshRoot, Member<&SkinnedMesh::bbMin>, "Bounding Box Min") \
    ROW(UC_SkinnedMeshBBMax, Records::SkinnedMeshRoot, Member<&SkinnedMesh::bbMax>, "Bounding Box Max") \
    ROW(UC_SkinnedMeshHTStart, Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackStart>, "Head Track Start Bone") \
    ROW(UC_SkinnedMeshHTEnd, Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackEnd>, "Head Track End Bone") \
    ROW(UC_SkinnedMeshHTFactor, Records::SkinnedMeshRoot, Member<&SkinnedMesh::headTrackFactor>, "Head Track Factor") \
    ROW(UC_SkinnedMeshNodeBBMin, Records::Bone, Member<&SkinnedMeshNode::bbMin>, "Bone Bounding Box Min") \
    ROW(UC_SkinnedMeshNodeBBMax, Records::Bone, Member<&SkinnedMeshNode::bbMax>, "Bone Bounding Box Max") \
    ROW(UC_SkinnedMeshNodeSFlags, Records::Bone, Member<&SkinnedMeshNode::symbolFlags>, "Bone Symbol Flags") \
    ROW(UC_SkinnedMeshNodeImpactType, Records::Bone, Member<&SkinnedMeshNode::impactType>, "Bone Impact Type") \
    ROW(UC_SkinnedMeshNodeParentNode, Records::Bone, Member<&SkinnedMeshNode::parentNode>, "Parent Bone Index") \
    ROW(UC_SkinnedMeshNodeDamageScale, Records::Bone, Member<&SkinnedMeshNode::damageScale>, "Bone Damage Scale") \
    ROW(UC_SkinnedMeshNodeFlags, Records::Bone, Member<&SkinnedMeshNode::flags>, "Bone Flags")
// clang-format on

KORVANE_SKINNED_MESH_FIELDS(KORVANE_FIELD_COMMAND)

/// Every command of the skinned mesh stack.
inline constexpr auto skinnedMeshCommands =
    std::tuple_cat(KORVANE_SKINNED_MESH_FIELDS(KORVANE_COMMAND_TAG) std::tuple<>());
