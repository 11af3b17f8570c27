// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

struct AnimBlock;
struct AnimFile;
struct SkinnedMesh;

enum class PlayState { InitialPose = 0, Playing = 1, Paused = 2 };

/// Frames that are played alone, over and over; none where the last is not behind the first.
struct FrameRange
{
    int first = 0;
    int last = -1;

    bool isEmpty() const { return last <= first; }
};

/// What plays, where and how: shared by the track controls and the viewport.
struct Playback
{
    const SkinnedMesh *mesh = nullptr;
    const AnimFile *anim = nullptr;
    int blockIndex = 0;
    PlayState playState = PlayState::InitialPose;
    float time = 0.0f;      ///< seconds
    int rounds = 0;         ///< how often it has gone on after its end since it was started
    bool forceLoop = false; ///< "Force Loop beginning to end"
    FrameRange range;
    /// Shown in place of the block, which has as many bones and frames, while keys are dragged. Whoever set
    /// it takes it back before the block is another one.
    const AnimBlock *preview = nullptr;
    float speedFactor = 1.0f; ///< of the clock: how much faster than the file says
};

/// The one playback state of the process. GUI thread only.
Playback &playback();

/// True when `anim` has a block and its first block has as many bones as `mesh`. Whatever block plays, only
/// the first is compared.
bool animationMatchesMesh(const AnimFile &anim, const SkinnedMesh &mesh);

/// The block that plays; null when mesh or animation is missing, when they do not match, or when the block
/// index is out of range.
const AnimBlock *playableBlock(const Playback &state);
