// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderListing.h"

#include "FileSystem.h"
#include "Files.h"
#include "FolderWalk.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {
/// More files than this are none of a game, but somebody's disk.
constexpr size_t MostListedFiles = 200000;
/// Of files of all kinds and of folders, in each of the two.
constexpr int MostWalkedEntries = 500000;

/// The folder of game or mod as it is walked, and as it is compared.
struct ListedRoot
{
    QString path; ///< empty where there is none
    QString real; ///< what links lead to, with a slash behind

    explicit ListedRoot(const QString &folder)
    {
        if (folder.isEmpty() || !Files::isFolder(folder))
            return;
        path = QDir::cleanPath(QDir(folder).absolutePath());
        real = realPath(path) + QLatin1Char('/');
    }

    bool contains(const ListedRoot &other) const
    {
        return !path.isEmpty() && !other.path.isEmpty() && other.real.startsWith(real);
    }

private:
    static QString realPath(const QString &folder)
    {
        const QString canonical = QFileInfo(folder).canonicalFilePath();
        return FileSystem::comparable(canonical.isEmpty() ? folder : canonical);
    }
};

void lookForGaps(const QString &folder, FolderListing &listing)
{
    const QString reason = reasonOfGaps(folder);
    if (!reason.isEmpty())
        listing.gaps += QStringLiteral("%1: %2").arg(QDir::toNativeSeparators(folder), reason);
}

void listRoot(const ListedRoot &root, const QString &without, bool isMod, const std::atomic_bool &isCancelled,
              std::atomic_int *found, FolderListing &listing)
{
    if (root.path.isEmpty())
        return;
    const QString archive = Files::archiveOf(root.path);
    QStringList watched{root.path};
    if (!archive.isEmpty())
        watched = QStringList{archive, QFileInfo(archive).path()};
    const int start = root.path.endsWith(QLatin1Char('/')) ? root.path.size() : root.path.size() + 1;
    const auto isOthers = [&without](const QString &relative) {
        return !without.isEmpty() && FileSystem::comparable(relative).startsWith(without);
    };
    int entries = 0;
    lookForGaps(root.path, listing);
    Files::walk(root.path, [&](const FolderEntry &entry) {
        if (entry.isFolder && archive.isEmpty()) {
            if (watched.size() < FolderListing::MostFoldersNoted)
                watched += entry.path;
            if (!isOthers(entry.path.mid(start) + QLatin1Char('/')))
                lookForGaps(entry.path, listing);
        }
        const auto type = entry.isFolder ? std::nullopt : indexedTypeOf(entry.path);
        const QString relative = type ? entry.path.mid(start) : QString();
        if (type && !isOthers(relative)) {
            listing.files.push_back({entry.path, relative, isMod, *type});
            if (found)
                ++*found;
        }
        if (++entries < MostWalkedEntries && listing.files.size() < MostListedFiles)
            return !isCancelled;
        listing.isCut = true;
        return false;
    });
    watched.sort();
    listing.folders = watched + listing.folders;
}
} // namespace

FolderListing listFolders(const MaterialFolders &folders, const std::atomic_bool &isCancelled,
                          std::atomic_int *found)
{
    const ListedRoot game(folders.gamePath);
    const ListedRoot mod(folders.outputDir);
    FolderListing listing;
    const auto inner = [](const ListedRoot &outer, const ListedRoot &other) {
        return outer.contains(other) ? other.real.mid(outer.real.size()) : QString();
    };
    listRoot(game, inner(game, mod), false, isCancelled, found, listing);
    if (game.path.isEmpty() || mod.real != game.real)
        listRoot(mod, inner(mod, game), true, isCancelled, found, listing);
    std::sort(listing.files.begin(), listing.files.end(),
              [](const ListedFile &a, const ListedFile &b) { return a.path < b.path; });
    listing.gaps.sort();
    return listing;
}
