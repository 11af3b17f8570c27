// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// What a walk comes by: a file, or a folder before anything in it.
struct FolderEntry
{
    QString path;
    /// The number of the folder that it stands in. Folders are numbered as they are come by, from 1; what is
    /// walked through is 0.
    int parent;
    bool isFolder;
};

/// Goes through a folder, all levels down, in the file system's order; hidden entries are left out. Links to
/// folders are followed after all else, each to a folder that was not come by before, and none to a folder
/// around the walked one: a link may lead back up. Ends when `visit` returns false.
void walkFolder(const QString &folder, const std::function<bool(const FolderEntry &)> &visit);

/// Why a walk passes over something in a folder that is not hidden: the folder cannot be read, or the name of
/// a file is no text. Empty where it does not, and for what is no folder on the disk.
[[nodiscard]] QString reasonOfGaps(const QString &folder);
