// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DragEditing.h"

#include "AllCommands.h"
#include "BoxFaces.h"
#include "BoxTool.h"
#include "Fields.h"
#include "KVOpenGLWidget.h"
#include "ModelNames.h"
#include "NumberText.h"
#include "PointTool.h"
#include "RecordFields.h"
#include "RecordSelection.h"

#include <utility>

namespace {
QString numberOf(float number)
{
    return NumberText::text(number);
}

QString fieldTitle(RecordKind kind, const QString &id)
{
    const RecordField *field = RecordFields::find(kind, id);
    return field ? field->title() : QString();
}

QString faceField(const BoxDrag &drag)
{
    return (drag.isOfSecond ? QStringLiteral("bbMax.") : QStringLiteral("bbMin.")) +
           QLatin1Char("xyz"[BoxFaces::axisOf(drag.face)]);
}

float faceNumber(const BoxDrag &drag)
{
    return (BoxFaces::isUpper(drag.face) ? drag.box.max : drag.box.min)[BoxFaces::axisOf(drag.face)];
}

/// What an edit of these components is called by the page.
template <typename Command, typename Row>
QString vectorStep(const Row &row, const QVector3D &before, const QVector3D &after)
{
    int changed = -1;
    for (int axis = 0; axis < 3; ++axis) {
        if (before[axis] == after[axis])
            continue;
        if (changed >= 0)
            return QCoreApplication::translate("UndoCommands", Command::undoText);
        changed = axis;
    }
    return changed < 0 ? QString() : row[changed].stepText();
}
} // namespace

DragEditing::DragEditing(SkinnedMeshDocument &skinned, const RecordSelection &skinnedRecords,
                         AnimDocument &anim, const RecordSelection &animRecords, KVOpenGLWidget &view,
                         QObject *parent)
    : QObject(parent)
    , m_skinned(&skinned)
    , m_anim(&anim)
    , m_records(skinnedRecords)
    , m_animRecords(&animRecords)
    , m_view(view)
{
    view.tools().box->setReceiver(this);
    view.tools().point->setReceiver(this);
    follow(skinned);
    follow(anim);
}

DragEditing::DragEditing(StaticMeshDocument &rigid, const RecordSelection &records, KVOpenGLWidget &view,
                         QObject *parent)
    : QObject(parent)
    , m_rigid(&rigid)
    , m_records(records)
    , m_view(view)
{
    view.tools().box->setReceiver(this);
    follow(rigid);
}

/// What is dragged may be another record, or none, when the model is another one.
void DragEditing::follow(Document &document)
{
    const auto giveUp = [&view = m_view] {
        view.tools().box->cancel();
        view.tools().point->cancel();
    };
    connect(&document, &Document::aboutToBeReplaced, &m_view, giveUp);
    connect(&document, &Document::structuresChanged, &m_view, giveUp);
}

bool DragEditing::isAction() const
{
    return m_view.highlightPoint().standing;
}

RecordRef DragEditing::pointRecord() const
{
    return isAction() ? m_animRecords->currentRecord() : m_records.currentRecord();
}

void DragEditing::hovered(int face)
{
    m_view.setHoveredFace(face);
}

void DragEditing::grabbed(Handle handle)
{
    m_record = handle == Handle::Box ? m_records.currentRecord() : pointRecord();
}

void DragEditing::dragged(const BoxDrag &drag)
{
    m_box = drag;
    m_view.setDraggedBox(drag.box);
    const QString field = faceField(drag);
    emit numbersShown(m_skinned ? DocumentType::SkinnedMesh : DocumentType::StaticMesh,
                      {{field, double(faceNumber(drag))}});
    emit told(
        tr("%1: %2    Ctrl: steps of %3    Esc: give up")
            .arg(fieldTitle(m_record.kind, field), numberOf(faceNumber(drag)), numberOf(float(drag.step))));
}

