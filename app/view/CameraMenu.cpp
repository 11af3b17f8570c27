// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CameraMenu.h"

#include "KVOpenGLWidget.h"
#include "Settings.h"

#include <utility>

CameraMenu::CameraMenu(const Viewports &viewports, std::function<KVOpenGLWidget *()> current,
                       std::function<ModelSelection()> selection, QWidget *window)
    : QMenu(tr("&Camera"), window)
    , m_viewports(viewports)
    , m_current(std::move(current))
    , m_selection(std::move(selection))
{
    QAction *all =
        viewportAction("actionFrameAll", "frameall", tr("Frame &All"),
                       tr("Go where the whole model is in view"), {Qt::Key_Home}, viewports, window);
    m_frameSelection =
        viewportAction("actionFrameSelection", "frameselection", tr("&Frame Selection"),
                       tr("Go near to what is selected in the tree"), {Qt::Key_F}, viewports, window);
    addActions({all, m_frameSelection});
    addSeparator();
    addSides(window);
    addSeparator();
    QAction *orbit = viewportAction("actionOrbit", "orbit", tr("&Orbit with the Mouse"),
                                    tr("Drags turn the camera around the model, as they do with Alt held"),
                                    {Qt::Key_O}, viewports, window);
    orbit->setCheckable(true);
    orbit->setChecked(Settings::OrbitMode.value());
    addAction(orbit);
    QAction *frameOnOpen = viewportAction("actionFrameOnOpen", nullptr, tr("Frame Models &When They Open"),
                                          tr("Go where the whole model is in view as soon as it is opened"),
                                          {}, viewports, window);
    frameOnOpen->setCheckable(true);
    frameOnOpen->setChecked(Settings::FrameOnOpen.value());
    addAction(frameOnOpen);
    connect(all, &QAction::triggered, this, &CameraMenu::OnFrameAll);
    connect(m_frameSelection, &QAction::triggered, this, &CameraMenu::OnFrameSelection);
    connect(orbit, &QAction::triggered, this, &CameraMenu::OnOrbitToggled);
    connect(frameOnOpen, &QAction::triggered, this, &CameraMenu::OnFrameOnOpenToggled);
}

void CameraMenu::addSides(QWidget *window)
{
    const auto add = [this, window](const char *name, const QString &text, const QString &tip,
                                    const QKeySequence &keys, Camera::Side side) {
        QAction *action = viewportAction(name, nullptr, text, tip, {keys}, m_viewports, window);
        connect(action, &QAction::triggered, this, [this, side] { OnLookFrom(side); });
        addAction(action);
    };
    // The keypad's digits are matched by the plain ones, too.
    add("actionLookFront", tr("Fro&nt"), tr("Look at the model's front"), Qt::Key_1, Camera::Side::Front);
    add("actionLookBack", tr("&Back"), tr("Look at the model's back"), QKeySequence(QStringLiteral("Alt+1")),
        Camera::Side::Back);
    add("actionLookRight", tr("&Right"), tr("Look from the right, where +X points"), Qt::Key_3,
        Camera::Side::Right);
    add("actionLookLeft", tr("&Left"), tr("Look from the left, where -X points"),
        QKeySequence(QStringLiteral("Alt+3")), Camera::Side::Left);
    add("actionLookTop", tr("&Top"), tr("Look down at the model"), Qt::Key_7, Camera::Side::Top);
    add("actionLookBottom", tr("Botto&m"), tr("Look up at the model"), QKeySequence(QStringLiteral("Alt+7")),
        Camera::Side::Bottom);
}

void CameraMenu::on_actionResetCamera_triggered()
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->resetCamera();
}

void CameraMenu::OnFrameAll()
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->frameAll();
}

void CameraMenu::OnFrameSelection()
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->frameSelection(m_selection());
}

void CameraMenu::OnLookFrom(Camera::Side side)
{
    if (KVOpenGLWidget *viewport = m_current())
        viewport->lookFrom(side);
}

void CameraMenu::OnOrbitToggled(bool on)
{
    Settings::OrbitMode.setValue(on);
    for (KVOpenGLWidget *viewport : m_viewports)
        viewport->setOrbitMode(on);
}

void CameraMenu::OnFrameOnOpenToggled(bool on)
{
    Settings::FrameOnOpen.setValue(on);
}
