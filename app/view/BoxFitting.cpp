// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoxFitting.h"

#include "Playback.h"
#include "PosedMesh.h"
#include "RecordFields.h"
#include "RecordSelection.h"
#include "Transform.h"

#include <QAction>

namespace {
/// What gives a record this box; nothing where it has it.
template <typename Boxed>
void appendBox(QVector<FieldChange> &changes, RecordKind kind, const RecordIndex &index, const Boxed &boxed,
               const Box &box)
{
    if (boxed.bbMin == box.min && boxed.bbMax == box.max)
        return;
    for (int axis = 0; axis < 3; ++axis) {
        const QChar letter = QLatin1Char("xyz"[axis]);
        changes.append(
            {RecordFields::find(kind, QStringLiteral("bbMin.") + letter), index, double(box.min[axis])});
        changes.append(
            {RecordFields::find(kind, QStringLiteral("bbMax.") + letter), index, double(box.max[axis])});
    }
}

QString stepText()
{
    return QCoreApplication::translate("UndoCommands", "Fit Boxes to Vertices");
}
} // namespace

BoxFitting::BoxFitting(SkinnedMeshDocument &skinned, const AnimDocument &anim, StaticMeshDocument &rigid,
                       const RecordSelection &bones, QWidget *window)
    : QMenu(tr("Fit &Boxes to Vertices"), window)
    , m_skinned(skinned)
    , m_anim(anim)
    , m_rigid(rigid)
    , m_bones(bones)
    , m_treeAction(new QAction(tr("Fit &Boxes to Vertices"), this))
    , m_selected(addFit("actionFitSelectedBoxes", tr("&Selected Bones"),
                        tr("Make the boxes of the selected bones as small as their vertices let them be"),
                        &BoxFitting::OnFitSelectedBones, window))
    , m_all(addFit("actionFitAllBoxes", tr("&All Bones"),
                   tr("Make the boxes of all bones as small as their vertices let them be"),
                   &BoxFitting::OnFitAllBones, window))
    , m_model(addFit("actionFitModelBox", tr("&Model"),
                     tr("Make the model's own box as small as the model at rest lets it be"),
                     &BoxFitting::OnFitModel, window))
{
    setObjectName(QStringLiteral("menuFitBoxes"));
    m_treeAction->setMenu(this);
    m_treeAction->setVisible(false);
    // Keys tell what is missing; the menu shows it.
    connect(this, &QMenu::aboutToShow, this, [this] {
        m_selected->setEnabled(m_current == &m_skinned &&
                               !m_bones.selectedRecords(RecordKind::Bone).isEmpty());
    });
    connect(this, &QMenu::aboutToHide, this, &BoxFitting::update);
    update();
}

QAction *BoxFitting::addFit(const char *name, const QString &text, const QString &tip,
                            void (BoxFitting::*slot)(), QWidget *window)
{
    auto *action = new QAction(text, window);
    action->setObjectName(QLatin1String(name));
    action->setToolTip(tip);
    action->setStatusTip(tip);
    connect(action, &QAction::triggered, this, slot);
    addAction(action);
    return action;
}

void BoxFitting::setCurrent(Document *document)
{
    m_current = document;
    update();
}

void BoxFitting::update()
{
    const bool hasBones = m_current == &m_skinned && m_skinned.isOpen();
    m_selected->setEnabled(hasBones);
    m_all->setEnabled(hasBones);
    m_model->setEnabled(hasBones || (m_current == &m_rigid && m_rigid.isOpen()));
    menuAction()->setEnabled(m_model->isEnabled());
}

void BoxFitting::setCurrentRecord(const RecordRef &record)
{
    m_treeAction->setVisible(record.kind == RecordKind::Bone || record.kind == RecordKind::Bones ||
                             record.kind == RecordKind::SkinnedMesh);
}

void BoxFitting::OnFitSelectedBones()
{
    QVector<int> bones;
    for (const RecordIndex &bone : m_bones.selectedRecords(RecordKind::Bone))
        bones.append(bone[0]);
    if (bones.isEmpty())
        emit told(tr("No bone is selected in the tree."));
    else
        fitBones(bones);
}

void BoxFitting::OnFitAllBones()
{
    QVector<int> bones;
    for (size_t bone = 0; bone < m_skinned.model().nodes.size(); ++bone)
        bones.append(int(bone));
    fitBones(bones);
}

void BoxFitting::fitBones(const QVector<int> &bones)
{
    if (m_skinned.returnToTyping())
        return;
    const SkinnedMesh &mesh = m_skinned.model();
    const std::vector<std::optional<Box>> boxes = boneBoxes(mesh);
    QVector<FieldChange> changes;
    int changed = 0, empty = 0;
    for (const int bone : bones) {
        const int before = changes.size();
        if (const std::optional<Box> &box = boxes[size_t(bone)])
            appendBox(changes, RecordKind::Bone, {bone}, mesh.nodes[size_t(bone)], *box);
        else
            ++empty;
        changed += changes.size() > before ? 1 : 0;
    }
    m_skinned.changeFields(changes, stepText());
    const QString done =
        changed > 0 ? tr("Boxes changed: %1.").arg(changed) : tr("The boxes fit their vertices already.");
    emit told(empty > 0
                  ? done + QLatin1Char(' ') + tr("Bones without vertices stay as they are: %1.").arg(empty)
                  : done);
}

/// Vertices lie in the spaces of their bones: without an animation nobody knows where these rest.
std::optional<Box> BoxFitting::restBox() const
{
    Playback rest;
    rest.mesh = &m_skinned.model();
    rest.anim = &m_anim.model();
    if (!playableBlock(rest))
        return {};
    return meshBox(posedMesh(m_skinned.model(), rest));
}

void BoxFitting::OnFitModel()
{
    if (!m_current || m_current->returnToTyping())
        return;
    QVector<FieldChange> changes;
    std::optional<Box> box;
    if (m_current == &m_skinned) {
        if (!m_skinned.model().vertices.empty()) {
            box = restBox();
            if (!box)
                return emit told(tr("The model's box needs an animation that fits the model: it says where "
                                    "the bones rest."));
            appendBox(changes, RecordKind::SkinnedMesh, {}, m_skinned.model(), *box);
        }
    } else if (m_current == &m_rigid) {
        box = meshBox(m_rigid.model());
        if (box)
            appendBox(changes, RecordKind::StaticMesh, {}, m_rigid.model(), *box);
    }
    if (!box)
        return emit told(tr("The model has no vertices."));
    m_current->changeFields(changes, stepText());
    emit told(changes.isEmpty() ? tr("The model's box fits already.") : tr("The model's box changed."));
}
