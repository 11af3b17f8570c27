// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportedFiles.h"

#include "ImportOutput.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>

namespace {
Q_LOGGING_CATEGORY(importedFilesLog, "korvane.import", QtInfoMsg)

/// Of a file's content; nothing of one that cannot be read.
QByteArray hashOfFile(const QString &path)
{
    QFile file(path);
    QCryptographicHash hash(QCryptographicHash::Sha1);
    return file.open(QIODevice::ReadOnly) && hash.addData(&file) ? hash.result() : QByteArray();
}
} // namespace

template <typename Mesh>
ImportedFiles::ImportedFiles(const ImportChoices &choices, const Mesh &mesh, const QStringList &textures)
    : m_choices(choices)
{
    for (const auto &surface : mesh.surfaces)
        m_materialNames += QFileInfo(surface.materialPath).fileName();
    const QString folder = choices.modFolder + QLatin1Char('/') + choices.textureFolder;
    if (choices.copyTextures)
        m_textures = copiesInto(folder, textures);
    else {
        // Who copies none has them there, by their own names.
        for (const QString &texture : textures)
            m_textures.push_back({texture, folder + QLatin1Char('/') + QFileInfo(texture).fileName()});
    }
}

template ImportedFiles::ImportedFiles(const ImportChoices &, const SkinnedMesh &, const QStringList &);
template ImportedFiles::ImportedFiles(const ImportChoices &, const StaticMesh &, const QStringList &);

MaterialTable ImportedFiles::materials() const
{
    QStringList names;
    for (const FileCopy &texture : m_textures)
        names += QFileInfo(texture.target).fileName();
    return materialsOf(m_materialNames, names, m_choices.textureFolder);
}

QStringList ImportedFiles::replaced() const
{
    QStringList files;
    if (m_choices.createKMat && wouldReplace(kmatBytes(materials()), kmatFile()))
        files += kmatFile();
    if (m_choices.copyTextures)
        files += replacedTargets(m_textures);
    return files;
}

bool ImportedFiles::replaceOnly(const WrittenFiles &written) const
{
    const QStringList files = replaced();
    return std::all_of(files.begin(), files.end(), [&written](const QString &file) {
        const QByteArray hash = written.hashes.value(file);
        return !hash.isEmpty() && hash == hashOfFile(file);
    });
}

WrittenFiles ImportedFiles::written() const
{
    WrittenFiles written;
    if (m_choices.createKMat)
        written.hashes.insert(kmatFile(), hashOfFile(kmatFile()));
    for (const FileCopy &texture : m_textures) {
        if (m_choices.copyTextures)
            written.hashes.insert(texture.target, hashOfFile(texture.target));
    }
    written.keptOthers = m_keepsOthers;
    return written;
}

QStringList ImportedFiles::otherMaterials() const
{
    return m_choices.createKMat ? ::otherMaterials(kmatFile(), materials()) : QStringList();
}

void ImportedFiles::useFreeNames()
{
    // The textures first: the materials name them.
    if (m_choices.copyTextures)
        useFreeTargets(m_textures);
    if (m_choices.createKMat && wouldReplace(kmatBytes(materials()), kmatFile()))
        m_choices.kmatPath = QDir(m_choices.modFolder).relativeFilePath(freePath(kmatFile()));
}

template <typename Mesh>
void ImportedFiles::nameMaterials(Mesh &mesh) const
{
    for (auto &surface : mesh.surfaces)
        surface.materialPath = materialFolder(m_choices.kmatPath) + QLatin1Char('/') +
                               QFileInfo(surface.materialPath).fileName();
}

template void ImportedFiles::nameMaterials(SkinnedMesh &) const;
template void ImportedFiles::nameMaterials(StaticMesh &) const;

QString ImportedFiles::write(ImportMessages &messages) const
{
    QString outcome;
    if (m_choices.copyTextures)
        outcome += copyTextures(m_textures, messages);
    if (m_choices.createKMat) {
        qCDebug(importedFilesLog, "[Write to .kmat] %s", qUtf8Printable(kmatFile()));
        outcome += createKMat(kmatFile(), materials(), m_keepsOthers, messages);
    }
    return outcome;
}
