// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelTransforms.h"

#include "RotateDialog.h"
#include "ScaleDialog.h"
#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"
#include "TypingUndo.h"

#include <QAbstractButton>

namespace {
constexpr int Margin = 12; ///< between a dialog and the window's edge, about as wide as a frame
}

ModelTransforms::ModelTransforms(SkinnedMeshDocument &skinnedMesh, StaticMeshDocument &staticMesh,
                                 QWidget *window)
    : QObject(window)
    , m_skinnedMesh(skinnedMesh)
    , m_staticMesh(staticMesh)
    , m_window(window)
{}

void ModelTransforms::on_actionRotate_triggered()
{
    if (!m_rotateDialog) {
        auto *dialog = new RotateDialog(m_window);
        connect(dialog, &RotateDialog::rotate, this, &ModelTransforms::rotate);
        m_rotateDialog = dialog;
    }
    updateButtons();
    bringUp(m_rotateDialog);
}

void ModelTransforms::on_actionScale_triggered()
{
    if (!m_scaleDialog) {
        auto *dialog = new ScaleDialog(m_window);
        connect(dialog, &ScaleDialog::scale, this, &ModelTransforms::scale);
        m_scaleDialog = dialog;
    }
    updateButtons();
    bringUp(m_scaleDialog);
}

void ModelTransforms::bringUp(QDialog *dialog)
{
    if (!dialog->isVisible()) {
        for (QAbstractSpinBox *field : dialog->findChildren<QAbstractSpinBox *>())
            field->installEventFilter(this);
        // At the right end of the window, where no model is covered.
        const QWidget *window = m_window->window();
        const QSize size = dialog->sizeHint();
        const QPoint corner = window->mapToGlobal(window->rect().bottomRight());
        dialog->move(corner.x() - size.width() - Margin, corner.y() - size.height() - 4 * Margin);
    }
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

bool ModelTransforms::eventFilter(QObject *watched, QEvent *event)
{
    if (!isUndoOfDocument(watched, event))
        return QObject::eventFilter(watched, event);
    event->ignore();
    return true;
}

void ModelTransforms::setCurrent(Document *document)
{
    m_current = document;
    updateButtons();
}

bool ModelTransforms::isAvailable() const
{
    return m_current && m_current->isOpen() && (m_current == &m_skinnedMesh || m_current == &m_staticMesh);
}

void ModelTransforms::updateButtons()
{
    for (QDialog *dialog : {m_rotateDialog, m_scaleDialog}) {
        if (!dialog)
            continue;
        for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>())
            button->setEnabled(isAvailable() || button->objectName() == QLatin1String("btnClose"));
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
    // Pages show other numbers then, in place of what is typed.
    if (!isAvailable() || m_current->returnToTyping())
        return;
    if (m_current == &m_skinnedMesh)
        m_skinnedMesh.undoStack()->push(new SkinnedCommand(m_skinnedMesh.editTarget(), arguments...));
    else
        m_staticMesh.undoStack()->push(new StaticCommand(m_staticMesh.editTarget(), arguments...));
}
