// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <functional>

class QDialog;
class QWidget;

/// Rotates and scales the model of the current tab, one undo step each time, as the dialogs ask for it.
class ModelTransforms : public QObject
{
    Q_OBJECT

public:
    /// Gives the document that the current tab shows; null on a tab without one.
    using CurrentDocument = std::function<Document *()>;

    ModelTransforms(SkinnedMeshDocument &skinnedMesh, StaticMeshDocument &staticMesh, CurrentDocument current,
                    QWidget *window);

    /// Opens a dialog, or brings the open one to the front. It does not block the window.
    void showRotateDialog();
    void showScaleDialog();

    /// Whether there is a model to transform: without one the dialogs can only be closed.
    void setAvailable(bool available);

    /// In degrees. Without an open mesh in the current tab nothing happens.
    void rotate(float pitch, float roll, float yaw);
    void scale(float factor);

private:
    template <typename SkinnedCommand, typename StaticCommand, typename... Arguments>
    void push(Arguments... arguments);

    SkinnedMeshDocument &m_skinnedMesh;
    StaticMeshDocument &m_staticMesh;
    CurrentDocument m_current;
    QWidget *m_window;
    void updateButtons();

    bool m_available = true;
    QDialog *m_rotateDialog = nullptr;
    QDialog *m_scaleDialog = nullptr;
};
