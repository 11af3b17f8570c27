// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WholeFile.h"

#include "FileSystem.h"
#include "Log.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {
/// What stands in the way of a path and is no folder; empty when nothing does.
QString fileInTheWay(const QString &path)
{
    QString above = QFileInfo(path).absolutePath();
    while (!QFileInfo::exists(above) && above != QFileInfo(above).path())
        above = QFileInfo(above).path();
    return QFileInfo(above).isFile() ? above : QString();
}
} // namespace

WholeFile::WholeFile(const QString &path)
    : m_file(path)
{}

bool WholeFile::open()
{
    if (m_file.isOpen() || !m_reason.isEmpty())
        return !m_reason.isEmpty();
    if (FileSystem::isDevice(QFileInfo(m_file.fileName())))
        return fail(QCoreApplication::translate(
            "WholeFile", "This is a device or a pipe, which would be replaced by a file."));
    // Unbuffered: commit() of the toolkit does not notice a failure to write out what is still in a buffer.
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return false;
    const QString inTheWay = fileInTheWay(m_file.fileName());
    return fail(inTheWay.isEmpty() ? m_file.errorString()
                                   : QCoreApplication::translate(
                                         "WholeFile", "'%1' is a file and no folder. Nothing is written into "
                                                      "archives.")
                                         .arg(QDir::toNativeSeparators(inTheWay)));
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

bool WholeFile::seek(qint64 at)
{
    return open() || (!m_file.seek(at) && fail(m_file.errorString()));
}

bool WholeFile::commit()
{
    if (open())
        return true;
    // Some file systems take everything and find out later that there is no room.
    const QString loss = FileSystem::flush(m_file);
    if (!loss.isEmpty())
        return fail(loss);
    if (const auto kept = FileSystem::keepBeside(m_file, m_file.fileName()))
        return failHeld(kept->holders, kept->path);
    return !m_file.commit() && fail(m_file.errorString());
}

bool WholeFile::failHeld(const QStringList &holders, const QString &beside)
{
    const QString path = QDir::toNativeSeparators(beside);
    const QString reason =
        holders.isEmpty()
            ? QCoreApplication::translate("WholeFile",
                                          "Another program holds it open, so it cannot be replaced. "
                                          "What was to be saved stands in '%1'.")
                  .arg(path)
            : QCoreApplication::translate("WholeFile",
                                          "It is held open by %1 and cannot be replaced. What was "
                                          "to be saved stands in '%2'.")
                  .arg(holders.join(QStringLiteral(", ")), path);
    // Not everybody who writes files has a place for the reason.
    Log::warning(QStringLiteral("'%1': %2").arg(QDir::toNativeSeparators(m_file.fileName()), reason));
    m_file.cancelWriting();
    return fail(reason);
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
