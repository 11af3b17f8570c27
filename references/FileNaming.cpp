// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileNaming.h"

#include "PictureFile.h"

std::optional<IndexedType> indexedTypeOf(const QString &path)
{
    static const struct
    {
        QLatin1String suffix;
        IndexedType type;
    } suffixes[] = {{QLatin1String(".skinnedmesh"), IndexedType::SkinnedMesh},
                    {QLatin1String(".anim"), IndexedType::Anim},
                    {QLatin1String(".staticmesh"), IndexedType::StaticMesh},
                    {QLatin1String(".kmat"), IndexedType::Materials}};
    for (const auto &each : suffixes) {
        if (path.endsWith(each.suffix, Qt::CaseInsensitive))
            return each.type;
    }
    return isPictureName(path) ? std::optional(IndexedType::Picture) : std::nullopt;
}

QString FileNaming::materialPath(int material) const
{
    return relative.left(relative.lastIndexOf(QLatin1Char('.'))) + QLatin1Char('/') +
           materials.value(material);
}

std::vector<RecordRef> FileNaming::placesOf(const NamedInFile &named) const
{
    const auto first = places.begin() + named.firstPlace;
    return {first, first + named.placeCount};
}
