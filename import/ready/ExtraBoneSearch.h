// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReadyClips.h"

#include <optional>

/// What became of a search for extra bones.
struct ExtraBoneAccount
{
    int bones = 0;
    bool isWithin = false; ///< no vertex is off by more than a hundredth of the size
    bool isFull = false;   ///< some are, but no more bones can be posed
    // How far the vertex that is farthest off is from its place in the source, in parts of the model's size,
    // which is the diagonal of its box at rest.
    double without = 0.0;
    double with = 0.0;
};

/// Gives bones of their own to vertices that the taken clips move elsewhere than the bone does that they are
/// to follow, since several bones or stretched ones move them: until none is off by more than a hundredth of
/// the model's size, or there are as many bones as can be posed. Gives nothing where there is nothing to
/// measure: no clip was taken, or the model has no bones or no size.
std::optional<ExtraBoneAccount> addExtraBones(const SceneParts &parts, const ReadyClips &clips,
                                              ReadySkeleton &skeleton);
