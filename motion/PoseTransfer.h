// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlockAccount.h"
#include "SkinnedMesh.h"

#include <optional>

/// Commands that have bones do what other bones did. What a bone does is how it turns in the model's space
/// away from its initial pose, and how far it moves from its parent; so the axes of the two bones need not be
/// alike, only the initial poses of the two sides, or skeletons.
namespace Motion {
/// Left becomes right and right becomes left: the plane x = 0 of the model is the mirror, the game's models
/// having their left at +x.
struct Mirror
{};
/// `mesh` has the bones' hierarchy, names and symbols; null, or one with other bones, is a reason against it.
QString apply(const Mirror &how, AnimBlock &block, BlockAccount &account, const SkinnedMesh *mesh);

/// A model whose animations are for its bones.
struct Animated
{
    const SkinnedMesh &mesh;
    const AnimFile &anim;
};

/// A block for the bones of another model, and what there is to say of it.
struct CopiedBlock
{
    std::optional<AnimBlock> block; ///< nothing where that cannot be
    QString refusal;                ///< why, for the user
    BlockAccount account;
};

/// Has the bones of `to` do what those of `from` do in its block number `index`. Bones find each other by
/// partners(); one without a partner keeps the initial pose that `to` begins with. Distances are scaled by
/// the lengths of the bones that found each other. An id that `to` has already becomes the next free one;
/// those in `taken` count as its own. Ends early when `cancelled`, if given, says so: what there is by then
/// is not to be used.
CopiedBlock copiedTo(const Animated &to, const Animated &from, int index,
                     const std::vector<qint32> &taken = {}, const std::atomic_bool *cancelled = nullptr);
} // namespace Motion
