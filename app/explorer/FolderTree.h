// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "FolderItem.h"

#include <QSet>
#include <QTreeWidget>

/// A folder's sub-folders and files as items; one of the files may be open in the editor. A filter hides what
/// somebody does not look for, and folders without any file are hidden unless they are wanted.
class FolderTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit FolderTree(const FolderIcons &icons);
    ~FolderTree() override;

    /// What the items were read from, or are being read from; empty before.
    const QString &folder() const { return m_folder; }
    bool isFolderThere() const { return m_isFolderThere; }
    /// Reads the folder with its files of this extension, without waiting for it: filled() comes, unless
    /// another folder is wanted meanwhile, or none. The items of another folder go at once, those of the same
    /// one stay until the new ones come. Branches that were open stay open; a small folder that was not there
    /// before opens whole. Current row, selected file and scroll position stay where they can, and nothing is
    /// said about them.
    void fill(const QString &folder, const QString &extension);
    bool isReading() const { return m_reading.isRunning(); }
    void stopReading() { m_reading.cancel(); }

    /// Shows only files that have all of these words in their path below the folder, in any case. The
    /// branches of what is found open, and close again when the filter goes.
    void setFilter(const QString &words);
    bool isFiltered() const { return !m_words.isEmpty(); }
    void showEmptyFolders(bool on);
    /// Whether there is anything to see, or would be without the filter.
    bool hasShownRows() const;
    /// The uppermost file that is shown; null when there is none.
    FolderItem *firstShownFile() const;

    FolderItem *current() const { return static_cast<FolderItem *>(currentItem()); }
    /// The item of a file; null when it is not listed.
    FolderItem *findItem(const QString &path) const;
    /// The files that are listed.
    QStringList files() const;

    /// Makes a file the selected one, as soon as it is listed if the folder is being read; false when it is
    /// not listed yet, and then nothing is selected.
    bool selectFile(const QString &path);
    /// The selected file; empty when none is.
    QString selectedFile() const;

    /// Which file the editor has open: shown as such.
    void setLoadedPath(const QString &path);
    const QString &loadedPath() const { return m_loadedPath; }

signals:
    void filled();
    /// Other files are shown than before.
    void filterChanged();

private:
    void take(FolderContents contents, bool isSameFolder);
    FolderItem *findRow(const QString &path) const;
    void markLoaded(bool on);
    QSet<QString> openBranches() const;
    void open(const QSet<QString> &branches);
    void updateShown();
    bool updateShown(const QTreeWidgetItem &parent, const QModelIndex &index);
    bool matches(const FolderItem &file) const;

    const FolderIcons m_icons;
    QString m_folder;
    bool m_isFolderThere = false;
    QString m_loadedPath;
    QString m_wantedPath; ///< to be selected when the folder was read
    QStringList m_words;
    bool m_hidesFiles = false;
    bool m_emptyFolders = false;
    QSet<QString> m_openBefore; ///< the branches that were open before the filter
    Background m_reading;
};
