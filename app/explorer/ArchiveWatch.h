// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"

#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>

/// Tells when the archive that a folder leads into was replaced on the disk.
class ArchiveWatch : public QObject
{
    Q_OBJECT

public:
    /// From the last sign of a change on: an archive is written for a while.
    static constexpr int RestMs = 500;

    explicit ArchiveWatch(QObject *parent = nullptr);

    /// Looks at the archive of this folder, and at no other. A folder in none is not looked at.
    void follow(const QString &folder);

signals:
    void replaced();

private:
    void look();

    QString m_archive;
    FileStamp m_stamp;
    QFileSystemWatcher m_watcher;
    QTimer m_rest;
};
