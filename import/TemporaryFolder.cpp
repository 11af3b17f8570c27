// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TemporaryFolder.h"

#include "FolderLock.h"

#include <QDateTime>
#include <QDir>

#include <unistd.h>

namespace {
const QString Prefix = QStringLiteral("korvane-import-");
/// A folder that has just been made is not locked yet.
constexpr qint64 YoungestAbandoned = 60; // seconds

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

void TemporaryFolder::removeAbandoned()
{
    // The system's folder is everybody's.
    const QFileInfoList folders =
        QDir(QDir::tempPath())
            .entryInfoList({Prefix + QLatin1Char('*')}, QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
    for (const QFileInfo &folder : folders) {
        if (folder.ownerId() != geteuid() ||
            folder.lastModified().secsTo(QDateTime::currentDateTime()) < YoungestAbandoned)
            continue;
        const FolderLock lock(lockOf(folder.filePath()));
        if (lock.isHeld())
            QDir(folder.filePath()).removeRecursively();
    }
}
