// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewportAction.h"

#include <QObject>

class QAction;
class QActionGroup;
class QMenu;

/// What the viewports draw beside the plain model: actions of the view menu and the view tool bars, stored
/// as soon as the user changes one, the same in both viewports.
class DisplayOptions : public QObject
{
    Q_OBJECT

public:
    /// The viewports outlive this; the actions belong to `window`.
    DisplayOptions(const Viewports &viewports, QWidget *window);

    /// Surfaces, edges or both; its icon is that of the choice.
    QMenu *shadingMenu() const { return m_shadingMenu; }
    QAction *skeleton() const { return m_skeleton; }
    QAction *hotPoints() const { return m_hotPoints; }
    QAction *surfaceTint() const { return m_surfaceTint; }
    /// Frames a second and the number of triangles.
    QAction *statistics() const { return m_statistics; }

private slots:
    void OnShadingChosen(QAction *action);
    void OnSkeletonToggled(bool on);
    void OnHotPointsToggled(bool on);
    void OnSurfaceTintToggled(bool on);
    void OnStatisticsToggled(bool on);

private:
    void createShadings(QWidget *window);

    Viewports m_viewports;
    QMenu *m_shadingMenu;
    QActionGroup *m_shadings;
    QAction *m_skeleton;
    QAction *m_hotPoints;
    QAction *m_surfaceTint;
    QAction *m_statistics;
};
