// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QFileInfo>

/// What tells two states of a file apart without reading it.
struct FileStamp
{
    qint64 size = -1;    ///< bytes; -1 when there is no file
    qint64 modified = 0; ///< milliseconds since 1970

    static FileStamp of(const QString &path)
    {
        const QFileInfo file(path);
        return file.isFile() ? FileStamp{file.size(), file.lastModified().toMSecsSinceEpoch()} : FileStamp();
    }
    bool exists() const { return size >= 0; }
    bool operator==(const FileStamp &other) const { return size == other.size && modified == other.modified; }
    bool operator!=(const FileStamp &other) const { return !(*this == other); }
};
