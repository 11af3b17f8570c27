// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TextureSearch.h"

#include "PictureFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {
/// What that name, or one that other systems do not tell from it, stands for in the folder; empty without
/// one.
QString entryNamed(const QString &name, const QDir &folder)
{
    if (QFileInfo::exists(folder.filePath(name)))
        return name;
    const QStringList names = folder.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString &each : names) {
        if (each.compare(name, Qt::CaseInsensitive) == 0)
            return each;
    }
    return {};
}

/// That file, or one whose name and folder's name other systems do not tell from it.
QString existing(const QString &path)
{
    if (QFileInfo(path).isFile())
        return path;
    const QFileInfo file(path);
    if (file.fileName().isEmpty() || file.fileName().contains(QLatin1Char('*')))
        return {};
    QDir folder = file.dir();
    if (!folder.exists()) {
        const QFileInfo missing(folder.path());
        const QString name = entryNamed(missing.fileName(), missing.dir());
        if (name.isEmpty())
            return {};
        folder.setPath(missing.dir().filePath(name));
    }
    const QString name = entryNamed(file.fileName(), folder);
    const QString found = folder.filePath(name);
    return !name.isEmpty() && QFileInfo(found).isFile() ? found : QString();
}

/// The same as a link's name: "my%20wall.png" is "my wall.png".
QString decoded(const QString &name)
{
    return QString::fromUtf8(QByteArray::fromPercentEncoding(name.toUtf8()));
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
    const QString textures = QStringLiteral("textures/");
    const QStringList places{named,          bare,          textures + bare,
                             decoded(named), decoded(bare), textures + decoded(bare)};
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

QString foundTexture(const QString &modelPath, const QString &stored, TexturesElsewhere &elsewhere)
{
    const auto told = elsewhere.files.constFind(stored);
    if (told != elsewhere.files.constEnd())
        return *told;
    const QString found = foundTexture(modelPath, stored);
    if (found.isEmpty() || !QFile(found).open(QIODevice::ReadOnly))
        elsewhere.wanted += stored;
    return found;
}

QHash<QString, QString> picturesNamed(const QString &modelPath, const QStringList &names)
{
    QHash<QString, QString> pictures;
    for (const QString &name : names.mid(0, MostTextureNames)) {
        const QString found = foundTexture(modelPath, name);
        if (!found.isEmpty() && isPicture(found))
            pictures.insert(name, found);
    }
    return pictures;
}
