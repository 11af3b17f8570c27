// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DisplayOptions.h"

#include "KVOpenGLWidget.h"
#include "Settings.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

DisplayOptions::DisplayOptions(const Viewports &viewports, QWidget *window)
    : QObject(window)
    , m_viewports(viewports)
    , m_shadingMenu(new QMenu(tr("S&hading"), window))
    , m_shadings(new QActionGroup(this))
{
    m_skeleton = viewportAction("actionSkeleton", "bone", tr("Skelet&on"),
                                tr("Show the bones over the model; a click selects one"), {Qt::Key_B},
                                viewports, window);
    m_hotPoints = viewportAction("actionHotPoints", "hotpoints", tr("Hot &Points"),
                                 tr("Show the hot points over the model; a click selects one"), {Qt::Key_H},
                                 viewports, window);
    m_surfaceTint =
        viewportAction("actionSurfaceTint", nullptr, tr("&Selection Tint"),
                       tr("Tint and outline the selected surface; without, its material can be judged"),
                       {Qt::Key_T}, viewports, window);
    m_statistics =
        viewportAction("actionStatistics", nullptr, tr("Frame Ra&te"),
                       tr("Show frames a second and the number of triangles"), {}, viewports, window);
    createShadings(window);
    const auto check = [](QAction *action, bool on) {
        action->setCheckable(true);
        action->setChecked(on);
    };
    check(m_skeleton, Settings::ShowSkeleton.value());
    check(m_hotPoints, Settings::ShowHotPoints.value());
    check(m_surfaceTint, Settings::ShowSurfaceTint.value());
    check(m_statistics, Settings::ShowStatistics.value());
    connect(m_skeleton, &QAction::triggered, this, &DisplayOptions::OnSkeletonToggled);
    connect(m_hotPoints, &QAction::triggered, this, &DisplayOptions::OnHotPointsToggled);
    connect(m_surfaceTint, &QAction::triggered, this, &DisplayOptions::OnSurfaceTintToggled);
    connect(m_statistics, &QAction::triggered, this, &DisplayOptions::OnStatisticsToggled);
}

void DisplayOptions::createShadings(QWidget *window)
{
    const auto add = [this, window](const char *name, const char *icon, const QString &text,
                                    const QString &tip, Qt::Key key) {
        QAction *action = viewportAction(name, icon, text, tip, {key}, m_viewports, window);
        action->setCheckable(true);
        m_shadings->addAction(action);
        m_shadingMenu->addAction(action);
    };
    // In the order of the enumeration.
    add("actionShaded", "shaded", tr("&Shaded"), tr("Draw the surfaces with their textures"), Qt::Key_5);
    add("actionWireframe", "wireframe", tr("&Wireframe"), tr("Draw the edges of all triangles"), Qt::Key_4);
    add("actionShadedWireframe", "shadedwireframe", tr("Shaded W&ireframe"),
        tr("Draw the surfaces and the edges of their triangles"), Qt::Key_6);
    m_shadingMenu->menuAction()->setToolTip(tr("How the surfaces are drawn"));
    m_shadingMenu->menuAction()->setStatusTip(tr("How the surfaces are drawn"));

    const QList<QAction *> actions = m_shadings->actions();
    QAction *stored = actions.value(Settings::Shading.value(), actions.first());
    stored->setChecked(true);
    m_shadingMenu->setIcon(stored->icon());
    connect(m_shadings, &QActionGroup::triggered, this, &DisplayOptions::OnShadingChosen);
}

void DisplayOptions::OnShadingChosen(QAction *action)
{
    const int shading = m_shadings->actions().indexOf(action);
    Settings::Shading.setValue(shading);
    m_shadingMenu->setIcon(action->icon());
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShading(shading);
}

void DisplayOptions::OnSkeletonToggled(bool on)
{
    Settings::ShowSkeleton.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShowSkeleton(on);
}

void DisplayOptions::OnHotPointsToggled(bool on)
{
    Settings::ShowHotPoints.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShowHotPoints(on);
}

void DisplayOptions::OnSurfaceTintToggled(bool on)
{
    Settings::ShowSurfaceTint.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShowSurfaceTint(on);
}

void DisplayOptions::OnStatisticsToggled(bool on)
{
    Settings::ShowStatistics.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShowStatistics(on);
}
