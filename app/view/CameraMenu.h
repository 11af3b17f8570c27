// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Camera.h"
#include "ModelPlaces.h"
#include "ViewportAction.h"

#include <QMenu>

#include <functional>

/// Where the camera of the current viewport goes, and how the mouse moves it.
class CameraMenu : public QMenu
{
    Q_OBJECT

public:
    /// `current` gives the viewport that the actions act on, or null; `selection` what is selected of its
    /// model. The viewports outlive the menu.
    CameraMenu(const Viewports &viewports, std::function<KVOpenGLWidget *()> current,
               std::function<ModelSelection()> selection, QWidget *window);

    /// Also for the keyboard of the trees, where records are selected.
    QAction *frameSelection() const { return m_frameSelection; }

public slots:
    void on_actionResetCamera_triggered();

private slots:
    void OnFrameAll();
    void OnFrameSelection();
    void OnLookFrom(Camera::Side side);
    void OnOrbitToggled(bool on);
    void OnFrameOnOpenToggled(bool on);
    void OnLensChosen(QAction *action);
    void OnOrthographicTriggered();
    void OnOrthographicSidesToggled(bool on);
    void OnTurntableTriggered();

private:
    void addSides(QWidget *window);
    void addSteps(QWidget *window);
    void addProjection(QWidget *window);
    void addMouse(QWidget *window);
    QAction *addSwitch(const char *name, const QString &text, const QString &tip,
                       const QList<QKeySequence> &keys, bool on, QWidget *window);
    void showState();

    Viewports m_viewports;
    std::function<KVOpenGLWidget *()> m_current;
    std::function<ModelSelection()> m_selection;
    QAction *m_frameSelection;
    QAction *m_orthographic = nullptr;
    QAction *m_turntable = nullptr;
};
