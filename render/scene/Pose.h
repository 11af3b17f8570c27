// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FrameChoice.h"

#include <QMatrix4x4>
#include <QQuaternion>

#include <vector>

struct AnimNode;

/// One matrix per bone of the mesh, from the bone's space to the model's.
using BonePalette = std::vector<QMatrix4x4>;

/// Fills bone palettes from animation blocks. Keeps its working memory: after the first pose of a mesh no
/// call allocates. Single precision throughout.
///
/// Bones are composed from bone 0 downwards through the child lists. A bone that several lists name keeps
/// its last visit, a child on the current path (a cycle) or without a bone, palette entry or `AnimNode` is
/// skipped, and a bone that is not reached keeps its palette entry.
class PoseEvaluator
{
public:
    /// What the painted pose shows of the block.
    static constexpr int NoFrame = -1;

    /// Poses the block of `state` at its time, which is set back where the block loops. `yaw` becomes the
    /// turn of the whole model about z, which is no part of the palette. Returns the frame shown; NoFrame
    /// when the block has less than two frames and shows its initial pose.
    int evaluateAnimatedPose(BonePalette &palette, const SkinnedMesh &mesh, const AnimBlock &block,
                             Playback &state, QQuaternion &yaw);

    /// Poses the bones at their initial positions and rotations.
    void evaluateInitialPose(BonePalette &palette, const SkinnedMesh &mesh, const AnimBlock &block);

    static constexpr int NoParent = -1;
    static constexpr int NotReached = -2;
    /// For each bone of the mesh the bone that a pose composes it with, NoParent for bone 0, or NotReached.
    std::vector<int> parents(const SkinnedMesh &mesh);

private:
    struct Visit
    {
        quint32 bone;
        quint32 childrenLeft;
    };

    template <typename Take>
    void walk(const SkinnedMesh &mesh, size_t bones, Take take);
    template <typename LocalMatrix>
    void compose(BonePalette &palette, const SkinnedMesh &mesh, const AnimBlock &block, LocalMatrix local);

    std::vector<Visit> m_path;
    std::vector<quint32> m_visited; ///< the walk that saw the bone last
    quint32 m_walk = 0;
};
