// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlockAccount.h"
#include "Turn.h"

#include "AnimFile.h"
#include "SkinnedMesh.h"

#include <vector>

namespace Motion {
/// How the bones of a mesh stand when an animation block begins, in the model's space.
struct BoneRig
{
    static constexpr int NoBone = -1;

    /// The bones that poses reach from bone 0, a parent before its children, in the order of child lists.
    /// Bones of which the block has none are left out.
    std::vector<int> order;
    std::vector<int> parents; ///< for each bone; NoBone for bone 0 and bones that are not reached
    std::vector<Turn> turns;  ///< of the initial pose
    std::vector<Place> places;

    BoneRig(const SkinnedMesh &mesh, const std::vector<AnimNode> &nodes);

    size_t size() const { return parents.size(); }
    /// Of the initial pose; none for the root's parent.
    Turn parentTurn(int bone) const
    {
        const int parent = parents[size_t(bone)];
        return parent == NoBone ? Turn() : turns[size_t(parent)];
    }
    /// The rotations of all bones in the model's space at a frame of a block with as many bones.
    void turnsAt(const AnimBlock &block, size_t frame, std::vector<Turn> &at) const;
};

/// For each bone of a rig another one, or BoneRig::NoBone.
using BonePairs = std::vector<int>;

/// Each bone's counterpart on the other side of the body; its own number for one in the middle. Names tell
/// the sides ("Hand.L", "left_hand"), else the symbols do; of several bones with one symbol those are a pair
/// that stand where a mirror would have them, below parents that are one, too. Ends early, with what it has,
/// when nobody waits for what the account is of.
BonePairs counterparts(const SkinnedMesh &mesh, const BoneRig &rig, const BlockAccount &account = {});

/// For each bone of `to` the one of `from` that has its name, else its symbol: the first of each symbol down
/// from the root, and all of them where both have as many.
BonePairs partners(const SkinnedMesh &from, const BoneRig &fromRig, const SkinnedMesh &to,
                   const BoneRig &toRig);
} // namespace Motion
