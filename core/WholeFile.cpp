// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WholeFile.h"

#include "FileSystem.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

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
    if (const auto holders = FileSystem::holders(m_file.fileName()))
        writeBeside(*holders);
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
    const QString loss = FileSystem::flush(m_file);
    if (!loss.isEmpty())
        return fail(loss);
    return (!m_file.commit() && fail(m_file.errorString())) || (!m_held.isEmpty() && fail(m_held));
}

void WholeFile::writeBeside(const QStringList &holders)
{
    const QFileInfo parts(m_file.fileName());
    const QString suffix = parts.suffix().isEmpty() ? QString() : QLatin1Char('.') + parts.suffix();
    QString beside;
    for (int number = 1; beside.isEmpty() || QFileInfo::exists(beside); ++number)
        beside = QStringLiteral("%1/%2.new%3%4")
                     .arg(parts.path(), parts.completeBaseName(),
                          number == 1 ? QString() : QString::number(number), suffix);
    m_file.setFileName(beside);
    const QString kept = QDir::toNativeSeparators(beside);
    m_held = holders.isEmpty()
                 ? QCoreApplication::translate(
                       "WholeFile", "Another program holds it open, so it cannot be replaced. What "
                                    "was to be saved stands in '%1'.")
                       .arg(kept)
                 : QCoreApplication::translate("WholeFile",
                                               "%1 holds it open, so it cannot be replaced. What was to be "
                                               "saved stands in '%2'.")
                       .arg(holders.join(QStringLiteral(", ")), kept);
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
