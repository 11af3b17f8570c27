// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelTransforms.h"

#include "RotateDialog.h"
#include "ScaleDialog.h"
#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"

#include <QAbstractButton>

namespace {
void bringUp(QDialog *dialog)
{
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}
} // namespace

ModelTransforms::ModelTransforms(SkinnedMeshDocument &skinnedMesh, StaticMeshDocument &staticMesh,
                                 CurrentDocument current, QWidget *window)
    : QObject(window)
    , m_skinnedMesh(skinnedMesh)
    , m_staticMesh(staticMesh)
    , m_current(std::move(current))
    , m_window(window)
{}

void ModelTransforms::showRotateDialog()
{
    if (!m_rotateDialog) {
        auto *dialog = new RotateDialog(m_window);
        connect(dialog, &RotateDialog::rotate, this, &ModelTransforms::rotate);
        m_rotateDialog = dialog;
    }
    updateButtons();
    bringUp(m_rotateDialog);
}

void ModelTransforms::showScaleDialog()
{
    if (!m_scaleDialog) {
        auto *dialog = new ScaleDialog(m_window);
        connect(dialog, &ScaleDialog::scale, this, &ModelTransforms::scale);
        m_scaleDialog = dialog;
    }
    updateButtons();
    bringUp(m_scaleDialog);
}

void ModelTransforms::setAvailable(bool available)
{
    m_available = available;
    updateButtons();
}

void ModelTransforms::updateButtons()
{
    for (QDialog *dialog : {m_rotateDialog, m_scaleDialog}) {
        if (!dialog)
            continue;
        for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>())
            button->setEnabled(m_available || button->objectName() == QLatin1String("btnClose"));
    }
}

void ModelTransforms::rotate(float pitch, float roll, float yaw)
{
    push<UC_SkinnedMeshRotate, UC_StaticMeshRotate>(pitch, roll, yaw);
}

void ModelTransforms::scale(float factor)
{
    push<UC_SkinnedMeshScale, UC_StaticMeshScale>(factor);
}

template <typename SkinnedCommand, typename StaticCommand, typename... Arguments>
void ModelTransforms::push(Arguments... arguments)
{
    const Document *current = m_current();
    if (!current || !current->isOpen())
        return;
    if (current == &m_skinnedMesh)
        m_skinnedMesh.undoStack()->push(new SkinnedCommand(m_skinnedMesh.editTarget(), arguments...));
    else if (current == &m_staticMesh)
        m_staticMesh.undoStack()->push(new StaticCommand(m_staticMesh.editTarget(), arguments...));
}
