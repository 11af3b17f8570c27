// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelFile.h"

#include "Files.h"

#include <QDirIterator>

QStringList filesBelow(const QString &path, bool (*wanted)(const QString &path))
{
    if (!Files::isFolder(path))
        return {path};
    QStringList files;
    if (!Files::archiveOf(path).isEmpty()) {
        Files::walk(path, [&](const FolderEntry &entry) {
            if (!entry.isFolder && wanted(entry.path))
                files += entry.path;
            return true;
        });
        files.sort();
        return files;
    }
    QDirIterator walk(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString file = walk.next();
        if (wanted(file))
            files += file;
    }
    files.sort();
    return files;
}
