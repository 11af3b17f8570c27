// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderMenu.h"

#include "Files.h"
#include "FolderAction.h"
#include "FolderTree.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QUrl>

FolderMenu::FolderMenu(FolderTree &tree, QWidget &explorer, const FolderNames &names)
    : QMenu(&explorer)
    , m_tree(tree)
{
    setObjectName(names.of("menu%1Folder"));
    m_open = addFolderAction(explorer, names, "Open", "open", tr("&Open"), tr("Open this file"));
    m_openFolder = addFolderAction(explorer, names, "OpenFolder", "folderopen", tr("Open Containing &Folder"),
                                   tr("Show the folder in the desktop's file manager"));
    m_copyPath = addFolderAction(explorer, names, "CopyPath", "copy", tr("Copy &Path"),
                                 tr("Copy the full path to the clipboard"));
    m_expandAll = addFolderAction(explorer, names, "ExpandAll", "expand", tr("&Expand All"),
                                  tr("Open all folders of the list"));
    m_collapseAll = addFolderAction(explorer, names, "CollapseAll", "collapse", tr("Collapse &All"),
                                    tr("Close all folders of the list"));
    m_copyPath->setShortcut(QKeySequence::Copy);

    addActions({m_open, m_openFolder, m_copyPath});
    addSeparator();
    m_extraBefore = addSeparator();
    addActions({m_expandAll, m_collapseAll});
    setDefaultAction(m_open);

    connect(m_open, &QAction::triggered, this, &FolderMenu::openCurrent);
    connect(m_openFolder, &QAction::triggered, this, &FolderMenu::OnActionOpenFolder);
    connect(m_copyPath, &QAction::triggered, this, &FolderMenu::OnActionCopyPath);
    connect(m_expandAll, &QAction::triggered, &m_tree, &QTreeWidget::expandAll);
    connect(m_collapseAll, &QAction::triggered, &m_tree, &QTreeWidget::collapseAll);
    connect(&m_tree, &QTreeWidget::customContextMenuRequested, this, &FolderMenu::OnContextMenu);
    connect(&m_tree, &QTreeWidget::currentItemChanged, this, &FolderMenu::updateActions);
    connect(&m_tree, &FolderTree::filled, this, &FolderMenu::updateActions);
}

void FolderMenu::OnContextMenu(const QPoint &position)
{
    // Current without being selected: the menu's target, not the user's choice.
    m_tree.setCurrentItem(m_tree.itemAt(position), 0, QItemSelectionModel::NoUpdate);
    // Taken now: when the menu closes, the tree makes its first row current if none is.
    const FolderItem *item = m_tree.current();
    m_menuFolder = !item ? m_tree.folder() : item->isFolder() ? item->path() : QFileInfo(item->path()).path();
    popup(m_tree.viewport()->mapToGlobal(position));
}

void FolderMenu::openCurrent()
{
    FolderItem *item = m_tree.current();
    if (!item)
        return;
    if (item->isFolder())
        item->setExpanded(!item->isExpanded());
    else
        emit fileChosen(item->path());
}

void FolderMenu::OnActionOpenFolder()
{
    // An archive is no folder to the desktop.
    const QString archive = Files::archiveOf(m_menuFolder);
    QDesktopServices::openUrl(
        QUrl::fromLocalFile(archive.isEmpty() ? m_menuFolder : QFileInfo(archive).path()));
}

void FolderMenu::OnActionCopyPath()
{
    if (const FolderItem *item = m_tree.current())
        QApplication::clipboard()->setText(QDir::toNativeSeparators(item->path()));
}

void FolderMenu::updateActions()
{
    const bool isCurrent = m_tree.current() != nullptr;
    const bool isListed = m_tree.topLevelItemCount() > 0;
    m_open->setEnabled(isCurrent);
    m_copyPath->setEnabled(isCurrent);
    m_openFolder->setEnabled(!m_tree.folder().isEmpty());
    m_expandAll->setEnabled(isListed);
    m_collapseAll->setEnabled(isListed);
}
