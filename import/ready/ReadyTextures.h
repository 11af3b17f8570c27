// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneReading.h"

#include <QHash>
#include <QSet>

class QImage;

/// Makes .png files of the textures of materials: those that a model has in itself, pictures of any kind that
/// the toolkit reads, and small plain ones for materials that have a color only.
class ReadyTextures
{
public:
    /// What is no .png file of a usable name is written into `folder`.
    ReadyTextures(const SceneSource &source, const QString &folder);

    /// The file for a material, whose name goes into names of files; empty, after a warning if one is
    /// missing, when it is white.
    QString fileFor(const aiMaterial &material, const QString &name);

private:
    QString fileOf(const aiString &stored, const QString &name);
    QString writeEmbedded(const aiTexture &texture, const QString &name);
    QString swatch(const aiMaterial &material, const QString &name);
    QString write(const QImage &image, const QString &base);
    void tellUnread(const QString &material, const QString &texture, const QSize &size) const;

    const SceneSource &m_source;
    QString m_folder;
    QString m_model; ///< its base name, as far as files of textures can have it
    QHash<QString, QString> m_known;
    QSet<QString> m_names; ///< of files in the folder, in small letters
};

/// Whether a texture gives the material its color; `stored` is what the file calls it.
[[nodiscard]] bool hasColorTexture(const aiMaterial &material, aiString &stored);
/// `name` in Latin-1 without blanks and signs that material files or systems give a meaning.
QString plainName(const QString &name);
