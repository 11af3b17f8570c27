// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileNaming.h"
#include "Validation.h"

#include <QStringList>

#include <atomic>
#include <vector>

/// A file of game or mod, of one of the kinds that an index knows.
struct ListedFile
{
    QString path;     ///< on the disk or in an archive
    QString relative; ///< below the folder of game or mod
    bool isMod = false;
    IndexedType type = IndexedType::Picture;
};

/// What one walk through the folders of game and mod comes by.
struct FolderListing
{
    std::vector<ListedFile> files; ///< ascending by their paths
    /// The folders on the disk in which these come and go; of an archive that itself, and where it stands.
    QStringList folders; ///< the mod's first, MostFoldersNoted of each of the two at most
    static constexpr int MostFoldersNoted = 1000;
    /// Folders of which something is missing: their paths, with why, ascending; see reasonOfGaps().
    QStringList gaps;
    bool isCut = false; ///< there is more than a game and a mod can be, which is not listed
};

/// All models, animations, materials and pictures of both folders. Where one of these lies in the other one,
/// its files are its own and none of the other's; where they are one, they are the game's. Ends early, with
/// what it has, when `isCancelled` becomes true. `found`, if given, counts the files meanwhile. Any thread
/// may call it.
FolderListing listFolders(const MaterialFolders &folders, const std::atomic_bool &isCancelled,
                          std::atomic_int *found = nullptr);
