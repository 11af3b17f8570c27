// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "Records.h"
#include "SkinnedMesh.h"

/// One bone for each of the mesh's, in the pose that the first block starts from, and one frame: as little as
/// a block needs to play.
AnimBlock newBlock(const AnimFile &file, const SkinnedMesh &mesh);
/// The longest that a table of the block, named by its group, may be made: as many entries as a 16-bit index
/// can name, unless its keys would take more than 256 MiB.
int mostEntries(const AnimBlock &block, RecordKind group);
