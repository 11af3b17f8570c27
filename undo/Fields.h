// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AllCommands.h"
#include "FieldRow.h"

/// Every field of every kind of record that can be edited: the rows that pages bind their editors to, and
/// that tables have their columns from. What is added here is in `all`, too.
namespace Fields {

/// The names of the numbers in fields that choose.
QStringList boneTypes();
QStringList sides();
QStringList impactTypes();
QStringList eventTypes();

using namespace Parts;

// clang-format off
// Skinned mesh
inline constexpr VectorRow<UC_SkinnedMeshBBMin, 3> MeshBoxMin{"bbMin", QT_TRANSLATE_NOOP("RecordFields", "Bounding Box Min"), nullptr};
inline constexpr VectorRow<UC_SkinnedMeshBBMax, 3> MeshBoxMax{"bbMax", QT_TRANSLATE_NOOP("RecordFields", "Bounding Box Max"), nullptr};
inline constexpr FieldRow<UC_SkinnedMeshHTStart, WholeField> HeadTrackStart{"headTrackStart", QT_TRANSLATE_NOOP("RecordFields", "Head Track Start Bone"), nullptr, {}, standingFor(Naming::Bone)};
inline constexpr FieldRow<UC_SkinnedMeshHTEnd, WholeField> HeadTrackEnd{"headTrackEnd", QT_TRANSLATE_NOOP("RecordFields", "Head Track End Bone"), nullptr, {}, standingFor(Naming::Bone)};
inline constexpr FieldRow<UC_SkinnedMeshHTFactor, WholeField> HeadTrackFactor{"headTrackFactor", QT_TRANSLATE_NOOP("RecordFields", "Head Track Factor"), nullptr};
inline constexpr FieldRow<UC_SkinnedMeshCnode, WholeField> ChildBone{"bone", QT_TRANSLATE_NOOP("RecordFields", "Child Bone"), QT_TRANSLATE_NOOP("RecordFields", "Child Bone Index"), {}, standingFor(Naming::Bone)};
inline constexpr VectorRow<UC_SkinnedMeshHPOrigin, 3> HotPointOrigin{"origin", QT_TRANSLATE_NOOP("RecordFields", "Position On Bone"), QT_TRANSLATE_NOOP("RecordFields", "Hot Point Origin %1")};
inline constexpr FieldRow<UC_SkinnedMeshHPNodeID, WholeField> HotPointBone{"bone", QT_TRANSLATE_NOOP("RecordFields", "Bone"), QT_TRANSLATE_NOOP("RecordFields", "Hot Point BoneID"), {}, standingFor(Naming::Bone)};
inline constexpr FieldRow<UC_SkinnedMeshHPEffect, DamageMark> HotPointDamage{"dealsDamage", QT_TRANSLATE_NOOP("RecordFields", "Deal Damage"), QT_TRANSLATE_NOOP("RecordFields", "Hot Point Particle Effect 1")};
inline constexpr FieldRow<UC_SkinnedMeshHPEffect, Component> HotPointEffect1{"effect1", QT_TRANSLATE_NOOP("RecordFields", "Particle Effect 1"), QT_TRANSLATE_NOOP("RecordFields", "Hot Point Particle Effect 1"), {0}, standingFor(Naming::HotPointEffect)};
inline constexpr FieldRow<UC_SkinnedMeshHPEffect, Component> HotPointEffect2{"effect2", QT_TRANSLATE_NOOP("RecordFields", "Particle Effect 2"), QT_TRANSLATE_NOOP("RecordFields", "Hot Point Particle Effect 2"), {1}, standingFor(Naming::HotPointEffect)};
inline constexpr FieldRow<UC_SkinnedMeshHPFlags, WholeField> HotPointFlags{"flags", QT_TRANSLATE_NOOP("RecordFields", "Flags"), QT_TRANSLATE_NOOP("RecordFields", "Hot Point Flags"), {}, {nullptr, 0, false, true}};
// Bits 3 to 5 of the symbol carry no meaning and are kept.
inline constexpr FieldRow<UC_SkinnedMeshNodeSFlags, Bits> BoneSymbolType{"symbolType", QT_TRANSLATE_NOOP("RecordFields", "Symbol Type"), QT_TRANSLATE_NOOP("RecordFields", "Bone Symbol Flags"), {0, 2}, {boneTypes, 3}};
inline constexpr FieldRow<UC_SkinnedMeshNodeSFlags, Bits> BoneSymbolSide{"symbolSide", QT_TRANSLATE_NOOP("RecordFields", "Symbol Side"), QT_TRANSLATE_NOOP("RecordFields", "Bone Symbol Flags"), {2, 1}, {sides, 1}};
inline constexpr FieldRow<UC_SkinnedMeshNodeSFlags, Bits> BoneSymbolPart{"symbolPart", QT_TRANSLATE_NOOP("RecordFields", "Symbol Part"), QT_TRANSLATE_NOOP("RecordFields", "Bone Symbol Flags"), {6, 2}, {nullptr, 3}};
inline constexpr FieldRow<UC_SkinnedMeshNodeName, WholeField> BoneName{"name", QT_TRANSLATE_NOOP("RecordFields", "Name"), QT_TRANSLATE_NOOP("RecordFields", "Bone Name")};
inline constexpr FieldRow<UC_SkinnedMeshNodeParentNode, WholeField> BoneParent{"parent", QT_TRANSLATE_NOOP("RecordFields", "Parent Bone"), QT_TRANSLATE_NOOP("RecordFields", "Parent Bone Index"), {}, standingFor(Naming::ParentBone)};
inline constexpr FieldRow<UC_SkinnedMeshNodeImpactType, WholeField> BoneImpact{"impact", QT_TRANSLATE_NOOP("RecordFields", "Impact Type"), QT_TRANSLATE_NOOP("RecordFields", "Bone Impact Type"), {}, {impactTypes}};
inline constexpr FieldRow<UC_SkinnedMeshNodeDamageScale, WholeField> BoneDamageScale{"damageScale", QT_TRANSLATE_NOOP("RecordFields", "Damage Scale"), QT_TRANSLATE_NOOP("RecordFields", "Bone Damage Scale")};
inline constexpr VectorRow<UC_SkinnedMeshNodeBBMin, 3> BoneBoxMin{"bbMin", QT_TRANSLATE_NOOP("RecordFields", "Bounding Box Min"), QT_TRANSLATE_NOOP("RecordFields", "Bone Bounding Box Min %1")};
inline constexpr VectorRow<UC_SkinnedMeshNodeBBMax, 3> BoneBoxMax{"bbMax", QT_TRANSLATE_NOOP("RecordFields", "Bounding Box Max"), QT_TRANSLATE_NOOP("RecordFields", "Bone Bounding Box Max %1")};
inline constexpr FieldRow<UC_SkinnedMeshNodeFlags, WholeField> BoneFlags{"flags", QT_TRANSLATE_NOOP("RecordFields", "Flags"), QT_TRANSLATE_NOOP("RecordFields", "Bone Flags"), {}, {nullptr, 0, false, true}};
inline constexpr FieldRow<UC_SkinnedMeshSurfaceMaterial, WholeField> SkinnedMaterial{"material", QT_TRANSLATE_NOOP("RecordFields", "Material"), QT_TRANSLATE_NOOP("RecordFields", "Surface Material"), {}, {nullptr, 0, false, false, true}};
// 65535 ends the list in the file of a skinned mesh.
inline constexpr FieldRow<UC_SkinnedMeshTriIndex, WholeField> SkinnedTriangleIndex{"vertex", QT_TRANSLATE_NOOP("RecordFields", "Vertex"), QT_TRANSLATE_NOOP("RecordFields", "Triangle Index"), {}, {nullptr, 65534}};
inline constexpr VectorRow<UC_SkinnedMeshVertPosition, 3> SkinnedPosition{"position", QT_TRANSLATE_NOOP("RecordFields", "Position"), QT_TRANSLATE_NOOP("RecordFields", "Vertex Position %1")};
inline constexpr VectorRow<UC_SkinnedMeshVertNormal, 3> SkinnedNormal{"normal", QT_TRANSLATE_NOOP("RecordFields", "Normal"), QT_TRANSLATE_NOOP("RecordFields", "Vertex Normal %1")};
inline constexpr VectorRow<UC_SkinnedMeshVertUV, 2> SkinnedUV{"uv", QT_TRANSLATE_NOOP("RecordFields", "UV"), QT_TRANSLATE_NOOP("RecordFields", "Vertex UV %1")};
inline constexpr FieldRow<UC_SkinnedMeshVertNodeIndex, WholeField> VertexBone{"bone", QT_TRANSLATE_NOOP("RecordFields", "Bone"), QT_TRANSLATE_NOOP("RecordFields", "Vertex Bone Index"), {}, standingFor(Naming::Bone)};

// Animation
inline constexpr FieldRow<UC_AnimBlockAnimID, WholeField> BlockId{"animId", QT_TRANSLATE_NOOP("RecordFields", "Anim ID"), QT_TRANSLATE_NOOP("RecordFields", "Animation AnimID"), {}, standingFor(Naming::Animation)};
inline constexpr FieldRow<UC_AnimBlockAnimSpeed, WholeField> BlockSpeed{"speed", QT_TRANSLATE_NOOP("RecordFields", "Speed"), QT_TRANSLATE_NOOP("RecordFields", "Animation Speed")};
inline constexpr FieldRow<UC_AnimBlockLoopFrame, WholeField> BlockLoopFrame{"loopFrame", QT_TRANSLATE_NOOP("RecordFields", "Loop Frame"), QT_TRANSLATE_NOOP("RecordFields", "Animation Loop Frame")};
inline constexpr FieldRow<UC_AnimBlockFrameScale, WholeField> BlockFrameScale{"frameScale", QT_TRANSLATE_NOOP("RecordFields", "Frame Scale"), QT_TRANSLATE_NOOP("RecordFields", "Animation Frame Scale")};
inline constexpr FieldRow<UC_AnimBlockBlendLength, WholeField> BlockBlendLength{"blendLength", QT_TRANSLATE_NOOP("RecordFields", "Blend Length"), QT_TRANSLATE_NOOP("RecordFields", "Animation Blend Length")};
inline constexpr FieldRow<UC_AnimBlockBlendStart, WholeField> BlockBlendStart{"blendStart", QT_TRANSLATE_NOOP("RecordFields", "Blend Start"), QT_TRANSLATE_NOOP("RecordFields", "Animation Blend Start")};
inline constexpr FieldRow<UC_AnimBlockBlendEnd, WholeField> BlockBlendEnd{"blendEnd", QT_TRANSLATE_NOOP("RecordFields", "Blend End"), QT_TRANSLATE_NOOP("RecordFields", "Animation Blend End")};
inline constexpr FieldRow<UC_AnimNodeTransIndex, WholeField> BoneTranslationTrack{"translationTrack", QT_TRANSLATE_NOOP("RecordFields", "Translation Track"), QT_TRANSLATE_NOOP("RecordFields", "Bone Translation Index")};
inline constexpr FieldRow<UC_AnimNodeRotIndex, WholeField> BoneRotationTrack{"rotationTrack", QT_TRANSLATE_NOOP("RecordFields", "Rotation Track"), QT_TRANSLATE_NOOP("RecordFields", "Bone Rotation Index")};
// Steps on z are called as those on y.
inline constexpr VectorRow<UC_AnimNodeInitTrans, 3> BoneInitialPosition{"initialPosition", QT_TRANSLATE_NOOP("RecordFields", "Initial Translation"), QT_TRANSLATE_NOOP("RecordFields", "Bone Initial Translation %1"), "XYZ", "XYY"};
inline constexpr VectorRow<UC_AnimNodeInitRot, 4> BoneInitialRotation{"initialRotation", QT_TRANSLATE_NOOP("RecordFields", "Initial Rotation"), QT_TRANSLATE_NOOP("RecordFields", "Bone Initial Rotation %1")};
inline constexpr FieldRow<UC_AnimFrameYaw, WholeField> FrameYaw{"yaw", QT_TRANSLATE_NOOP("RecordFields", "Yaw Offset"), QT_TRANSLATE_NOOP("RecordFields", "Frame Yaw Offset")};
inline constexpr VectorRow<UC_AnimTranslation, 3> TranslationKey{"position", QT_TRANSLATE_NOOP("RecordFields", "Translation"), QT_TRANSLATE_NOOP("RecordFields", "Animation Translation %1")};
inline constexpr VectorRow<UC_AnimRotation, 4> RotationKey{"rotation", QT_TRANSLATE_NOOP("RecordFields", "Rotation"), QT_TRANSLATE_NOOP("RecordFields", "Animation Rotation %1")};
inline constexpr FieldRow<UC_AnimRotation, RotationAngle> RotationKeyAngle{"angle", QT_TRANSLATE_NOOP("RecordFields", "Angle"), QT_TRANSLATE_NOOP("RecordFields", "Animation Rotation Angle"), {}, {nullptr, 0, true}};
inline constexpr FieldRow<UC_AnimActionFrame, WholeField> ActionFrame{"frame", QT_TRANSLATE_NOOP("RecordFields", "Frame"), QT_TRANSLATE_NOOP("RecordFields", "Key Frame Action Frame")};
inline constexpr FieldRow<UC_AnimActionEventType, WholeField> ActionEvent{"event", QT_TRANSLATE_NOOP("RecordFields", "Event Type"), QT_TRANSLATE_NOOP("RecordFields", "Key Frame Action Event Type"), {}, {eventTypes}};
inline constexpr FieldRow<UC_AnimActionNode, WholeField> ActionBone{"bone", QT_TRANSLATE_NOOP("RecordFields", "Bone"), QT_TRANSLATE_NOOP("RecordFields", "Key Frame Action Node"), {}, standingFor(Naming::ActionBone)};
inline constexpr VectorRow<UC_AnimActionOffset, 3> ActionOffset{"offset", QT_TRANSLATE_NOOP("RecordFields", "Offset"), QT_TRANSLATE_NOOP("RecordFields", "Key Frame Action Offset %1")};
inline constexpr VectorRow<UC_AnimActionArgs, 8> ActionArgs{"arg", QT_TRANSLATE_NOOP("RecordFields", "Arg"), QT_TRANSLATE_NOOP("RecordFields", "Key Frame Action Args"), "12345678", "12345678", standingFor(Naming::EventArgument)};

// Static mesh
inline constexpr VectorRow<UC_StaticMeshBBMin, 3> StaticBoxMin{"bbMin", QT_TRANSLATE_NOOP("RecordFields", "Bounding Box Min"), nullptr};
inline constexpr VectorRow<UC_StaticMeshBBMax, 3> StaticBoxMax{"bbMax", QT_TRANSLATE_NOOP("RecordFields", "Bounding Box Max"), nullptr};
inline constexpr FieldRow<UC_StaticMeshSurfaceMaterial, WholeField> StaticMaterial{"material", QT_TRANSLATE_NOOP("RecordFields", "Material"), QT_TRANSLATE_NOOP("RecordFields", "Surface Material"), {}, {nullptr, 0, false, false, true}};
inline constexpr FieldRow<UC_StaticMeshTriIndex, WholeField> StaticTriangleIndex{"vertex", QT_TRANSLATE_NOOP("RecordFields", "Vertex"), QT_TRANSLATE_NOOP("RecordFields", "Triangle Index")};
inline constexpr VectorRow<UC_StaticMeshVertPos, 3> StaticPosition{"position", QT_TRANSLATE_NOOP("RecordFields", "Position"), QT_TRANSLATE_NOOP("RecordFields", "Vertex Position %1")};
inline constexpr VectorRow<UC_StaticMeshVertNormal, 3> StaticNormal{"normal", QT_TRANSLATE_NOOP("RecordFields", "Normal"), QT_TRANSLATE_NOOP("RecordFields", "Vertex Normal %1")};
inline constexpr VectorRow<UC_StaticMeshVertUV, 2> StaticUV{"uv", QT_TRANSLATE_NOOP("RecordFields", "UV"), QT_TRANSLATE_NOOP("RecordFields", "Vertex UV %1")};
// clang-format on

/// In the order in which a page has them.
inline constexpr auto all = std::make_tuple(
    MeshBoxMin, MeshBoxMax, HeadTrackStart, HeadTrackEnd, HeadTrackFactor, ChildBone, HotPointOrigin,
    HotPointBone, HotPointDamage, HotPointEffect1, HotPointEffect2, HotPointFlags, BoneSymbolType,
    BoneSymbolSide, BoneSymbolPart, BoneName, BoneParent, BoneImpact, BoneDamageScale, BoneBoxMin, BoneBoxMax,
    BoneFlags, SkinnedMaterial, SkinnedTriangleIndex, SkinnedPosition, SkinnedNormal, SkinnedUV, VertexBone,
    BlockId, BlockSpeed, BlockLoopFrame, BlockFrameScale, BlockBlendLength, BlockBlendStart, BlockBlendEnd,
    BoneTranslationTrack, BoneRotationTrack, BoneInitialPosition, BoneInitialRotation, FrameYaw,
    TranslationKey, RotationKey, RotationKeyAngle, ActionEvent, ActionFrame, ActionBone, ActionOffset,
    ActionArgs, StaticBoxMin, StaticBoxMax, StaticMaterial, StaticTriangleIndex, StaticPosition, StaticNormal,
    StaticUV);

} // namespace Fields
