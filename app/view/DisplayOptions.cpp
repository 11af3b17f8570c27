// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DisplayOptions.h"

#include "KVOpenGLWidget.h"
#include "Settings.h"
#include "ShadingMenu.h"

#include <QAction>

DisplayOptions::DisplayOptions(const Viewports &viewports, QWidget *window)
    : QObject(window)
    , m_viewports(viewports)
    , m_shadingMenu(new ShadingMenu(viewports, window))
{
    m_skeleton = viewportAction("actionSkeleton", "bone", tr("Skelet&on"),
                                tr("Show the bones over the model; a click selects one"), {Qt::Key_B},
                                viewports, window);
    m_hotPoints = viewportAction("actionHotPoints", "hotpoints", tr("Hot &Points"),
                                 tr("Show the hot points over the model; a click selects one"), {Qt::Key_H},
                                 viewports, window);
    m_boxes = viewportAction(
        "actionBoxes", nullptr, tr("Bo&xes"),
        tr("Show the boxes of the bones and of the model; faces of the selected one can be dragged"),
        {Qt::Key_X}, viewports, window);
    m_events = viewportAction(
        "actionEvents", "action", tr("E&vents"),
        tr("Show key frame actions as they happen, and the selected ones: how far damage goes, and what the "
           "others are"),
        {Qt::Key_E}, viewports, window);
    m_surfaceTint =
        viewportAction("actionSurfaceTint", nullptr, tr("&Selection Tint"),
                       tr("Tint and outline the selected surface; without, its material can be judged"),
                       {Qt::Key_T}, viewports, window);
    m_statistics = viewportAction(
        "actionStatistics", nullptr, tr("Frame Ra&te"),
        tr("Show frames a second, what the graphics card takes for one, and the number of triangles"), {},
        viewports, window);
    const auto check = [](QAction *action, bool on) {
        action->setCheckable(true);
        action->setChecked(on);
    };
    check(m_skeleton, Settings::ShowSkeleton.value());
    check(m_hotPoints, Settings::ShowHotPoints.value());
    check(m_boxes, Settings::ShowBoxes.value());
    check(m_events, Settings::ShowEvents.value());
    check(m_surfaceTint, Settings::ShowSurfaceTint.value());
    check(m_statistics, Settings::ShowStatistics.value());
    connect(m_skeleton, &QAction::triggered, this, &DisplayOptions::OnSkeletonToggled);
    connect(m_hotPoints, &QAction::triggered, this, &DisplayOptions::OnHotPointsToggled);
    connect(m_boxes, &QAction::triggered, this, &DisplayOptions::OnBoxesToggled);
    connect(m_events, &QAction::triggered, this, &DisplayOptions::OnEventsToggled);
    connect(m_surfaceTint, &QAction::triggered, this, &DisplayOptions::OnSurfaceTintToggled);
    connect(m_statistics, &QAction::triggered, this, &DisplayOptions::OnStatisticsToggled);
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

void DisplayOptions::OnBoxesToggled(bool on)
{
    Settings::ShowBoxes.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShowBoxes(on);
}

void DisplayOptions::OnEventsToggled(bool on)
{
    Settings::ShowEvents.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShowEvents(on);
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
