// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ArchiveWatch.h"

#include "Files.h"
#include "WatchedPaths.h"

#include <QGuiApplication>

ArchiveWatch::ArchiveWatch(QObject *parent)
    : QObject(parent)
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(RestMs);
    connect(&m_rest, &QTimer::timeout, this, &ArchiveWatch::look);
    const auto lookSoon = [this] {
        if (!m_archive.isEmpty())
            m_rest.start();
    };
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, lookSoon);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, lookSoon);
    // Not every file system tells of changes.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, lookSoon);
}

void ArchiveWatch::follow(const QString &folder)
{
    const QString held = Files::heldBy(folder);
    m_archive = Files::isArchiveName(held) ? held : QString();
    m_stamp = m_archive.isEmpty() ? FileStamp() : FileStamp::of(m_archive);
    watchFiles(m_watcher, m_archive.isEmpty() ? QSet<QString>() : QSet<QString>{m_archive});
}

void ArchiveWatch::look()
{
    const FileStamp before = m_stamp;
    follow(m_archive);
    if (m_stamp != before)
        emit replaced();
}
