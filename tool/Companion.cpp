// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Companion.h"

#include "Validation.h"

#include <QDir>
#include <QFileInfo>

QString companionOf(const QString &file, const MaterialFolders &folders)
{
    const QFileInfo known(file);
    const bool isAnim = known.suffix().compare(QLatin1String("anim"), Qt::CaseInsensitive) == 0;
    const QString name =
        known.completeBaseName() + (isAnim ? QStringLiteral(".skinnedmesh") : QStringLiteral(".anim"));
    const QString here = isAnim ? QStringLiteral("anims") : QStringLiteral("models");
    const QString there = isAnim ? QStringLiteral("models") : QStringLiteral("anims");

    QStringList places{known.absolutePath()};
    // Everything below ".../models" has its place below ".../anims".
    QStringList parts = known.absolutePath().split(QLatin1Char('/'));
    const int root = parts.lastIndexOf(here);
    if (root >= 0) {
        parts[root] = there;
        places += parts.join(QLatin1Char('/'));
    }
    for (const QString &folder : {folders.gamePath, folders.outputDir}) {
        if (!folder.isEmpty())
            places += QDir(folder).filePath(there + QLatin1Char('/') + known.absoluteDir().dirName());
    }
    for (const QString &place : qAsConst(places)) {
        const QString path = QDir(place).filePath(name);
        if (QFileInfo(path).isFile())
            return path;
    }
    return {};
}
