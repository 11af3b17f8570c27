// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewportAction.h"

#include <QObject>

class QAction;
class ShadingMenu;

/// What the viewports draw beside the plain model: actions of the view menu and the view tool bars, stored
/// as soon as the user changes one, the same in both viewports.
class DisplayOptions : public QObject
{
    Q_OBJECT

public:
    /// The viewports outlive this; the actions belong to `window`.
    DisplayOptions(const Viewports &viewports, QWidget *window);

    ShadingMenu *shadingMenu() const { return m_shadingMenu; }
    QAction *skeleton() const { return m_skeleton; }
    QAction *hotPoints() const { return m_hotPoints; }
    /// The boxes of the bones and of the model.
    QAction *boxes() const { return m_boxes; }
    QAction *events() const { return m_events; }
    QAction *surfaceTint() const { return m_surfaceTint; }
    /// Frames a second, what the graphics card takes for one, and the number of triangles.
    QAction *statistics() const { return m_statistics; }

private slots:
    void OnSkeletonToggled(bool on);
    void OnHotPointsToggled(bool on);
    void OnBoxesToggled(bool on);
    void OnEventsToggled(bool on);
    void OnSurfaceTintToggled(bool on);
    void OnStatisticsToggled(bool on);

private:
    Viewports m_viewports;
    ShadingMenu *m_shadingMenu;
    QAction *m_skeleton;
    QAction *m_hotPoints;
    QAction *m_boxes;
    QAction *m_events;
    QAction *m_surfaceTint;
    QAction *m_statistics;
};
