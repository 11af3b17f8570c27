// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderLock.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

FolderLock::FolderLock(const QString &path, Wait wait)
{
    // A child process that outlives this one must not keep the lock.
    m_file = ::open(QFile::encodeName(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (m_file < 0)
        return;
    int failure = 0;
    do {
        failure = flock(m_file, wait == Yes ? LOCK_EX : LOCK_EX | LOCK_NB);
    } while (failure != 0 && errno == EINTR);
    if (failure != 0) {
        ::close(m_file);
        m_file = -1;
    }
}

FolderLock::~FolderLock()
{
    if (m_file >= 0)
        ::close(m_file);
}
