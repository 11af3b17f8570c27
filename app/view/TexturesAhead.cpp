// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TexturesAhead.h"

#include "DocumentKind.h"
#include "MaterialFiles.h"
#include "Settings.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TextureImages.h"

namespace {
QString lastOfKind(const QStringList &paths, DocumentType type)
{
    QString last;
    for (const QString &path : paths) {
        const DocumentKind *kind = documentKindOfFile(path);
        if (kind && kind->type == type)
            last = path;
    }
    return last;
}

template <typename Model>
QStringList materialsOf(const QString &path)
{
    Model model;
    QStringList materials;
    if (path.isEmpty() || model.read(path))
        return materials;
    for (const auto &surface : model.surfaces)
        materials.append(surface.materialPath);
    return materials;
}
} // namespace

// Without a thread to be had nothing is done, and the window decodes the textures.
TexturesAhead::TexturesAhead(const QStringList &paths)
    : m_done(std::async(std::launch::async | std::launch::deferred,
                        [this, skinned = lastOfKind(paths, DocumentType::SkinnedMesh),
                         rigid = lastOfKind(paths, DocumentType::StaticMesh),
                         gamePath = Settings::GamePath.value(), outputDir = Settings::OutputDir.value()] {
                            load(materialsOf<SkinnedMesh>(skinned) + materialsOf<StaticMesh>(rigid), gamePath,
                                 outputDir);
                        }))
{}

TexturesAhead::~TexturesAhead()
{
    m_stopped = true;
}

void TexturesAhead::load(const QStringList &materialPaths, const QString &gamePath,
                         const QString &outputDir) const
{
    MaterialFiles materials(gamePath, outputDir);
    qint64 bytes = 0;
    for (const QString &materialPath : materialPaths) {
        const QString texture = materials.find(materialPath).texture;
        if (texture.isEmpty() || texture == MaterialFiles::Blank)
            continue;
        for (const QString &path : materials.candidates(texture)) {
            // Beyond the room the next would push out the first.
            if (m_stopped || bytes > TextureImages::Room)
                return;
            const QImage image = TextureImages::load(path);
            bytes += image.sizeInBytes();
            if (!image.isNull())
                break;
        }
    }
}
