// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>

#include <ctime>

namespace SpecialFiles {
/// The path of a pipe that was made there, at whose other end nobody is.
inline QString pipe(const QString &path)
{
    if (mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
        qFatal("no pipe");
    return path;
}

/// Says of a folder that it was changed `seconds` ago.
inline bool makeOld(const QString &folder, int seconds)
{
    const timespec then{time(nullptr) - seconds, 0};
    const timespec times[2] = {then, then};
    return utimensat(AT_FDCWD, QFile::encodeName(folder).constData(), times, 0) == 0;
}
} // namespace SpecialFiles
