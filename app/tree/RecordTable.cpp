// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordTable.h"

#include "Icons.h"

#include <QCoreApplication>

#include <array>

namespace {
using K = RecordKind;
constexpr int N = RecordRow::FromIndex;

// clang-format off
const RecordRow recordRows[] = {
    {K::SkinnedMesh,            K::None,                   0, 0, K::None,                 "%1",                          "filemesh",    false, ""},
    {K::Bones,                  K::SkinnedMesh,            0, 0, K::Bone,                 QT_TRANSLATE_NOOP("Records", "Bones (%1)"),              "bones",       false, ""},
    {K::Bone,                   K::Bones,                  N, 0, K::None,                 "%1: %2",                      "bone",        false, QT_TRANSLATE_NOOP("Records", "bone")},
    {K::ChildBones,             K::Bone,                   0, 0, K::ChildBone,            QT_TRANSLATE_NOOP("Records", "Child Bone Indexes (%1)"), "childbone",   true, ""},
    {K::ChildBone,              K::ChildBones,             N, 1, K::None,                 "%2",                          "childbone",   true, QT_TRANSLATE_NOOP("Records", "child")},
    {K::HotPoints,              K::SkinnedMesh,            1, 0, K::HotPoint,             QT_TRANSLATE_NOOP("Records", "Hot Points (%1)"),         "hotpoints",   false, ""},
    {K::HotPoint,               K::HotPoints,              N, 0, K::None,                 "%1",                          "hotpoint",    false, QT_TRANSLATE_NOOP("Records", "hot point")},
    {K::SkinnedSurfaces,        K::SkinnedMesh,            2, 0, K::SkinnedSurface,       QT_TRANSLATE_NOOP("Records", "Surfaces (%1)"),           "surfaces",    false, ""},
    {K::SkinnedSurface,         K::SkinnedSurfaces,        N, 0, K::None,                 "%1",                          "surface",     false, QT_TRANSLATE_NOOP("Records", "surface")},
    {K::SkinnedTriangleIndexes, K::SkinnedSurface,         0, 0, K::SkinnedTriangleIndex, QT_TRANSLATE_NOOP("Records", "Triangle Indexes (%1)"),   "triangles",   true, ""},
    {K::SkinnedTriangleIndex,   K::SkinnedTriangleIndexes, N, 1, K::None,                 "%2",                          "triangles",   true, QT_TRANSLATE_NOOP("Records", "triangle index")},
    {K::SkinnedVertices,        K::SkinnedMesh,            3, 0, K::SkinnedVertex,        QT_TRANSLATE_NOOP("Records", "Vertices (%1)"),           "vertices",    false, ""},
    {K::SkinnedVertex,          K::SkinnedVertices,        N, 0, K::None,                 "%1",                          "vertex",      true, QT_TRANSLATE_NOOP("Records", "vertex")},

    {K::AnimFile,         K::None,             0, 0, K::None,             "%1",                             "fileanim",    false, ""},
    {K::AnimBlock,        K::AnimFile,         N, 0, K::None,             QT_TRANSLATE_NOOP("Records", "Anim %1"),                   "anim",        false, QT_TRANSLATE_NOOP("Records", "anim")},
    {K::AnimBones,        K::AnimBlock,        0, 0, K::AnimBone,         QT_TRANSLATE_NOOP("Records", "Bones (%1)"),                "bones",       false, ""},
    {K::AnimBone,         K::AnimBones,        N, 1, K::None,             "%1",                             "bone",        true, QT_TRANSLATE_NOOP("Records", "bone")},
    {K::AnimFrames,       K::AnimBlock,        1, 0, K::AnimFrame,        QT_TRANSLATE_NOOP("Records", "Frames (%1)"),               "frames",      false, ""},
    {K::AnimFrame,        K::AnimFrames,       N, 1, K::None,             QT_TRANSLATE_NOOP("Records", "Frame %1"),                  "frame",       true, QT_TRANSLATE_NOOP("Records", "frame")},
    {K::Translations,     K::AnimBlock,        2, 0, K::TranslationTrack, QT_TRANSLATE_NOOP("Records", "Translations (%1)"),         "translation", false, ""},
    {K::TranslationTrack, K::Translations,     N, 1, K::None,             QT_TRANSLATE_NOOP("Records", "Track %1"),                  "translation", true, QT_TRANSLATE_NOOP("Records", "translation track")},
    {K::TranslationKey,   K::TranslationTrack, N, 2, K::None,             QT_TRANSLATE_NOOP("Records", "Frame %1"),                  "frame",       true, QT_TRANSLATE_NOOP("Records", "frame")},
    {K::Rotations,        K::AnimBlock,        3, 0, K::RotationTrack,    QT_TRANSLATE_NOOP("Records", "Rotations (%1)"),            "rotation",    false, ""},
    {K::RotationTrack,    K::Rotations,        N, 1, K::None,             QT_TRANSLATE_NOOP("Records", "Track %1"),                  "rotation",    true, QT_TRANSLATE_NOOP("Records", "rotation track")},
    {K::RotationKey,      K::RotationTrack,    N, 2, K::None,             QT_TRANSLATE_NOOP("Records", "Frame %1"),                  "frame",       true, QT_TRANSLATE_NOOP("Records", "frame")},
    {K::AnimActions,      K::AnimBlock,        4, 0, K::AnimAction,       QT_TRANSLATE_NOOP("Records", "Key Frame Actions (%1)"),    "actions",     false, ""},
    {K::AnimAction,       K::AnimActions,      N, 1, K::None,             "%1",                             "action",      false, QT_TRANSLATE_NOOP("Records", "action")},

    {K::StaticMesh,            K::None,                  0, 0, K::None,                "%1",                        "filestatic", false, ""},
    {K::StaticSurfaces,        K::StaticMesh,            0, 0, K::StaticSurface,       QT_TRANSLATE_NOOP("Records", "Surfaces (%1)"),         "surfaces",   false, ""},
    {K::StaticSurface,         K::StaticSurfaces,        N, 0, K::None,                "%1",                        "surface",    false, QT_TRANSLATE_NOOP("Records", "surface")},
    {K::StaticTriangleIndexes, K::StaticSurface,         0, 0, K::StaticTriangleIndex, QT_TRANSLATE_NOOP("Records", "Triangle Indexes (%1)"), "triangles",  true, ""},
    {K::StaticTriangleIndex,   K::StaticTriangleIndexes, N, 1, K::None,                "%2",                        "triangles",  true, QT_TRANSLATE_NOOP("Records", "triangle index")},
    {K::StaticVertices,        K::StaticMesh,            1, 0, K::StaticVertex,        QT_TRANSLATE_NOOP("Records", "Vertices (%1)"),         "vertices",   false, ""},
    {K::StaticVertex,          K::StaticVertices,        N, 0, K::None,                "%1",                        "vertex",     true, QT_TRANSLATE_NOOP("Records", "vertex")},
};
// clang-format on

constexpr size_t KindCount = size_t(RecordKind::StaticVertices) + 1;

template <typename Value, typename Make>
std::array<Value, KindCount> byKind(Make make)
{
    std::array<Value, KindCount> table{};
    for (const RecordRow &row : recordRows)
        make(table, row);
    return table;
}
} // namespace

