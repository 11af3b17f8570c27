// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>
#include <QTreeWidgetItem>

#include <atomic>
#include <utility>

/// The icons that the items of one explorer share.
struct FolderIcons
{
    QIcon folder;
    QIcon openFolder;
    QIcon file;
};

/// One row of a folder explorer: a sub-folder with its contents below it, or a file. Answers from its few
/// fields instead of keeping a value per role, which makes a folder of thousands of files quick to list.
class FolderItem : public QTreeWidgetItem
{
public:
    /// The full path of a file; empty for a folder.
    static constexpr int FilePathRole = Qt::UserRole;

    /// The name is a part of the path. `icons` must outlive the item.
    FolderItem(QString path, int nameStart, int nameLength, bool folder, const FolderIcons *icons);

    QVariant data(int column, int role) const override;

    bool isFolder() const { return m_folder; }
    const QString &path() const { return m_path; }
    /// The last component of the path, of a file without the extension.
    QString name() const;
    /// The same, valid as long as the item.
    QStringView nameView() const;
    /// The path without the extension, from its character `from` on.
    QStringView pathFrom(int from) const
    {
        return QStringView(m_path).mid(from, m_nameStart + m_nameLength - from);
    }
    bool isLoaded() const { return m_loaded; }
    /// Marks the file that is open in the editor.
    void setLoaded(bool loaded);
    bool isBarren() const { return m_barren; }
    /// Greys a folder that holds no file at any depth, should it be shown.
    void setBarren(bool barren) { m_barren = barren; }

private:
    QString m_path;
    const FolderIcons *m_icons;
    int m_nameStart;
    int m_nameLength;
    bool m_folder;
    bool m_loaded = false;
    bool m_barren = false;
};

/// What a folder holds, until a tree takes it.
struct FolderContents
{
    FolderContents() = default;
    FolderContents(FolderContents &&other) noexcept
        : items(std::exchange(other.items, {}))
        , isFolder(other.isFolder)
    {}
    FolderContents &operator=(FolderContents &&) = delete;
    ~FolderContents();

    QList<QTreeWidgetItem *> items;
    bool isFolder = false; ///< whether there is such a folder
};

/// The contents of `folder`, all levels down: every sub-folder, and the files of that extension (in any
/// case). Folders come before files, each in natural order; links as Files::walk() has them. Runs in any
/// thread, and gives up what it has so far when it is cancelled.
FolderContents readFolder(const QString &folder, const QString &extension, const FolderIcons *icons,
                          const std::atomic_bool &cancelled);
