// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// What a glTF file says of itself that the reading library keeps to itself.
struct GltfFacts
{
    int stepClips = 0;   ///< animations with keys that hold until the next
    bool isOurs = false; ///< exported from here, so one unit is one of the game
};

/// Of the file at that path; nothing of a file of another format, or one that cannot be read.
GltfFacts gltfFacts(const QString &path);
