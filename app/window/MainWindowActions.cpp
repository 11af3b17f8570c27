// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
// What the window's actions and tabs do.
#include "MainWindow.h"

#include "AboutDialog.h"
#include "CommandPalette.h"
#include "ConsoleLog.h"
#include "ControlsDialog.h"
#include "DocumentFiles.h"
#include "FilterLine.h"
#include "FolderExplorer.h"
#include "ImportExport.h"
#include "KVOpenGLWidget.h"
#include "KVTreeView.h"
#include "ModelTransforms.h"
#include "OptionsDialog.h"
#include "Problems.h"
#include "Shortcuts.h"
#include "WindowLayout.h"
#include "ui_MainWindow.h"

#include <QDir>
#include <QMenu>
#include <QMessageBox>

#include <utility>

void MainWindow::OnStartSetupPaths()
{
    if (std::exchange(m_askedForFolders, true))
        return;
    const QString gamePath = Settings::GamePath.value();
    if (!gamePath.isEmpty() && !Settings::OutputDir.value().isEmpty() && QDir(gamePath).exists())
        return;
    QMessageBox::information(this, tr("Setup Folder Paths"),
                             tr("Please setup your folder paths before using Korvane. Thank you!"));
    on_actionPreferences_triggered();
}

void MainWindow::on_actionOpen_triggered()
{
    if (const DocumentPane *current = currentPane())
        m_files->openChosen(current->document->kind().type);
}

void MainWindow::on_actionSave_triggered()
{
    if (const DocumentPane *current = currentPane())
        m_files->save(current->document->kind().type);
}

void MainWindow::on_actionSaveAs_triggered()
{
    if (const DocumentPane *current = currentPane())
        m_files->saveAs(current->document->kind().type);
}

void MainWindow::on_actionSkinnedSaveAs_triggered()
{
    m_files->saveAs(DocumentType::SkinnedMesh);
}

void MainWindow::on_actionAnimSaveAs_triggered()
{
    m_files->saveAs(DocumentType::Anim);
}

void MainWindow::on_actionSaveAll_triggered()
{
    m_files->saveAll();
}

void MainWindow::on_actionImport_triggered()
{
    if (currentPane())
        importFile({});
}

void MainWindow::on_actionExport_triggered()
{
    if (m_ui->tabWidget->currentWidget() == m_ui->tabSkinned)
        QMessageBox::information(this, tr("Error"), tr("No dice!"));
    else if (m_ui->tabWidget->currentWidget() == m_ui->tabStatic)
        m_importExport->exportStaticMesh();
}

void MainWindow::on_actionExit_triggered()
{
    close();
}

void MainWindow::on_actionResetCamera_triggered()
{
    if (const DocumentPane *current = currentPane())
        current->viewport->resetCamera();
}

void MainWindow::on_actionFullScreen_triggered(bool on)
{
    setWindowState(on ? windowState() | Qt::WindowFullScreen : windowState() & ~Qt::WindowFullScreen);
}

void MainWindow::on_actionRefreshExplorers_triggered()
{
    for (const DocumentPane &each : m_panes)
        each.explorer->refill();
}

void MainWindow::on_actionResetLayout_triggered()
{
    restoreState(m_defaultLayout);
    setDefaultLayout(*this);
}

void MainWindow::on_actionFilter_triggered()
{
    const DocumentPane *current = currentPane();
    if (!current)
        return;
    auto *line = current->tree->parentWidget()->findChild<FilterLine *>();
    line->setFocus(Qt::ShortcutFocusReason);
    line->selectAll();
}

void MainWindow::on_actionCommands_triggered()
{
    const DocumentPane *current = currentPane();
    CommandPalette palette(*m_ui->menuBar, current ? current->tree->actions() : QList<QAction *>(), this);
    palette.add(m_shortcuts->commands());
    palette.exec();
}

void MainWindow::on_actionRotate_triggered()
{
    m_transforms->showRotateDialog();
}

void MainWindow::on_actionScale_triggered()
{
    m_transforms->showScaleDialog();
}

void MainWindow::on_actionPreferences_triggered()
{
    OptionsDialog dialog(this, m_shortcuts);
    const auto folders = [] { return qMakePair(Settings::GamePath.value(), Settings::OutputDir.value()); };
    const auto before = folders();
    if (dialog.exec() != QDialog::Accepted || folders() == before)
        return;
    // Textures are looked up in these folders.
    for (KVOpenGLWidget *viewport : viewports())
        viewport->rebuildModel();
    m_problems->recheck();
}

void MainWindow::on_actionControls_triggered()
{
    ControlsDialog dialog(*m_shortcuts, this);
    dialog.exec();
}

void MainWindow::on_actionAbout_triggered()
{
    AboutDialog dialog(this);
    dialog.exec();
}

void MainWindow::on_actionConsoleClear_triggered()
{
    m_console->clear();
}

void MainWindow::on_tabWidget_currentChanged()
{
    updateCurrentDocument();
}

void MainWindow::on_tabTrees_currentChanged(int index)
{
    m_ui->stackSkinned->setCurrentIndex(index);
    const DocumentType type = index == 0 ? DocumentType::SkinnedMesh : DocumentType::Anim;
    showInViewport(type, pane(type).tree->currentRecord());
    updateCurrentDocument();
}

void MainWindow::OnConsoleCustomContextMenu(const QPoint &position)
{
    QMenu menu(this);
    menu.addAction(m_console->copyAction());
    menu.addAction(m_ui->actionConsoleClear);
    menu.exec(m_ui->listConsole->viewport()->mapToGlobal(position));
}

void MainWindow::OnUndoCleanChanged()
{
    updateCurrentDocument();
}

// The context that puts the window together shares with the viewports' and is lost with them; only a new
// native window has a new one.
void MainWindow::OnContextLost()
{
    const QPoint place = pos(); // a window manager would choose another
    hide();
    destroy();
    for (KVOpenGLWidget *viewport : viewports())
        viewport->renewContext();
    if (!(windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
        move(place);
    show();
}
