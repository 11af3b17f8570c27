// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <ctime>

namespace SpecialFiles {
/// What the system says of a file whose folder is not there.
inline QString noFolder()
{
    return qt_error_string(ENOENT);
}

/// Lines as a file that is written as text has them.
inline QByteArray asText(const QByteArray &lines)
{
    return lines;
}

/// Whether a file that a program holds open can be replaced.
constexpr bool HeldOnesAreReplaced = true;

/// The path of a pipe that was made there, at whose other end nobody is.
inline QString pipe(const QString &path)
{
    if (mkfifo(QFile::encodeName(path).constData(), 0600) != 0)
        qFatal("no pipe");
    return path;
}

/// Makes a symbolic link, where a user may.
inline bool link(const QString &target, const QString &path)
{
    if (!QFile::link(target, path))
        qFatal("no link");
    return true;
}

/// Calls `look` while a folder has a file whose name is no text, where there can be one.
template <typename Look>
void withNameWithoutText(const QString &folder, const Look &look)
{
    const QByteArray path = QFile::encodeName(folder) + "/a\xff.png";
    if (close(open(path.constData(), O_CREAT | O_WRONLY, 0600)) != 0)
        qFatal("no file");
    look();
    unlink(path.constData()); // the toolkit would not find it
}

/// Says of a folder that it was changed `seconds` ago.
inline bool makeOld(const QString &folder, int seconds)
{
    const timespec then{time(nullptr) - seconds, 0};
    const timespec times[2] = {then, then};
    return utimensat(AT_FDCWD, QFile::encodeName(folder).constData(), times, 0) == 0;
}
} // namespace SpecialFiles