void DragEditing::dragged(const PointDrag &drag)
{
    m_point = drag;
    m_view.setDraggedPoint(drag.place, drag.bone);
    const QString name = isAction() ? QStringLiteral("offset.") : QStringLiteral("origin.");
    Numbers numbers;
    for (int axis = 0; axis < 3; ++axis)
        numbers.append({name + QLatin1Char("xyz"[axis]), double(drag.place[axis])});
    const int noBone = isAction() ? NoActionBone : drag.bone;
    numbers.append({QStringLiteral("bone"), double(drag.bone < 0 ? noBone : drag.bone)});
    emit numbersShown(isAction() ? DocumentType::Anim : DocumentType::SkinnedMesh, numbers);
    emit told(pointStatus(drag));
}

QString DragEditing::pointStatus(const PointDrag &drag) const
{
    const QString gap = QStringLiteral("    ");
    QString state;
    if (drag.isTaken)
        state = tr("Bone %1 takes it").arg(boneTitle(m_skinned->model(), drag.bone)) + gap;
    else if (drag.lock == PointDrag::Lock::ModelAxis)
        state = tr("Along the model's %1").arg(QLatin1Char("XYZ"[drag.axis])) + gap;
    else if (drag.lock == PointDrag::Lock::OwnAxis)
        state = tr("Along the bone's %1").arg(QLatin1Char("XYZ"[drag.axis])) + gap;
    return state +
           tr("X Y Z: axis    Ctrl: steps of %1    B: bone    Esc: give up").arg(numberOf(float(drag.step)));
}

void DragEditing::endPreview()
{
    m_view.endDrag();
    const DocumentType type = m_rigid                                   ? DocumentType::StaticMesh
                              : m_record.kind == RecordKind::AnimAction ? DocumentType::Anim
                                                                        : DocumentType::SkinnedMesh;
    emit numbersShown(type, {});
}

void DragEditing::givenUp()
{
    if (!m_box && !m_point)
        return;
    m_box.reset();
    m_point.reset();
    endPreview();
    emit told(tr("Nothing was changed."));
}

void DragEditing::dropped()
{
    const std::optional<BoxDrag> box = std::exchange(m_box, std::nullopt);
    const std::optional<PointDrag> point = std::exchange(m_point, std::nullopt);
    if (!box && !point)
        return;
    endPreview();
    emit told({}); // of keys that it has no more
    if (box)
        store(*box);
    else
        store(*point);
}

void DragEditing::store(const BoxDrag &drag)
{
    Document &document = m_rigid ? static_cast<Document &>(*m_rigid) : *m_skinned;
    if (document.returnToTyping())
        return;
    const RecordField *field = RecordFields::find(m_record.kind, faceField(drag));
    if (field)
        document.changeFields({{field, m_record.index, double(faceNumber(drag))}}, field->stepText());
}

template <typename PlaceCommand, typename BoneCommand, typename Row, typename Model>
void DragEditing::storePoint(ModelDocument<Model> &document, const Row &row, const PointDrag &drag)
{
    if (document.returnToTyping())
        return;
    const auto *record = PlaceCommand::Place::find(document.model(), m_record.index);
    if (!record)
        return;
    const QVector3D before = PlaceCommand::Field::get(*record);
    const QString step = drag.isTaken ? QCoreApplication::translate("UndoCommands", PlaceCommand::undoText)
                                      : vectorStep<PlaceCommand>(row, before, drag.place);
    if (step.isEmpty())
        return;
    QUndoStack *stack = document.undoStack();
    stack->beginMacro(step);
    if (drag.isTaken)
        stack->push(new BoneCommand(document.editTarget(), m_record.index, quint16(drag.bone)));
    stack->push(new PlaceCommand(document.editTarget(), m_record.index, drag.place));
    stack->endMacro();
}

void DragEditing::store(const PointDrag &drag)
{
    if (m_record.kind == RecordKind::AnimAction)
        storePoint<UC_AnimActionOffset, UC_AnimActionNode>(*m_anim, Fields::ActionOffset, drag);
    else
        storePoint<UC_SkinnedMeshHPOrigin, UC_SkinnedMeshHPNodeID>(*m_skinned, Fields::HotPointOrigin, drag);
}
