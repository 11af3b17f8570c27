// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileStamp.h"
#include "NamedThing.h"

#include <QStringList>

#include <memory>

/// The kinds of files that an index knows. The numbers stand in caches: they never change.
enum class IndexedType : quint8 { SkinnedMesh = 0, Anim = 1, StaticMesh = 2, Materials = 3, Picture = 4 };

/// The type by a file's name; none for other files.
std::optional<IndexedType> indexedTypeOf(const QString &path);

/// A thing that a file names, once for all its places.
struct NamedInFile
{
    NamedThing thing;
    QString key; ///< pathKey() of the thing's path; empty for numbers
    int count = 0;
    int firstPlace = 0; ///< in the file's places: that of the first of them
    int placeCount = 0; ///< of those that are kept

    bool isAbout(const NamedThing &other, const QString &otherKey) const
    {
        return thing.kind == other.kind && thing.number == other.number && key == otherKey;
    }
};

/// A file of game or mod, and all that it names.
struct FileNaming
{
    /// Of one thing in one model, so many places are kept; the rest is counted. Of materials all are.
    static constexpr int KeptPlaces = 8;
    /// More names make a file one that is not read on: no model has a hundredth of that.
    static constexpr int MostNames = 100000;

    QString path;     ///< on the disk or in an archive
    QString relative; ///< below the folder of game or mod
    bool isMod = false;
    IndexedType type = IndexedType::Picture;
    FileStamp stamp;
    QString error;                  ///< why it could not be read; empty when it could
    std::vector<NamedInFile> names; ///< by kind, then by path or number
    /// The records that name something; of a material file, the number of the material comes first in the
    /// index and there is no kind.
    std::vector<RecordRef> places;
    QStringList materials; ///< that a material file holds, in its order

    /// "FOLDER/FILE/MATERIAL", as surfaces name it; without the last part where there is no such material.
    QString materialPath(int material) const;
    /// The records, or materials, that name something, as far as they are kept.
    std::vector<RecordRef> placesOf(const NamedInFile &named) const;
};

using FileNamingPtr = std::shared_ptr<const FileNaming>;
