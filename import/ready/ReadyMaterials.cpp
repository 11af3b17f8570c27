// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadyMaterials.h"

#include "ImportSteps.h"
#include "ReadyTextures.h"

#include <assimp/material.h>

namespace {
const QString WhiteMark = QStringLiteral("_white");
} // namespace

std::vector<ReadyMaterial> readyMaterials(const SceneSource &source, const std::vector<bool> &used,
                                          const QString &folder)
{
    ReadyTextures textures(source, folder);
    std::vector<ReadyMaterial> materials;
    QSet<QString> names; // in small letters: not every reader tells them apart
    for (unsigned i = 0; i < used.size(); ++i) {
        if (!used[i])
            continue;
        const aiMaterial &material = *source.scene->mMaterials[i];
        aiString stored;
        material.Get(AI_MATKEY_NAME, stored);
        const QString own = plainName(text(stored).trimmed());
        const QString base = own.isEmpty() ? QStringLiteral("surf_%1").arg(materials.size()) : own;
        const QString texture = textures.fileFor(material, base);
        const bool isWhite = texture.isEmpty();
        // The end of the name tells whoever writes the material file that there is no texture.
        const auto nameWith = [&](const QString &number) {
            if (isWhite)
                return base + number + (base.endsWith(WhiteMark) && number.isEmpty() ? QString() : WhiteMark);
            return base + (base.endsWith(WhiteMark) && number.isEmpty() ? QStringLiteral("_1") : number);
        };
        QString name = nameWith({});
        for (int number = 2; names.contains(name.toLower()); ++number)
            name = nameWith(QLatin1Char('_') + QString::number(number));
        names.insert(name.toLower());
        if (!isWhite)
            source.textures.append(texture);
        materials.push_back({i, materialFolder(source.kmatPath) + QLatin1Char('/') + name});
    }
    return materials;
}
