// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TheirRecords.h"

#include "RecordPair.h"

#include <algorithm>

namespace {
using State = RecordDifference::State;

/// Copies a field; what is the file's name for a record stays.
template <typename Record>
bool takeFields(Record &mine, const Record &theirs, const std::vector<FieldDifference> &fields,
                const QString &only)
{
    bool isTaken = false;
    visitBoth(mine, theirs, [&](const JsonField &field, auto &a, const auto &b) {
        for (const FieldDifference &each : fields) {
            if (each.field != QLatin1String(field.key) || each.isBound ||
                (!only.isEmpty() && only != each.field))
                continue;
            a = b;
            isTaken = true;
        }
    });
    return isTaken;
}

template <typename Record>
void takeRecord(Record &mine, const Record &theirs)
{
    mine = theirs;
}
void takeRecord(SkinnedMeshNode &mine, const SkinnedMeshNode &theirs)
{
    const QString name = mine.name;
    mine = theirs;
    mine.name = name;
}

/// Of the records of one kind.
template <typename Place, typename Model>
bool takeIn(Model &mine, const Model &theirs, const RecordDifference &difference, const QString &field)
{
    const RecordIndex &index = difference.mine.index;
    const auto *other = Place::find(theirs, difference.theirs.index);
    if (difference.state == State::Changed) {
        auto *record = Place::find(mine, index);
        if (!record || !other)
            return false;
        if (!field.isEmpty())
            return takeFields(*record, *other, difference.fields, field);
        takeRecord(*record, *other);
        return true;
    }
    const bool isMine = difference.state == State::OnlyMine;
    auto *list = Place::list(mine, index);
    if (!list)
        return false;
    const int at = index[Place::component];
    if (isMine && Records::element(*list, at))
        list->erase(list->begin() + at);
    else if (!isMine && other)
        list->insert(list->begin() + std::min(at, int(list->size())), *other);
    else
        return false;
    return true;
}

template <typename Key>
bool takeTrack(TrackTable<Key> &mine, const TrackTable<Key> &theirs, int track)
{
    if (mine.frameCount() != theirs.frameCount() || track >= mine.trackCount() ||
        track >= theirs.trackCount())
        return false;
    for (int frame = 0; frame < mine.frameCount(); ++frame)
        mine.at(track, frame) = theirs.at(track, frame);
    return true;
}
} // namespace

template <typename Model>
bool takeTheirs(Model &mine, const Model &theirs, const RecordDifference &difference, const QString &field)
{
    if (difference.isBound)
        return false;
    using namespace Records;
    const RecordIndex &index = difference.mine.index;
    const RecordIndex &other = difference.theirs.index;
    const RecordKind kind =
        difference.state == State::OnlyTheirs ? difference.theirs.kind : difference.mine.kind;
    switch (kind) {
    case RecordKind::SkinnedMesh:
    case RecordKind::AnimFile:
    case RecordKind::StaticMesh:
        return takeFields(mine, theirs, difference.fields, field);
    default:
        break;
    }
    if constexpr (std::is_same_v<Model, SkinnedMesh>) {
        switch (kind) {
        case RecordKind::Bone:
            return takeIn<Bone>(mine, theirs, difference, field);
        case RecordKind::HotPoint:
            return takeIn<HotPoint>(mine, theirs, difference, field);
        case RecordKind::SkinnedSurface:
            return takeIn<SkinnedSurface>(mine, theirs, difference, field);
        case RecordKind::SkinnedVertex:
            return takeIn<SkinnedVertex>(mine, theirs, difference, field);
        default:
            return false;
        }
    } else if constexpr (std::is_same_v<Model, AnimFile>) {
        AnimBlock *block = element(mine.blocks, index[0]);
        const AnimBlock *otherBlock = element(theirs.blocks, other[0]);
        switch (kind) {
        case RecordKind::AnimBlock:
            return takeIn<Block>(mine, theirs, difference, field);
        case RecordKind::AnimBone:
            return takeIn<BlockBone>(mine, theirs, difference, field);
        case RecordKind::AnimAction:
            return takeIn<BlockAction>(mine, theirs, difference, field);
        case RecordKind::TranslationTrack:
            return block && otherBlock && takeTrack(block->translations, otherBlock->translations, index[1]);
        case RecordKind::RotationTrack:
            return block && otherBlock && takeTrack(block->rotations, otherBlock->rotations, index[1]);
        default:
            return false;
        }
    } else {
        switch (kind) {
        case RecordKind::StaticSurface:
            return takeIn<StaticSurface>(mine, theirs, difference, field);
        case RecordKind::StaticVertex:
            return takeIn<StaticVertex>(mine, theirs, difference, field);
        default:
            return false;
        }
    }
}

template bool takeTheirs(SkinnedMesh &, const SkinnedMesh &, const RecordDifference &, const QString &);
template bool takeTheirs(AnimFile &, const AnimFile &, const RecordDifference &, const QString &);
template bool takeTheirs(StaticMesh &, const StaticMesh &, const RecordDifference &, const QString &);
