// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialPlace.h"

#include "Files.h"
#include "MaterialFiles.h"

#include <QFileInfo>

MaterialPlace placeOfMaterial(const QString &materialPath, const QString &gamePath, const QString &outputDir)
{
    using Kind = MaterialPlace::Kind;
    MaterialPlace place;
    place.relative = QFileInfo(materialPath).path() + QStringLiteral(".kmat");
    MaterialFiles files(gamePath, outputDir);
    const MaterialFiles::Lookup found = files.find(materialPath);
    for (const QString &path : files.candidates(place.relative)) {
        if (!place.file.isEmpty() || !Files::isFile(path))
            continue;
        place.file = path;
        place.isGame = !gamePath.isEmpty() && path == files.candidates(place.relative).first();
    }
    if (found.isThere)
        place.kind = Kind::Found;
    else if (materialPath.isEmpty())
        place.kind = Kind::NoName;
    else if (found.texture == MaterialFiles::Blank)
        place.kind = Kind::White;
    else if (gamePath.isEmpty() && outputDir.isEmpty())
        place.kind = Kind::NoFolders;
    else if (place.file.isEmpty())
        place.kind = Kind::Nowhere;
    else if (!found.error.isEmpty())
        place.kind = Kind::Unreadable;
    else
        place.kind = Kind::NoMaterial;
    place.reason = found.error;
    return place;
}
