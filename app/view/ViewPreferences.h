// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewToolBar.h"

#include <QObject>

#include <array>

class KVOpenGLWidget;

/// The view preferences: two tool bars and two viewports that always agree, stored as soon as the user
/// changes one.
class ViewPreferences : public QObject
{
    Q_OBJECT

public:
    /// `toolBars`, `viewports` and the actions outlive this; the colour dialog stands on `window`.
    ViewPreferences(const std::array<ViewToolBar *, 2> &toolBars,
                    const std::array<KVOpenGLWidget *, 2> &viewports, const ViewActions &actions,
                    QWidget *window);

private slots:
    void OnOpenBGColorPicker();
    void OnSurfSelectChanged(int type);
    void OnMouseSpeedChanged(int position);
    void OnBrightnessChanged(int position);
    void on_actionGround_triggered(bool on);
    void on_actionTransGizmo_triggered(bool on);
    void on_actionCullBack_triggered(bool on);

private:
    std::array<ViewToolBar *, 2> m_toolBars;
    std::array<KVOpenGLWidget *, 2> m_viewports;
    QWidget *m_window;
};
