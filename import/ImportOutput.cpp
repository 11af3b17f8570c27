// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportOutput.h"

#include "FileSystem.h"
#include "Files.h"
#include "WholeFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QSet>

Copied copyWhole(const QString &source, const QString &target)
{
    const std::unique_ptr<QIODevice> from = Files::open(source);
    const QByteArray bytes = from ? from->readAll() : QByteArray();
    if (!from || bytes.size() < from->size())
        return Copied::NotRead;
    return writeWholeFile(target, bytes).isEmpty() ? Copied::Yes : Copied::NotWritten;
}

bool copyTexture(const QString &source, const QString &target, ImportMessages &messages)
{
    if (isOneFile(source, target))
        return false;
    const Copied copied = copyWhole(source, target);
    if (copied == Copied::Yes)
        return false;
    messages.addWarning(
        copied == Copied::NotWritten && QFileInfo::exists(target)
            ? QCoreApplication::translate("Import", "Could not overwrite texture '%1'").arg(target)
            : QCoreApplication::translate("Import", "Could not copy texture from '%1' to '%2'")
                  .arg(source, target));
    return true;
}

std::vector<FileCopy> distinctCopies(const std::vector<FileCopy> &textures, ImportMessages &messages)
{
    std::vector<FileCopy> copies;
    QSet<QString> targets;
    for (const FileCopy &texture : textures) {
        const QString target = FileSystem::comparable(texture.target);
        if (targets.contains(target))
            continue;
        targets.insert(target);
        copies.push_back(texture);
        const QString name = QFileInfo(texture.target).fileName();
        if (name != QFileInfo(texture.source).fileName())
            messages.addInfo(QCoreApplication::translate("Import", "'%1' is named '%2' in the new place")
                                 .arg(texture.source, name));
    }
    return copies;
}

QString copyTextures(const std::vector<FileCopy> &textures, ImportMessages &messages)
{
    const bool any = !textures.empty();
    bool failed = false;
    for (const FileCopy &texture : distinctCopies(textures, messages))
        failed = copyTexture(texture.source, texture.target, messages) || failed;
    return !any     ? QCoreApplication::translate("Import", "Model had no textures to copy\n")
           : failed ? QCoreApplication::translate("Import", "Failed on copying textures\n")
                    : QCoreApplication::translate("Import", "Successfully copied textures\n");
}

MaterialTable materialsOf(const QStringList &names, const QStringList &textures, const QString &textureFolder)
{
    const QString folder = textureFolder.isEmpty() ? QString() : textureFolder + QLatin1Char('/');
    MaterialTable table;
    auto texture = textures.begin();
    for (const QString &name : names) {
        const bool isWhite = name.endsWith(QLatin1String("_white")) || texture == textures.end();
        table[name] = isWhite ? QStringLiteral("_white") : folder + *texture++;
    }
    return table;
}

QString createKMat(const QString &path, const MaterialTable &materials, bool keepsOthers,
                   ImportMessages &messages)
{
    for (const auto &[name, texture] : materials) {
        // Values of a material file end at a blank.
        if (texture.contains(QLatin1Char(' ')))
            messages.addWarning(
                QCoreApplication::translate(
                    "Import", "Material '%1': the texture '%2' will not be found, for the blank in its path")
                    .arg(name, texture));
    }
    const QString error = keepsOthers ? mergeKMat(path, materials) : writeKMat(path, materials);
    if (error.isEmpty())
        return QCoreApplication::translate("Import", "Successfully created .kmat file\n");
    messages.addWarning(error);
    return QCoreApplication::translate("Import", "Failed on creating .kmat file\n");
}

QString pathInside(const QString &folder, const QString &path)
{
    const QDir root(QDir::cleanPath(QDir::fromNativeSeparators(folder)));
    const QString wanted = QDir::fromNativeSeparators(path);
    const QString relative =
        QDir::cleanPath(folder.isEmpty() ? wanted : root.relativeFilePath(root.absoluteFilePath(wanted)));
    if (relative == QLatin1String("..") || relative.startsWith(QLatin1String("../")) ||
        QDir::isAbsolutePath(relative))
        return {};
    return relative == QLatin1String(".") ? QStringLiteral("") : relative;
}
