// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelFile.h"

#include <QSet>

/// Says what is wrong with these files of a mod, by their paths below its folder, as the verb that checks
/// mods does, and what of that the mod silences. Returns whether an error keeps them from being packed. Ends
/// early when `goesOn` says so.
bool findsErrors(const MaterialFolders &folders, const QSet<QString> &names,
                 const std::function<bool()> &goesOn);