const RecordRow *recordRow(RecordKind kind)
{
    static const auto table = byKind<const RecordRow *>(
        [](auto &values, const RecordRow &row) { values[size_t(row.kind)] = &row; });
    return table[size_t(kind)];
}

const QVector<const RecordRow *> &childRows(RecordKind kind)
{
    static const auto table = byKind<QVector<const RecordRow *>>([](auto &values, const RecordRow &row) {
        if (row.parent != RecordKind::None)
            values[size_t(row.parent)].append(&row);
    });
    return table[size_t(kind)];
}

bool belongsTo(RecordKind kind, RecordKind root)
{
    while (recordRow(kind)->parent != RecordKind::None)
        kind = recordRow(kind)->parent;
    return kind == root;
}

QIcon recordIcon(RecordKind kind)
{
    // A tree shows few of them: each is made when it is first wanted.
    static std::array<QIcon, KindCount> table;
    QIcon &icon = table[size_t(kind)];
    const RecordRow *row = icon.isNull() ? recordRow(kind) : nullptr;
    if (row)
        icon = namedIcon(QLatin1String(row->icon));
    return icon;
}

QVector<int> indexPath(const RecordRef &record)
{
    QVector<int> path;
    RecordIndex index = record.index;
    for (const RecordRow *row = recordRow(record.kind); row; row = recordRow(row->parent)) {
        if (row->position == RecordRow::FromIndex) {
            path.prepend(index[size_t(row->component)]);
            index[size_t(row->component)] = 0;
        } else {
            path.prepend(row->position);
        }
    }
    return path;
}
