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
template <typename Model>
void load(const QString &path, MaterialFiles &materials)
{
    Model model;
    if (model.read(path))
        return;
    for (const auto &surface : model.surfaces) {
        const QString texture = materials.find(surface.materialPath).texture;
        if (texture.isEmpty() || texture == MaterialFiles::Blank)
            continue;
        for (const QString &candidate : materials.candidates(texture)) {
            if (!TextureImages::load(candidate).isNull())
                break;
        }
    }
}
} // namespace

std::future<void> loadTexturesAhead(const QStringList &paths)
{
    return std::async(std::launch::async, [paths, gamePath = Settings::GamePath.value(),
                                           outputDir = Settings::OutputDir.value()] {
        MaterialFiles materials(gamePath, outputDir);
        for (const QString &path : paths) {
            const DocumentKind *kind = documentKindOfFile(path);
            if (kind && kind->type == DocumentType::SkinnedMesh)
                load<SkinnedMesh>(path, materials);
            else if (kind && kind->type == DocumentType::StaticMesh)
                load<StaticMesh>(path, materials);
        }
    });
}
