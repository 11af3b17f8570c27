// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WholeFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <cerrno>
#include <unistd.h>

namespace {
/// Whether the device lost what it had taken. Others of its failures say that it cannot be asked.
bool isLoss(int error)
{
    return error == EIO || error == ENOSPC || error == EDQUOT || error == EFBIG;
}
} // namespace

WholeFile::WholeFile(const QString &path)
    : m_file(path)
{}

bool WholeFile::open()
{
    if (m_file.isOpen() || !m_reason.isEmpty())
        return !m_reason.isEmpty();
    const QFileInfo there(m_file.fileName());
    if (there.exists() && !there.isFile() && !there.isDir())
        return fail(QCoreApplication::translate(
            "WholeFile", "This is a device or a pipe, which would be replaced by a file."));
    // Unbuffered: commit() of the toolkit does not notice a failure to write out what is still in a buffer.
    return !m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && fail(m_file.errorString());
}

bool WholeFile::write(const char *bytes, qint64 size)
{
    if (open())
        return true;
    // A disk that fills up takes a part first, and says why with the next.
    while (size > 0) {
        const qint64 written = m_file.write(bytes, size);
        if (written <= 0)
            return fail(m_file.errorString());
        bytes += written;
        size -= written;
    }
    return false;
}

bool WholeFile::commit()
{
    if (open())
        return true;
    // Some file systems take everything and find out later that there is no room.
    if (fsync(m_file.handle()) != 0 && isLoss(errno))
        return fail(qt_error_string());
    return !m_file.commit() && fail(m_file.errorString());
}

bool WholeFile::fail(const QString &reason)
{
    m_reason = reason;
    return true;
}

QString writeWholeFile(const QString &path, const QByteArray &bytes)
{
    WholeFile file(path);
    if (!file.write(bytes.constData(), bytes.size()) && !file.commit())
        return {};
    return file.reason();
}
