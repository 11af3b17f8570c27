// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureSearch.h"

#include <QDir>
#include <QFileInfo>

namespace {
/// That file, or one beside it that other systems do not tell from it.
QString existing(const QString &path)
{
    if (QFileInfo(path).isFile())
        return path;
    const QFileInfo file(path);
    const QDir folder = file.dir();
    if (file.fileName().isEmpty() || file.fileName().contains(QLatin1Char('*')) || !folder.exists())
        return {};
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names) {
        if (name.compare(file.fileName(), Qt::CaseInsensitive) == 0)
            return folder.filePath(name);
    }
    return {};
}
} // namespace

QString foundTexture(const QString &modelPath, const QString &stored)
{
    // Models from other systems part folders by backslashes.
    QString named = stored.trimmed();
    named.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (named.isEmpty() || named.endsWith(QLatin1Char('/')))
        return {};
    const QDir beside = QFileInfo(modelPath).dir();
    const QString bare = named.section(QLatin1Char('/'), -1);
    const QStringList places{named, bare, QStringLiteral("textures/") + bare};
    for (const QString &place : places) {
        const QFileInfo file(beside, place);
        const QString asPng =
            file.path() + QLatin1Char('/') + file.completeBaseName() + QStringLiteral(".png");
        for (const QString &path : {file.filePath(), asPng}) {
            const QString found = existing(path);
            if (!found.isEmpty())
                return QDir::cleanPath(found);
        }
    }
    return {};
}
