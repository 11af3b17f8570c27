// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

class QDialog;
class QWidget;

/// Rotates and scales the model of the current tab, one undo step each time, as the dialogs ask for it.
class ModelTransforms : public QObject
{
    Q_OBJECT

public:
    ModelTransforms(SkinnedMeshDocument &skinnedMesh, StaticMeshDocument &staticMesh, QWidget *window);

    /// The document that the current tab shows; null for none. Without a mesh in it the dialogs can only be
    /// closed.
    void setCurrent(Document *document);
    /// Whether the current document is a mesh to transform.
    bool isAvailable() const;

    /// In degrees. Without an open mesh in the current tab nothing happens, and while something is typed for
    /// it that cannot be stored the user is led back to that.
    void rotate(float pitch, float roll, float yaw);
    void scale(float factor);

public slots:
    // Each opens a dialog, or brings the open one to the front. It does not block the window.
    void on_actionRotate_triggered();
    void on_actionScale_triggered();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void bringUp(QDialog *dialog);
    template <typename SkinnedCommand, typename StaticCommand, typename... Arguments>
    void push(Arguments... arguments);
    void updateButtons();

    SkinnedMeshDocument &m_skinnedMesh;
    StaticMeshDocument &m_staticMesh;
    Document *m_current = nullptr;
    QWidget *m_window;
    QDialog *m_rotateDialog = nullptr;
    QDialog *m_scaleDialog = nullptr;
};
