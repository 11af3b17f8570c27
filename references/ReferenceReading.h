// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FileNaming.h"

/// Reads what a file names into `file`, whose path and type are set. A file that cannot be read has its
/// error, and names nothing. Any thread may call it.
void readNaming(FileNaming &file);

/// The same of a model in memory.
FileNaming namingOf(const SkinnedMesh &mesh);
FileNaming namingOf(const AnimFile &anim);
FileNaming namingOf(const StaticMesh &mesh);
