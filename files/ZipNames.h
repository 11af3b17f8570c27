// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

/// Where an entry of a zip archive stands below the archive.
struct ZipName
{
    QString path; ///< with forward slashes, nothing before the first name nor behind the last
    bool isFolder = false;
    bool isRefused = false; ///< it leads out of the archive, or is none that a file can have
};

/// More of them below one another than any game has.
constexpr int MostZipFolders = 32;

/// `isUtf8` is what the entry says of itself. Without that a name is UTF-8 all the same where its bytes are
/// such a text, else Latin-1. Backslashes part folders, as the tools that write them mean it. Refused are
/// "..", what begins at a root, names with a colon, which may be of a drive, or a NUL, more than
/// MostZipFolders folders and 1024 bytes.
ZipName zipName(const QByteArray &bytes, bool isUtf8);
