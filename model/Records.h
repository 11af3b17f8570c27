// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QHash>

/// The kind of a record or of a group of records. The numbers are the codes that tree items carry.
enum class RecordKind {
    None = 0,
    // Skinned mesh
    SkinnedMesh = 1,
    ChildBone = 2,
    ChildBones = 3,
    HotPoint = 4,
    HotPoints = 5,
    Bone = 6,
    Bones = 7,
    SkinnedSurface = 8,
    SkinnedSurfaces = 9,
    SkinnedTriangleIndex = 10,
    SkinnedTriangleIndexes = 11,
    SkinnedVertex = 12,
    SkinnedVertices = 13,
    // Animation; everything under a block carries the block's index first
    AnimFile = 14,
    AnimBlock = 15,
    AnimBone = 16,
    AnimBones = 17,
    AnimFrame = 18,
    AnimFrames = 19,
    TranslationKey = 20,
    Translations = 21,
    TranslationTrack = 22,
    RotationKey = 23,
    Rotations = 24,
    RotationTrack = 25,
    AnimAction = 26,
    AnimActions = 27,
    // Static mesh
    StaticMesh = 28,
    StaticSurface = 29,
    StaticSurfaces = 30,
    StaticTriangleIndex = 31,
    StaticTriangleIndexes = 32,
    StaticVertex = 33,
    StaticVertices = 34,
};

/// Up to three indexes, the owner's first; those that a kind does not need are 0.
using RecordIndex = std::array<int, 3>;

/// One record (or group) of a document.
struct RecordRef
{
    RecordKind kind = RecordKind::None;
    RecordIndex index{};

    bool operator==(const RecordRef &other) const { return kind == other.kind && index == other.index; }
    bool operator!=(const RecordRef &other) const { return !(*this == other); }
};

inline uint qHash(const RecordRef &ref, uint seed = 0)
{
    const int numbers[4] = {int(ref.kind), ref.index[0], ref.index[1], ref.index[2]};
    return qHashRange(std::begin(numbers), std::end(numbers), seed);
}

/// How many records of `kind` (no group) stand under the owner that `index` names; 0 for an owner that does
/// not exist.
int recordCount(const SkinnedMesh &mesh, RecordKind kind, const RecordIndex &index);
int recordCount(const AnimFile &file, RecordKind kind, const RecordIndex &index);
int recordCount(const StaticMesh &mesh, RecordKind kind, const RecordIndex &index);

/// Where the records of one kind live: the model, the record type, the kind code, and how to find a record.
/// find() returns null for a record that does not exist (any more). What comes of a model that is not to be
/// changed is not to be changed either.
namespace Records {

template <typename List>
auto *element(List &list, int index)
{
    return index >= 0 && size_t(index) < list.size() ? &list[size_t(index)] : nullptr;
}

/// The model itself, for the fields that no list holds.
template <typename ModelType, RecordKind Kind>
struct Root
{
    using Model = ModelType;
    using Record = ModelType;
    static constexpr RecordKind kind = Kind;
    template <typename AnyModel>
    static auto *find(AnyModel &model, const RecordIndex &)
    {
        return &model;
    }
};

/// The elements of a list of the model.
template <auto List, RecordKind Kind>
struct ListRecord;

template <typename ModelType, typename RecordType, std::vector<RecordType> ModelType::*List, RecordKind Kind>
struct ListRecord<List, Kind>
{
    using Model = ModelType;
    using Record = RecordType;
    static constexpr RecordKind kind = Kind;
    /// Which of the indexes counts the list.
    static constexpr size_t component = 0;
    template <typename AnyModel>
    static auto *list(AnyModel &model, const RecordIndex &)
    {
        return &(model.*List);
    }
    template <typename AnyModel>
    static auto *find(AnyModel &model, const RecordIndex &index)
    {
        return element(model.*List, index[0]);
    }
};

/// The elements of a list of another record.
template <typename Owner, auto List, RecordKind Kind>
struct NestedRecord
{
    using Model = typename Owner::Model;
    using Record = typename std::decay_t<decltype(std::declval<typename Owner::Record>().*List)>::value_type;
    static constexpr RecordKind kind = Kind;
    static constexpr size_t component = 1;
    /// The list of the owner that `index` names; null when there is no such owner.
    template <typename AnyModel>
    static auto *list(AnyModel &model, const RecordIndex &index)
    {
        auto *owner = Owner::find(model, index);
        return owner ? &(owner->*List) : nullptr;
    }
    template <typename AnyModel>
    static auto *find(AnyModel &model, const RecordIndex &index)
    {
        auto *records = list(model, index);
        return records ? element(*records, index[1]) : nullptr;
    }
};

/// The keys of one of a block's track tables: block, track, frame.
template <typename Owner, auto Table, RecordKind Kind>
struct TrackKey
{
    using Model = typename Owner::Model;
    using Record = std::decay_t<decltype((std::declval<typename Owner::Record>().*Table).at(0, 0))>;
    static constexpr RecordKind kind = Kind;
    template <typename AnyModel>
    static auto *find(AnyModel &model, const RecordIndex &index)
    {
        auto *owner = Owner::find(model, index);
        return owner && (owner->*Table).contains(index[1], index[2]) ? &(owner->*Table).at(index[1], index[2])
                                                                     : nullptr;
    }
};

using SkinnedMeshRoot = Root<SkinnedMesh, RecordKind::SkinnedMesh>;
using Bone = ListRecord<&SkinnedMesh::nodes, RecordKind::Bone>;
using ChildBone = NestedRecord<Bone, &SkinnedMeshNode::childNodes, RecordKind::ChildBone>;
using HotPoint = ListRecord<&SkinnedMesh::hotPoints, RecordKind::HotPoint>;
using SkinnedSurface = ListRecord<&SkinnedMesh::surfaces, RecordKind::SkinnedSurface>;
using SkinnedTriangleIndex =
    NestedRecord<SkinnedSurface, &SkinnedMeshSurface::triangleIndexes, RecordKind::SkinnedTriangleIndex>;
using SkinnedVertex = ListRecord<&SkinnedMesh::vertices, RecordKind::SkinnedVertex>;

using AnimFileRoot = Root<AnimFile, RecordKind::AnimFile>;
using Block = ListRecord<&AnimFile::blocks, RecordKind::AnimBlock>;
using BlockBone = NestedRecord<Block, &AnimBlock::nodes, RecordKind::AnimBone>;
using BlockFrame = NestedRecord<Block, &AnimBlock::frames, RecordKind::AnimFrame>;
using TranslationKey = TrackKey<Block, &AnimBlock::translations, RecordKind::TranslationKey>;
using RotationKey = TrackKey<Block, &AnimBlock::rotations, RecordKind::RotationKey>;
using BlockAction = NestedRecord<Block, &AnimBlock::actions, RecordKind::AnimAction>;

using StaticMeshRoot = Root<StaticMesh, RecordKind::StaticMesh>;
using StaticSurface = ListRecord<&StaticMesh::surfaces, RecordKind::StaticSurface>;
using StaticTriangleIndex =
    NestedRecord<StaticSurface, &StaticMeshSurface::triangleIndexes, RecordKind::StaticTriangleIndex>;
using StaticVertex = ListRecord<&StaticMesh::vertices, RecordKind::StaticVertex>;

} // namespace Records
