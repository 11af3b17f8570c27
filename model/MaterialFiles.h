// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileSearch.h"
#include "KMat.h"

#include <QHash>
#include <QStringList>

/// The material files of the game and the mod, searched in that order. Files are kept once read, the failures
/// too.
class MaterialFiles
{
public:
    /// What stands for "no texture" in place of a texture's name.
    static const QString Blank;

    struct Lookup
    {
        QString texture; ///< relative to one of the folders, empty when there is no such material, or Blank
        QString warning; ///< the file has no such material
        QString error;   ///< the file cannot be read; said once a file
        bool isThere = false; ///< the file has the material, which may name no texture
    };

    /// An empty folder is not searched.
    MaterialFiles(const QString &gamePath, const QString &outputDir);

    /// The file that "FOLDER/FILE/MATERIAL" is in, relative to one of the folders.
    static QString fileOf(const QString &materialPath);
    /// The diffuse texture of "FOLDER/FILE/MATERIAL".
    Lookup find(const QString &materialPath);

    /// Where a file named relative to the folders may be, as FileSearch has it.
    QStringList candidates(const QString &relativePath) const { return m_search.candidates(relativePath); }
    const FileSearch &search() const { return m_search; }

private:
    struct MaterialFile
    {
        MaterialTable table;
        QString error;
        QString path; ///< the file that was read
    };

    MaterialFile &file(const QString &relativePath);

    FileSearch m_search;
    QHash<QString, MaterialFile> m_files;
};
