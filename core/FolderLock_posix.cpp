// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

FolderLock::FolderLock(const QString &path, Wait wait)
    : m_path(path)
{
    // A child process that outlives this one must not keep the lock.
    const int file = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0)
        return;
    int failure = 0;
    do {
        failure = flock(file, wait == Yes ? LOCK_EX : LOCK_EX | LOCK_NB);
    } while (failure != 0 && errno == EINTR);
    if (failure != 0)
        ::close(file);
    else
        m_file = file;
}

FolderLock::~FolderLock()
{
    if (isHeld())
        ::close(int(m_file));
}

void FolderLock::removeFile()
{
    if (!isHeld())
        return;
    QFile::remove(m_path);
    ::close(int(m_file));
    m_file = NoFile;
}
