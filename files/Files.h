// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FolderWalk.h"

#include <QIODevice>
#include <QStringList>

#include <memory>

/// The files of game and mod, whether they stand in a folder or in a zip archive. A path leads into an
/// archive as it leads into a folder: ".../game.kpf/models/knight.skinnedmesh", where game.kpf is a file.
/// Archives are files named .kpf or .zip. Their directories are read once, and again when they are replaced;
/// names in them have any case. Nothing here writes. All functions may be called by any thread.
namespace Files {
/// Whether a path is called as archives are, there or not.
bool isArchiveName(const QString &path);
/// The archive that a path leads into, or is; empty where it leads into none.
QString archiveOf(const QString &path);
/// The file on the disk that holds what a path leads to, or would: the path itself, or its archive.
QString heldBy(const QString &path);
/// The folder on the disk where a dialog may begin: the one given, or that in which its archive stands.
QString folderOnDisk(const QString &folder);
/// What a path leads to below its archive; empty for the archive itself and outside of any.
QString placeInArchive(const QString &path);
/// Why an archive cannot be read, which takes reading its directory; empty when it can, or is none.
QString archiveProblem(const QString &archive);
/// Whether the directory of the archive that a path leads into has yet to be read, so that asking for what is
/// in it takes its time.
bool isUnread(const QString &path);

/// A file that can be read, or seems so: neither folder nor pipe.
bool isFile(const QString &path);
/// A folder, an archive that can be read, or a folder in one.
bool isFolder(const QString &path);
/// A path in the case in which folders and archive have it, where that is another one; else the path, also
/// where there is nothing of that name. The first `from` characters of what is on the disk stay.
QString trueCase(const QString &path, int from = 0);

/// A device that is open, with random access; null on failure. `reason`, if given, then says why, and is
/// empty where there is no such file. What comes of an archive is never buffered twice.
std::unique_ptr<QIODevice> open(const QString &path, QString *reason = nullptr,
                                QIODevice::OpenMode mode = QIODevice::ReadOnly);
/// All bytes of a file, none where it has more than `most` or cannot be read.
QByteArray read(const QString &path, qint64 most);

enum class Kind { File, Folder };
/// The names of the files or folders in a folder, ascending; hidden ones are left out.
QStringList names(const QString &folder, Kind kind);
/// Goes through a folder as walkFolder() does, or through an archive or a folder in it.
void walk(const QString &folder, const std::function<bool(const FolderEntry &)> &visit);
} // namespace Files
