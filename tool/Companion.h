// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

struct MaterialFolders;

/// The animation file that belongs to a skinned mesh, or the other way about: of the same name, beside it or
/// where the game keeps the two apart, in models/NAME and anims/NAME. Empty when there is none.
QString companionOf(const QString &file, const MaterialFolders &folders);
