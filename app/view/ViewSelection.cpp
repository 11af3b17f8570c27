// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewSelection.h"

#include "KVOpenGLWidget.h"
#include "RecordSelection.h"

#include <algorithm>

namespace {
/// The corners of the triangles that these index records belong to.
template <typename Model>
void appendTriangles(std::vector<int> &vertices, const Model &model, const QVector<RecordIndex> &records)
{
    for (const RecordIndex &record : records) {
        const auto *surface = Records::element(model.surfaces, record[0]);
        for (int corner = 0; surface && corner < 3; ++corner) {
            const auto *vertex = Records::element(surface->triangleIndexes, record[1] / 3 * 3 + corner);
            if (vertex)
                vertices.push_back(int(*vertex));
        }
    }
}
} // namespace

ViewSelection::ViewSelection(const SkinnedMeshDocument &skinned, const StaticMeshDocument &rigid,
                             const std::array<ShownRecords, 3> &shown, QObject *parent)
    : QObject(parent)
    , m_skinned(skinned)
    , m_rigid(rigid)
    , m_shown(shown)
{
    const auto [records, view] = m_shown[size_t(DocumentType::SkinnedMesh)];
    const auto name = [records = records](RecordKind kind) {
        return [records, kind](int index) {
            const RecordRef record{kind, {index}};
            const QString own = records->name(record);
            return own.isEmpty() ? records->label(record)
                                 : QStringLiteral("%1 (%2)").arg(records->label(record), own);
        };
    };
    view->tools().hover->setNames(name(RecordKind::Bone), name(RecordKind::HotPoint));
    const auto pick = [this](DocumentType type, RecordKind kind) {
        return [this, type, kind](int index) { emit picked(type, {kind, {index}}); };
    };
    connect(view, &KVOpenGLWidget::surfacePicked, this,
            pick(DocumentType::SkinnedMesh, RecordKind::SkinnedSurface));
    connect(view, &KVOpenGLWidget::bonePicked, this, pick(DocumentType::SkinnedMesh, RecordKind::Bone));
    connect(view, &KVOpenGLWidget::hotPointPicked, this,
            pick(DocumentType::SkinnedMesh, RecordKind::HotPoint));
    connect(m_shown[size_t(DocumentType::StaticMesh)].viewport, &KVOpenGLWidget::surfacePicked, this,
            pick(DocumentType::StaticMesh, RecordKind::StaticSurface));
    for (const DocumentType type : {DocumentType::SkinnedMesh, DocumentType::StaticMesh})
        connect(m_shown[size_t(type)].viewport, &KVOpenGLWidget::nothingPicked, this,
                [this, type] { emit picked(type, {}); });
}

std::vector<int> ViewSelection::numbers(DocumentType type, RecordKind kind, size_t component) const
{
    std::vector<int> found;
    const QVector<RecordIndex> records = m_shown[size_t(type)].records->selectedRecords(kind);
    for (const RecordIndex &record : records)
        found.push_back(record[component]);
    std::sort(found.begin(), found.end());
    return found;
}

ModelSelection ViewSelection::selected(DocumentType type) const
{
    const RecordSelection &records = *m_shown[size_t(type)].records;
    ModelSelection selection;
    switch (type) {
    case DocumentType::SkinnedMesh:
        selection.surfaces = numbers(type, RecordKind::SkinnedSurface);
        selection.vertices = numbers(type, RecordKind::SkinnedVertex);
        selection.bones = numbers(type, RecordKind::Bone);
        selection.hotPoints = numbers(type, RecordKind::HotPoint);
        appendTriangles(selection.vertices, m_skinned.model(),
                        records.selectedRecords(RecordKind::SkinnedTriangleIndex));
        break;
    case DocumentType::Anim:
        selection.bones = numbers(type, RecordKind::AnimBone, 1);
        break;
    case DocumentType::StaticMesh:
        selection.surfaces = numbers(type, RecordKind::StaticSurface);
        selection.vertices = numbers(type, RecordKind::StaticVertex);
        appendTriangles(selection.vertices, m_rigid.model(),
                        records.selectedRecords(RecordKind::StaticTriangleIndex));
        break;
    }
    return selection;
}

void ViewSelection::mark(DocumentType type)
{
    const auto [records, viewport] = m_shown[size_t(type)];
    // An edit reaches all that are selected, so only one alone has handles.
    const RecordRef only = records->selectedRefs().size() == 1 ? records->currentRecord() : RecordRef();
    const bool isModel = only.kind == RecordKind::SkinnedMesh || only.kind == RecordKind::StaticMesh;
    viewport->setHandles(only.kind == RecordKind::Bone ? only.index[0]
                         : isModel                     ? MarkedRecords::ModelBox
                                                       : MarkedRecords::NoBox,
                         only.kind == RecordKind::HotPoint || only.kind == RecordKind::AnimAction);
    if (type == DocumentType::SkinnedMesh)
        viewport->setMarkedSelection(numbers(type, RecordKind::Bone), numbers(type, RecordKind::HotPoint));
    else if (type == DocumentType::Anim)
        viewport->setMarkedSelection(numbers(type, RecordKind::AnimBone, 1), {});
}
