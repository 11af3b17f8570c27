// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewportMarks.h"

#include "KVOpenGLWidget.h"

#include <algorithm>

namespace {
constexpr quint16 NoBone = 0xFFFF;

void markPoint(KVOpenGLWidget &viewport, const QVector3D &position, bool isAction, quint16 bone)
{
    viewport.setHighlightPoint(position, isAction, bone == NoBone ? -1 : int(bone));
}

bool anyOf(const QVector<RecordRef> &records, std::initializer_list<RecordKind> kinds)
{
    return std::any_of(records.begin(), records.end(), [kinds](const RecordRef &record) {
        return std::find(kinds.begin(), kinds.end(), record.kind) != kinds.end();
    });
}
} // namespace

void markRecord(KVOpenGLWidget &viewport, const SkinnedMesh &mesh, const RecordRef &record)
{
    viewport.setSelectedSurface(record.kind == RecordKind::SkinnedSurface ? record.index[0] : -1);
    viewport.setSelectedBone(record.kind == RecordKind::Bone ? record.index[0] : -1);
    const auto *hotPoint =
        record.kind == RecordKind::HotPoint ? Records::element(mesh.hotPoints, record.index[0]) : nullptr;
    if (hotPoint)
        markPoint(viewport, hotPoint->origin, false, hotPoint->nodeId);
    else
        viewport.clearHighlightPoint();
}

void markRecord(KVOpenGLWidget &viewport, const AnimFile &file, const RecordRef &record)
{
    viewport.setSelectedSurface(-1);
    viewport.setSelectedBone(record.kind == RecordKind::AnimBone ? record.index[1] : -1);
    const AnimBlock *block =
        record.kind == RecordKind::AnimAction ? Records::element(file.blocks, record.index[0]) : nullptr;
    const AnimAction *action = block ? Records::element(block->actions, record.index[1]) : nullptr;
    if (action)
        markPoint(viewport, action->offset, true, action->node);
    else
        viewport.clearHighlightPoint();
}

void markRecord(KVOpenGLWidget &viewport, const StaticMesh &, const RecordRef &record)
{
    viewport.setSelectedSurface(record.kind == RecordKind::StaticSurface ? record.index[0] : -1);
}

void refreshChanged(KVOpenGLWidget &viewport, const QVector<RecordRef> &records)
{
    if (anyOf(records, {RecordKind::SkinnedSurface, RecordKind::StaticSurface}))
        viewport.rebuildModel();
    if (anyOf(records, {RecordKind::SkinnedTriangleIndex, RecordKind::StaticTriangleIndex}))
        viewport.refreshIndexes();
    if (anyOf(records, {RecordKind::SkinnedMesh, RecordKind::SkinnedVertex, RecordKind::StaticMesh,
                        RecordKind::StaticVertex}))
        viewport.refreshVertices();
    viewport.update();
}
