// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMenu>

class FolderTree;
struct FolderNames;

/// The context menu of an explorer's tree: what can be done with a row, and with all of them.
class FolderMenu : public QMenu
{
    Q_OBJECT

public:
    /// The actions become the explorer's.
    FolderMenu(FolderTree &tree, QWidget &explorer, const FolderNames &names);

    /// Adds an action of the owner's behind those of a row.
    void addExtraAction(QAction *action) { insertAction(m_extraBefore, action); }
    /// Opens the current file, or opens or closes the current folder.
    void openCurrent();
    /// Enables what can be done with what the tree shows.
    void updateActions();

signals:
    void fileChosen(const QString &path);

private slots:
    void OnContextMenu(const QPoint &position);
    void OnActionOpenFolder();
    void OnActionCopyPath();

private:
    FolderTree &m_tree;
    QAction *m_open;
    QAction *m_openFolder;
    QAction *m_copyPath;
    QAction *m_expandAll;
    QAction *m_collapseAll;
    QAction *m_extraBefore;
    QString m_menuFolder; ///< what the menu was opened on, or in
};
