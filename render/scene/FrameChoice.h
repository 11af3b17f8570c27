// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Playback.h"

/// Two neighbouring frames of a block and how far the pose stands between them.
struct FrameChoice
{
    int frame = 0;
    int next = 0;
    float t = 0.0f; ///< 0 at `frame`, 1 at `next`
};

/// Frames per second of play time. Speeds below 1 (and NaN) play at 1.
float playRate(float speed);

/// Seconds from the first to the last frame, in single precision.
float playDuration(const AnimBlock &block);

/// Chooses the frames that `time` (seconds) falls between and sets the time back where the block loops or
/// wraps. The block has at least two frames; both results are always frames of it. A duration or time that
/// is not finite, or a duration of 0, counts as time 0.
FrameChoice chooseFrame(const AnimBlock &block, PlayState state, bool forceLoop, float &time);
