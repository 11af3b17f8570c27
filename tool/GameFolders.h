// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Validation.h"

class CommandLine;

/// The folders of --game-path and --mod-path, else of the editor's settings.
MaterialFolders chosenFolders(const CommandLine &line);

/// Those that were chosen; a game folder that nobody named is the one that `file` lies in: the nearest folder
/// above it that has a folder "materials".
MaterialFolders foldersAround(const QString &file, MaterialFolders chosen);
