// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewMenu.h"

#include "CameraMenu.h"
#include "DisplayOptions.h"
#include "DocumentPanes.h"
#include "LookMenu.h"
#include "ShadingMenu.h"
#include "StatusReadOut.h"
#include "ViewPreferences.h"
#include "ViewToolBar.h"
#include "ui_MainWindow.h"

ViewMenu::ViewMenu(const Ui::MainWindow &ui, const DocumentPanes &panes, QAction *picture,
                   QMainWindow *window)
    : QObject(window)
{
    const auto *display = new DisplayOptions(panes.viewports(), window);
    QMenu *menu = ui.menuView;
    menu->insertMenu(ui.actionResetCamera, display->shadingMenu());
    QAction *fading = display->shadingMenu()->fadingGround();
    menu->insertAction(ui.actionTransGizmo, fading);
    fading->setEnabled(ui.actionGround->isChecked());
    connect(ui.actionGround, &QAction::toggled, fading, &QAction::setEnabled);
    menu->insertActions(ui.actionResetCamera,
                        {display->skeleton(), display->hotPoints(), display->boxes(), display->events(),
                         display->surfaceTint(), display->statistics()});
    menu->insertSeparator(ui.actionResetCamera);
    auto *camera = new CameraMenu(
        panes.viewports(), [&panes] { return panes.currentViewport(); },
        [&panes] { return panes.currentSelection(); }, window);
    connect(ui.actionResetCamera, &QAction::triggered, camera, &CameraMenu::on_actionResetCamera_triggered);
    menu->insertMenu(ui.actionResetCamera, camera);
    for (const DocumentPane &each : panes.all())
        each.tree->addAction(camera->frameSelection());
    menu->insertAction(ui.actionFullScreen, picture);
    menu->insertSeparator(ui.actionFullScreen);
    addLookMenu(*menu);
    menu->addSeparator();
    menu->addActions({ui.toolBarFile->toggleViewAction(), ui.toolBarEdit->toggleViewAction()});
    for (QDockWidget *dock : std::initializer_list<QDockWidget *>{
             ui.dockBrowser, ui.dockConsole, ui.dockProblems, ui.dockFind, ui.dockUsedBy, ui.dockCompare,
             ui.dockTable, ui.dockUv, ui.dockCurves, ui.dockMaterials, ui.dockHistory, ui.dockServers}) {
        menu->addAction(dock->toggleViewAction());
        // Not behind others that share its place.
        connect(dock->toggleViewAction(), &QAction::triggered, dock, &QDockWidget::raise);
    }
    createToolBars(ui, panes, *display, window);
}

void ViewMenu::createToolBars(const Ui::MainWindow &ui, const DocumentPanes &panes,
                              const DisplayOptions &display, QMainWindow *window)
{
    const ViewActions actions{ui.actionGround, ui.actionTransGizmo, ui.actionCullBack, ui.actionResetCamera,
                              display.shadingMenu()};
    ViewActions skinnedActions = actions;
    skinnedActions.marks = {display.skeleton(), display.hotPoints()};
    auto *skinned = new ViewToolBar(tr("Skinned Mesh View"), skinnedActions, ui.viewSkinnedPanel);
    auto *rigid = new ViewToolBar(tr("Static Mesh View"), actions, ui.viewStaticPanel);
    ui.vlviewSkinned->insertWidget(0, skinned);
    ui.vlviewStatic->insertWidget(0, rigid);
    ui.animTrackFrame->serve(*ui.viewSkinnedPanel); // whose tool bar is in it by now
    new ViewPreferences({skinned, rigid}, panes.viewports(), actions, window);
    new StatusReadOut(panes.viewports(), ui.statusBar);
}
