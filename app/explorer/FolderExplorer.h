// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ArchiveWatch.h"
#include "ArchivesAhead.h"
#include "DocumentKind.h"
#include "FolderAction.h"
#include "FolderChooser.h"

#include <QWidget>

class FilterEdit;
class FolderMenu;
class FolderSwitch;
class FolderTree;
class QAction;
class QFrame;
class QLabel;
class QStackedLayout;
class QToolBar;
class QTreeWidget;
class QTreeWidgetItem;
class ReadingSign;

/// The files of one document kind in the game's folder, the mod's or another one, as a tree of its
/// sub-folders. It opens nothing itself: it says which file the user chose.
class FolderExplorer : public QWidget
{
    Q_OBJECT

public:
    /// Starts with the stored switch, and empty until refill(); writes no setting. `kind` must outlive the
    /// explorer.
    explicit FolderExplorer(const DocumentKind &kind, QWidget *parent = nullptr);

    const DocumentKind &kind() const { return m_kind; }
    QTreeWidget *tree() const;
    QToolBar *toolBar() const { return m_toolBar; }
    QAction *changeFolderAction() const { return m_changeFolder; }
    QAction *refreshAction() const { return m_refresh; }
    QAction *quickSelectAction() const { return m_quickSelect; }
    /// Adds an action of the owner's to the tool bar and the context menu.
    void addExtraAction(QAction *action);
    /// Adds one to the context menu alone.
    void addMenuAction(QAction *action);
    void setFolderChooser(FolderChooser chooser) { m_chooseFolder = std::move(chooser); }

    /// Reads the stored folder again, as FolderTree::fill(); filled() tells when that is done.
    void refill();
    bool isReading() const;
    /// Stores the folder and refills.
    void setFolder(const QString &folder);
    /// Asks for a folder, starting at the stored one; a cancelled question changes nothing.
    void changeFolder();
    /// The options were accepted: follows the game's or the mod's folder to where it is now, and takes one of
    /// them where there is no folder yet.
    void followOptions();
    /// Shows sub-folders without a file for the list, too.
    void showEmptyFolders(bool on);

    bool quickSelect() const;
    /// Stores whether selecting a file chooses it.
    void setQuickSelect(bool on);

    /// The selected file; empty when none is selected.
    QString selectedPath() const;
    /// Selects a file without choosing it, as FolderTree::selectFile().
    bool selectPath(const QString &path);
    /// A file was written: selects it, after the folder was read again should it be new there.
    void showWritten(const QString &path);
    /// Which file the editor has open: shown as such.
    void setLoadedPath(const QString &path);
    /// The files that are listed.
    QStringList files() const;

signals:
    /// By selection while quick select is on, by double click and by Enter.
    void fileChosen(const QString &path);
    void filled();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private slots:
    void OnFilled();
    void OnReadingStopped();
    void OnItemSelectionChanged();
    void OnItemDoubleClicked(QTreeWidgetItem *item);

private:
    void createActions();
    void createToolBar();
    void createEmptyPage();
    QString emptyText() const;
    void showPage(const QString &emptyText);
    /// The list, or why it would be blank.
    void showShownRows();
    void goToFirst(bool opens);
    void followFolders();

    const DocumentKind &m_kind;
    const FolderNames m_names;
    FolderChooser m_chooseFolder = chooseFolder;
    FolderTree *m_tree;
    QToolBar *m_toolBar;
    QAction *m_changeFolder;
    QAction *m_refresh;
    QAction *m_quickSelect;
    FolderSwitch *m_switch;
    FilterEdit *m_filter;
    ReadingSign *m_reading;
    FolderMenu *m_menu;
    ArchiveWatch m_archive;
    ArchivesAhead m_ahead;
    bool m_isStopped = false; ///< the folder was not read to its end
    QStackedLayout *m_pages;
    QFrame *m_emptyPage;
    QLabel *m_emptyLabel;
    QString m_clickedPath; ///< what the mouse press at hand has chosen already
};
