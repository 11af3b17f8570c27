// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"
#include "FolderChooser.h"

#include <QWidget>

class FolderTree;
class QAction;
class QFrame;
class QLabel;
class QMenu;
class QStackedLayout;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;

/// The files of one document kind in a folder of the user's choice, as a tree of its sub-folders. It opens
/// nothing itself: it says which file the user chose.
class FolderExplorer : public QWidget
{
    Q_OBJECT

public:
    /// Starts with the stored folder and switch; writes no setting. `kind` must outlive the explorer.
    explicit FolderExplorer(const DocumentKind &kind, QWidget *parent = nullptr);

    const DocumentKind &kind() const { return m_kind; }
    QTreeWidget *tree() const;
    QToolBar *toolBar() const { return m_toolBar; }
    QAction *changeFolderAction() const { return m_changeFolder; }
    QAction *refreshAction() const { return m_refresh; }
    QAction *quickSelectAction() const { return m_quickSelect; }
    /// Adds an action of the owner's to the tool bar and the context menu.
    void addExtraAction(QAction *action);
    void setFolderChooser(FolderChooser chooser) { m_chooseFolder = std::move(chooser); }

    /// Reads the stored folder again. Says nothing about the selection meanwhile; open branches, selection
    /// and scroll position stay where they can.
    void refill();
    /// Stores the folder and refills.
    void setFolder(const QString &folder);
    /// Asks for a folder, starting at the stored one; a cancelled question changes nothing.
    void changeFolder();

    bool quickSelect() const;
    /// Stores whether selecting a file chooses it.
    void setQuickSelect(bool on);

    /// The selected file; empty when none is selected.
    QString selectedPath() const;
    /// Selects a file without choosing it; false when it is not listed, and then nothing is selected.
    bool selectPath(const QString &path);
    /// Which file the editor has open: shown as such.
    void setLoadedPath(const QString &path);

    /// The file that belongs to a model, as FolderTree::findMatching().
    QString findMatching(const QString &folderName, const QString &baseName) const;

signals:
    /// By selection while quick select is on, by double click and by Enter.
    void fileChosen(const QString &path);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnItemSelectionChanged();
    void OnItemDoubleClicked(QTreeWidgetItem *item);
    void OnContextMenu(const QPoint &position);
    void OnActionOpen();
    void OnActionOpenFolder();
    void OnActionCopyPath();

private:
    void createActions();
    void createEmptyPage();
    void createContextMenu();
    QAction *addAction(const char *name, const char *icon, const QString &text, const QString &toolTip);
    QString emptyText(const QString &folder) const;
    void updateActions();

    const DocumentKind &m_kind;
    FolderChooser m_chooseFolder = chooseFolder;
    FolderTree *m_tree;
    QToolBar *m_toolBar;
    QStackedLayout *m_pages;
    QFrame *m_emptyPage;
    QLabel *m_emptyLabel;
    QMenu *m_contextMenu;
    QAction *m_open;
    QAction *m_openFolder;
    QAction *m_copyPath;
    QAction *m_changeFolder;
    QAction *m_refresh;
    QAction *m_quickSelect;
    QAction *m_expandAll;
    QAction *m_collapseAll;
    QAction *m_extraBefore; ///< where the context menu takes the owner's actions
    QString m_menuFolder;   ///< what the context menu was opened on, or in
    QString m_clickedPath;  ///< what the mouse press at hand has chosen already
};
