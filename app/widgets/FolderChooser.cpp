// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderChooser.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

QString chooseFolder(QWidget *parent, const QString &title, const QString &startFolder)
{
    QString start = startFolder.isEmpty() ? QDir::homePath() : QDir::cleanPath(startFolder);
    while (!QFileInfo(start).isDir()) {
        const QString above = QFileInfo(start).path();
        if (above == start)
            break;
        start = above;
    }
    return QFileDialog::getExistingDirectory(parent, title, start, QFileDialog::ShowDirsOnly);
}

QString normalizedFolder(const QString &folder)
{
    if (folder.isEmpty())
        return folder; // cleaning would make it the current folder
    // A backslash is an ordinary character outside Windows, but one at the end of a folder is a habit brought
    // along.
    QString path = QDir::fromNativeSeparators(folder);
    while (path.size() > 1 && path.endsWith(QLatin1Char('\\')))
        path.chop(1);
    return QDir::cleanPath(path);
}
