// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Which file the material of a surface is in.
struct MaterialPlace
{
    enum class Kind {
        Nowhere,    ///< no folder has such a file
        NoFolders,  ///< neither folder is set
        NoName,     ///< the surface names no material
        White,      ///< it is drawn white and needs no file
        NoMaterial, ///< the file does not have it
        Unreadable, ///< the file cannot be read
        Found,
    };

    Kind kind = Kind::Nowhere;
    QString file;     ///< of those that there are; empty where there is none
    QString relative; ///< the same below its folder
    bool isGame = false;
    QString reason; ///< why it cannot be read
};

/// Looks for the material that a surface names in the game folder and then in the mod folder.
MaterialPlace placeOfMaterial(const QString &materialPath, const QString &gamePath, const QString &outputDir);
