// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What tells two states of a file apart without reading it.
struct FileStamp
{
    qint64 size = -1; ///< bytes; -1 when there is no file
    qint64 modified =
        0; ///< milliseconds since 1970; in an archive the checksum, which needs no reading there

    /// Of a file in a folder or in an archive.
    static FileStamp of(const QString &path);
    bool exists() const { return size >= 0; }
    bool operator==(const FileStamp &other) const { return size == other.size && modified == other.modified; }
    bool operator!=(const FileStamp &other) const { return !(*this == other); }
};
