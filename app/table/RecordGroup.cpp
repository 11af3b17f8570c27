// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordGroup.h"

#include "Document.h"

namespace {
/// How the records of a kind are found: the kinds whose item stands for the group, and the kinds of their
/// owners from above to below.
struct GroupKind
{
    RecordKind kind;
    QVector<RecordKind> shownFor;
    QVector<RecordKind> owners;
};

const QVector<GroupKind> &groupKinds()
{
    using K = RecordKind;
    static const QVector<GroupKind> kinds{
        {K::SkinnedMesh, {}, {}},
        {K::Bone, {K::Bones}, {}},
        {K::ChildBone, {K::ChildBones}, {K::Bone}},
        {K::HotPoint, {K::HotPoints}, {}},
        {K::SkinnedSurface, {K::SkinnedSurfaces}, {}},
        {K::SkinnedTriangleIndex, {K::SkinnedTriangleIndexes}, {K::SkinnedSurface}},
        {K::SkinnedVertex, {K::SkinnedVertices}, {}},
        {K::AnimBlock, {K::AnimFile}, {}},
        {K::AnimBone, {K::AnimBones}, {K::AnimBlock}},
        {K::AnimFrame, {K::AnimFrames}, {K::AnimBlock}},
        {K::TranslationKey, {K::Translations, K::TranslationTrack}, {K::AnimBlock, K::TranslationTrack}},
        {K::RotationKey, {K::Rotations, K::RotationTrack}, {K::AnimBlock, K::RotationTrack}},
        {K::AnimAction, {K::AnimActions}, {K::AnimBlock}},
        {K::StaticMesh, {}, {}},
        {K::StaticSurface, {K::StaticSurfaces}, {}},
        {K::StaticTriangleIndex, {K::StaticTriangleIndexes}, {K::StaticSurface}},
        {K::StaticVertex, {K::StaticVertices}, {}},
    };
    return kinds;
}

/// Adds the records below the owner whose first indexes are given.
void collect(const Document &document, const GroupKind &group, RecordIndex index, int level,
             QVector<RecordIndex> &records)
{
    const bool isLast = level == group.owners.size();
    const int count = document.recordCount(isLast ? group.kind : group.owners[level], index);
    for (int i = 0; i < count; ++i) {
        index[size_t(level)] = i;
        if (isLast)
            records.append(index);
        else
            collect(document, group, index, level + 1, records);
    }
}
} // namespace

RecordGroup groupOf(const Document &document, const RecordRef &record, bool ofAllOwners)
{
    for (const GroupKind &group : groupKinds()) {
        const int from = group.shownFor.indexOf(record.kind);
        if (group.kind != record.kind && from < 0)
            continue;
        if (record.kind == document.rootKind() && from < 0)
            return {group.kind, {RecordIndex{}}, 0};
        RecordGroup found{group.kind, {}, group.owners.size() + 1};
        // A group of tracks has the keys of all of them.
        const int given = ofAllOwners ? 0 : from == 0 && group.owners.size() == 2 ? 1 : group.owners.size();
        collect(document, group, record.index, given, found.records);
        return found;
    }
    return {};
}

QString numberText(const RecordIndex &index, int levels)
{
    QStringList numbers;
    for (int i = 0; i < levels; ++i)
        numbers.append(QString::number(index[size_t(i)]));
    return numbers.join(QLatin1Char('.'));
}

bool readNumber(const QString &text, int levels, RecordIndex &index)
{
    const QStringList numbers = text.trimmed().split(QLatin1Char('.'));
    index = {};
    bool isNumber = numbers.size() == levels;
    for (int i = 0; isNumber && i < levels; ++i)
        index[size_t(i)] = numbers[i].toInt(&isNumber);
    return isNumber;
}
