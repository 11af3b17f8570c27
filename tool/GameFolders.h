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

    /// Those of --game-path and --mod-path, else of the editor's settings. A game folder that neither names
    /// is the one that `file` lies in: the nearest folder above it that has a folder "materials".
    static GameFolders of(const CommandLine &line, const QString &file);
};
