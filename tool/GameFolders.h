// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class CommandLine;

/// Where the materials and textures of a model are looked for.
struct GameFolders
{
    QString gamePath;
    QString modPath;

    /// Those of --game-path and --mod-path, else of the editor's settings.
    static GameFolders chosen(const CommandLine &line);
    /// The same; a game folder that neither names is the one that `file` lies in: the nearest folder above it
    /// that has a folder "materials".
    static GameFolders around(const QString &file, const CommandLine &line);
};
