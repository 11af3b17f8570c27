// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UvTexture.h"

#include "MaterialFiles.h"
#include "TextureImages.h"

UvTexture UvTexture::of(const QString &materialPath, const QString &gamePath, const QString &outputDir)
{
    MaterialFiles materials(gamePath, outputDir);
    UvTexture texture;
    texture.name = materials.find(materialPath).texture;
    if (texture.name == MaterialFiles::Blank)
        texture.name.clear();
    if (texture.name.isEmpty())
        return texture;
    for (const QString &path : materials.candidates(texture.name)) {
        texture.image = TextureImages::load(path);
        if (!texture.image.isNull())
            break;
    }
    return texture;
}
