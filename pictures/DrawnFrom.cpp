// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "DrawnFrom.h"

#include "BinaryFileReader.h"
#include "FileSearch.h"
#include "FileStamp.h"
#include "MaterialFiles.h"
#include "PosedModel.h"
#include "Validation.h"

#include <QCryptographicHash>
#include <QFileInfo>

namespace {
template <typename Model>
QStringList materialsOf(const Model &mesh)
{
    QStringList materials;
    for (const auto &surface : mesh.surfaces)
        materials += surface.materialPath;
    materials.removeDuplicates();
    return materials;
}
} // namespace

QStringList DrawnFrom::names(const PosedModel &model, const MaterialFolders &folders,
                             const ReadProgress &progress)
{
    MaterialFiles files(folders.gamePath, folders.outputDir);
    QStringList names;
    for (const QString &material :
         model.rigid() ? materialsOf(*model.rigid()) : materialsOf(*model.skinned())) {
        if (progress.isCancelled)
            break;
        names += MaterialFiles::fileOf(material);
        const QString texture = files.find(material).texture;
        if (!texture.isEmpty() && texture != MaterialFiles::Blank)
            names += texture;
    }
    names.removeDuplicates();
    return names;
}

QString DrawnFrom::state(const QStringList &names, const QString &companion, const MaterialFolders &folders)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    // No text holds the byte that ends it, so no two lists look alike.
    const auto add = [&hash](const QString &text) { hash.addData(text.toUtf8() + '\0'); };
    const auto addFile = [&add](const QString &path) {
        const FileStamp stamp = FileStamp::of(path);
        add(path);
        add(QString::number(stamp.size));
        add(QString::number(stamp.modified));
    };
    add(folders.gamePath);
    add(folders.outputDir);
    addFile(companion);
    const FileSearch search(folders.gamePath, folders.outputDir);
    for (const QString &name : names) {
        for (const QString &path : search.candidates(name))
            addFile(path);
    }
    return QString::fromLatin1(hash.result().toHex());
}
