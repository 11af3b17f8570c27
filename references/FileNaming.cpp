// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileNaming.h"

std::optional<IndexedType> indexedTypeOf(const QString &path)
{
    static const struct
    {
        QLatin1String suffix;
        IndexedType type;
    } suffixes[] = {{QLatin1String(".skinnedmesh"), IndexedType::SkinnedMesh},
                    {QLatin1String(".anim"), IndexedType::Anim},
                    {QLatin1String(".staticmesh"), IndexedType::StaticMesh},
                    {QLatin1String(".kmat"), IndexedType::Materials},
                    {QLatin1String(".png"), IndexedType::Picture},
                    {QLatin1String(".tga"), IndexedType::Picture},
                    {QLatin1String(".jpg"), IndexedType::Picture},
                    {QLatin1String(".jpeg"), IndexedType::Picture},
                    {QLatin1String(".bmp"), IndexedType::Picture},
                    {QLatin1String(".gif"), IndexedType::Picture}};
    for (const auto &each : suffixes) {
        if (path.endsWith(each.suffix, Qt::CaseInsensitive))
            return each.type;
    }
    return {};
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
