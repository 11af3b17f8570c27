// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileSystem.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

namespace {
/// Whether the device lost what it had taken. Others of its failures say that it cannot be asked.
bool isLoss(int error)
{
    return error == EIO || error == ENOSPC || error == EDQUOT || error == EFBIG;
}
} // namespace

QString FileSystem::comparable(const QString &path)
{
    return path;
}

std::optional<FileSystem::FileState> FileSystem::stateOf(const QString &path)
{
    struct stat found
    {};
    if (stat(QFile::encodeName(path).constData(), &found) != 0 || !S_ISREG(found.st_mode))
        return {};
    return FileState{found.st_size, qint64(found.st_mtim.tv_sec) * 1000 + found.st_mtim.tv_nsec / 1000000};
}

bool FileSystem::isOwn(const QFileInfo &file)
{
    return file.ownerId() == geteuid();
}

bool FileSystem::isDevice(const QFileInfo &file)
{
    return file.exists() && !file.isFile() && !file.isDir();
}

QString FileSystem::flush(QFileDevice &file)
{
    return fsync(file.handle()) != 0 && isLoss(errno) ? qt_error_string() : QString();
}

std::optional<FileSystem::KeptBeside> FileSystem::keepBeside(QFileDevice &, const QString &)
{
    return {}; // another file takes the name, whoever holds the old one
}
