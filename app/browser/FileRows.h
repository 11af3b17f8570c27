// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileCatalog.h"
#include "NamedThing.h"

#include <QAbstractListModel>

/// Which files are wanted of all.
enum class FileState { Any, InMod, InGame, ReplacesGame, Unused };

/// What of the files of game and mod is listed, and how.
struct FileFilter
{
    QString words;      ///< each is somewhere in the path, in any case
    unsigned kinds = 0; ///< a bit for each IndexedType that is wanted; without any, all are
    FileState state = FileState::Any;
    CatalogOrder order = CatalogOrder::Name;
    bool bestFirst = false; ///< those come first whose names begin with the words, then those that have them
};

/// Of each file, by number, whether nobody names it; null as long as it is not known.
using UnusedFlagsPtr = std::shared_ptr<const std::vector<char>>;

/// The files of game and mod that a filter wants, one a row. Texts are made when they are asked for.
class FileRows : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role { PathRole = Qt::UserRole, FolderRole, StateRole };

    using QAbstractListModel::QAbstractListModel;

    /// Null shows none.
    void setFiles(CatalogFilesPtr files);
    const CatalogFilesPtr &files() const { return m_files; }
    /// Of the files that are listed.
    void setUnused(UnusedFlagsPtr unused);
    bool isUsageKnown() const { return m_unused != nullptr; }
    void setFilter(const FileFilter &filter);
    const FileFilter &filter() const { return m_filter; }

    const CatalogFile &fileAt(int row) const { return m_files->files[size_t(m_rows[size_t(row)])]; }
    /// -1 for a file that is not shown.
    int rowOf(const QString &path) const;
    /// Of all, listed or not.
    int totalCount() const { return m_files ? int(m_files->files.size()) : 0; }

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

    static QIcon kindIcon(IndexedType type);
    /// What a file is to those that name it: a texture itself, a material file its materials. Nothing where
    /// nobody names such files, and of a material file that is larger than those of games.
    static std::vector<NamedThing> thingsOf(const CatalogFile &file);
    /// "Skinned mesh" and so on.
    static QString kindText(IndexedType type);

private:
    bool fits(int number, const QStringList &words) const;
    bool isUnused(int number) const { return m_unused && (*m_unused)[size_t(number)] != 0; }
    void refill();
    QString stateText(int number) const;
    QString toolTip(int number) const;

    CatalogFilesPtr m_files;
    UnusedFlagsPtr m_unused;
    FileFilter m_filter;
    std::vector<int> m_rows; ///< numbers of files
};
