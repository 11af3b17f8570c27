// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "FolderListing.h"

#include <QFileSystemWatcher>
#include <QTimer>

#include <array>
#include <memory>
#include <vector>

/// A file of game or mod as it is listed and looked for.
struct CatalogFile
{
    QString path;
    QString relative; ///< below the folder of game or mod
    QString searched; ///< the same in one case
    int nameStart;    ///< in the one
    int searchStart;  ///< and in the other
    IndexedType type;
    bool isMod;
    bool hasTwin; ///< the other folder has a file of this name, too

    QString name() const { return relative.mid(nameStart); }
    /// Without a slash behind; empty for what lies openly in the folder of game or mod.
    QString folder() const { return nameStart > 0 ? relative.left(nameStart - 1) : QString(); }
    bool isSame(const CatalogFile &other) const
    {
        return path == other.path && relative == other.relative && isMod == other.isMod &&
               hasTwin == other.hasTwin;
    }
};

enum class CatalogOrder { Name, Kind, Folder };
constexpr size_t CatalogOrders = 3;

/// All of them at a time. Never changes once it is made, so any thread may look.
struct CatalogFiles
{
    std::vector<CatalogFile> files; ///< ascending by path
    /// Their numbers in each CatalogOrder.
    std::array<std::vector<int>, CatalogOrders> orders;
    QStringList folders; ///< see FolderListing
    QStringList gaps;    ///< as there
    bool isCut = false;  ///< as there

    bool isSame(const CatalogFiles &other) const;
};

using CatalogFilesPtr = std::shared_ptr<const CatalogFiles>;

/// Reads nothing but names. Any thread may call it.
CatalogFilesPtr makeCatalogFiles(const MaterialFolders &folders, const std::atomic_bool &isCancelled,
                                 std::atomic_int &found);

/// Has the files of the folders that the options name, read by another thread, and read again when folders or
/// archive change as long as somebody follows; they are watched only then. Nothing is read before somebody
/// asks for it.
class FileCatalog : public QObject
{
    Q_OBJECT

public:
    /// What is read at once counts as written when it has rested for this long.
    static constexpr int RestMs = 400;
    explicit FileCatalog(QObject *parent = nullptr);

    /// As they were read last; null as long as they were not, and without folders.
    const CatalogFilesPtr &files() const { return m_files; }
    static bool hasFolders();
    bool isReading() const { return m_reader.isRunning(); }
    /// Whether the last reading was given up.
    bool isGivenUp() const { return m_isGivenUp; }
    /// How many files were found so far while it reads.
    int found() const { return m_found ? int(*m_found) : 0; }

    /// Reads the folders; once more where that is under way.
    void read();
    /// Reads them now, and whenever something may have changed, until nobody wants that any more.
    void follow(bool on);
    /// Something may have changed.
    void refresh();
    void giveUp();

signals:
    /// The files are others, or the reading began or ended.
    void changed();
    /// The files may be the same, but what is in them may not.
    void looked();

private:
    void take(CatalogFilesPtr made);
    /// Watches these folders and no others.
    void watch(const QStringList &folders);
    void watchSome();

    Background m_reader;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
    QTimer m_turns;            ///< of the event loop, in which folders are watched
    QStringList m_toWatch;     ///< and are not yet
    QStringList m_toLeave;     ///< and are not to be any more
    MaterialFolders m_folders; ///< of what is read, or was read last
    CatalogFilesPtr m_files;
    std::shared_ptr<std::atomic_int> m_found;
    bool m_isFollowed = false;
    bool m_isStale = false; ///< what is being read may be as it was before
    bool m_isGivenUp = false;
};
