// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewPreferences.h"

#include "KVOpenGLWidget.h"
#include "Settings.h"

#include <QAction>
#include <QColorDialog>

ViewPreferences::ViewPreferences(const std::array<ViewToolBar *, 2> &toolBars,
                                 const std::array<KVOpenGLWidget *, 2> &viewports, const ViewActions &actions,
                                 QWidget *window)
    : QObject(window)
    , m_toolBars(toolBars)
    , m_viewports(viewports)
    , m_window(window)
{
    // Showing what is stored stores nothing: a slider position is coarser than the value behind it.
    actions.ground->setChecked(Settings::ShowGround.value());
    actions.axisGizmo->setChecked(Settings::ShowAxisGizmo.value());
    actions.backCull->setChecked(Settings::BackCull.value());
    connect(actions.ground, &QAction::triggered, this, &ViewPreferences::on_actionGround_triggered);
    connect(actions.axisGizmo, &QAction::triggered, this, &ViewPreferences::on_actionTransGizmo_triggered);
    connect(actions.backCull, &QAction::triggered, this, &ViewPreferences::on_actionCullBack_triggered);
    for (ViewToolBar *bar : m_toolBars) {
        bar->setBackgroundColor(Settings::BGColor.value());
        bar->setSurfSelectType(Settings::SurfSelectType.value());
        bar->setMoveSpeedPosition(ViewToolBar::moveSpeedPosition(Settings::MouseSpeed.value()));
        bar->setBrightnessPosition(ViewToolBar::brightnessPosition(Settings::Brightness.value()));
        connect(bar, &ViewToolBar::backgroundColorClicked, this, &ViewPreferences::OnOpenBGColorPicker);
        connect(bar, &ViewToolBar::surfSelectChanged, this, &ViewPreferences::OnSurfSelectChanged);
        connect(bar, &ViewToolBar::moveSpeedChanged, this, &ViewPreferences::OnMouseSpeedChanged);
        connect(bar, &ViewToolBar::brightnessChanged, this, &ViewPreferences::OnBrightnessChanged);
        connect(bar, &ViewToolBar::sliderReleased, this, &SettingsHold::writeWaiting);
    }
}

void ViewPreferences::OnOpenBGColorPicker()
{
    const QColor color = QColorDialog::getColor(Settings::BGColor.value(), m_window, tr("Background Color"));
    if (!color.isValid())
        return;
    Settings::BGColor.setValue(color);
    for (ViewToolBar *bar : m_toolBars)
        bar->setBackgroundColor(color);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setBackgroundColor(color);
}

void ViewPreferences::OnSurfSelectChanged(int type)
{
    Settings::SurfSelectType.setValue(type);
    for (ViewToolBar *bar : m_toolBars)
        bar->setSurfSelectType(type);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setSurfSelectType(type);
}

void ViewPreferences::OnMouseSpeedChanged(int position)
{
    const float speed = ViewToolBar::moveSpeed(position);
    Settings::MouseSpeed.setValueSoon(speed);
    for (ViewToolBar *bar : m_toolBars)
        bar->setMoveSpeedPosition(position);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setMoveSpeed(speed);
}

void ViewPreferences::OnBrightnessChanged(int position)
{
    const float brightness = ViewToolBar::brightness(position);
    Settings::Brightness.setValueSoon(brightness);
    for (ViewToolBar *bar : m_toolBars)
        bar->setBrightnessPosition(position);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setBrightness(brightness);
}

void ViewPreferences::on_actionGround_triggered(bool on)
{
    Settings::ShowGround.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShowGround(on);
}

void ViewPreferences::on_actionTransGizmo_triggered(bool on)
{
    Settings::ShowAxisGizmo.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setShowAxisGizmo(on);
}

void ViewPreferences::on_actionCullBack_triggered(bool on)
{
    Settings::BackCull.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setBackCull(on);
}
