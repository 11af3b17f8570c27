// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Files.h"

#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QSet>

/// Lets a watcher look at these files or the archives that hold them, at the folders that they stand in, and
/// at nothing else. What is not there is left out: its folder tells when it comes.
inline void watchFiles(QFileSystemWatcher &watcher, const QSet<QString> &files)
{
    QSet<QString> wanted;
    for (const QString &file : files) {
        const QString held = Files::heldBy(file);
        wanted.insert(held);
        wanted.insert(QFileInfo(held).absolutePath());
    }
    const QStringList watched = watcher.files() + watcher.directories();
    for (const QString &path : watched) {
        if (!wanted.remove(path))
            watcher.removePath(path);
    }
    for (const QString &path : qAsConst(wanted)) {
        if (QFileInfo::exists(path))
            watcher.addPath(path);
    }
}
