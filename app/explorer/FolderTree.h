// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FolderItem.h"

#include <QTreeWidget>

/// A folder's sub-folders and files as items; one of the files may be open in the editor.
class FolderTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit FolderTree(const FolderIcons &icons)
        : m_icons(icons)
    {}
    ~FolderTree() override;

    /// What the items were read from; empty before.
    const QString &folder() const { return m_folder; }
    /// Reads the folder with its files of this extension. Branches that were open stay open; a small folder
    /// that was not there before opens whole.
    void fill(const QString &folder, const QString &extension);

    FolderItem *current() const { return static_cast<FolderItem *>(currentItem()); }
    /// The item of a file; null when it is not listed.
    FolderItem *findItem(const QString &path) const;
    /// The file that belongs to a model of this folder name and complete base name, compared without case:
    /// the one with both names, else the only one of that base name, else the only one in the only folder of
    /// that name that holds files. Empty when none does.
    QString findMatching(const QString &folderName, const QString &baseName) const;

    /// Which file the editor has open: shown as such.
    void setLoadedPath(const QString &path);
    const QString &loadedPath() const { return m_loadedPath; }

private:
    void markLoaded(bool on);

    const FolderIcons m_icons;
    QString m_folder;
    QString m_loadedPath;
};
