// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TemporaryFolder.h"

#include "FileSystem.h"
#include "FolderLock.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>

namespace {
const QString Prefix = QStringLiteral("korvane-import-");
/// A folder that has just been made is not locked yet.
constexpr qint64 YoungestAbandoned = 60; // seconds
constexpr int MostFiles = 4096;

QString lockOf(const QString &folder)
{
    return folder + QStringLiteral("/lock");
}
} // namespace

TemporaryFolder::TemporaryFolder()
    : m_folder(QDir::tempPath() + QLatin1Char('/') + Prefix + QStringLiteral("XXXXXX"))
{
    if (m_folder.isValid())
        m_lock = std::make_unique<FolderLock>(lockOf(m_folder.path()));
}

TemporaryFolder::~TemporaryFolder() = default;

bool TemporaryFolder::isValid() const
{
    return m_lock && m_lock->isHeld();
}

bool TemporaryFolder::holdsMoreThan(qint64 bytes) const
{
    int files = 0;
    QDirIterator walk(path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (bytes >= 0 && files <= MostFiles && walk.hasNext()) {
        walk.next();
        ++files;
        bytes -= walk.fileInfo().size();
    }
    return bytes < 0 || files > MostFiles;
}

void TemporaryFolder::removeAbandoned()
{
    // The system's folder is everybody's.
    const QFileInfoList folders =
        QDir(QDir::tempPath())
            .entryInfoList({Prefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        if (!FileSystem::isOwn(folder) ||
            folder.lastModified().secsTo(QDateTime::currentDateTime()) < YoungestAbandoned)
            continue;
        // Not while it is held: not every system removes a folder in which a file is open.
        if (FolderLock(lockOf(folder.filePath())).isHeld())
            QDir(folder.filePath()).removeRecursively();
    }
}
