// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PlayClock.h"

#include "AnimFile.h"
#include "FrameChoice.h"

#include <cmath>

namespace {
/// Whether the pose stays what it is, however long the block plays on.
bool stands(const AnimBlock &block, const Playback &state)
{
    const float duration = playDuration(block);
    if (!(duration > 0.0f) || !std::isfinite(duration))
        return true;
    if (!state.range.isEmpty())
        return false;
    const bool loopsOnLastFrame = !state.forceLoop && int(block.loopFrame) == block.frameCount() - 1;
    return loopsOnLastFrame && state.time >= duration;
}
} // namespace

int restartFrame(const Playback &state, const AnimBlock &block)
{
    if (!state.range.isEmpty())
        return state.range.first;
    return state.forceLoop || block.loopFrame >= block.frameCount() ? 0 : block.loopFrame;
}

bool clockRuns(const Playback &state)
{
    if (state.playState != PlayState::Playing)
        return false;
    const AnimBlock *block = playableBlock(state);
    return block && block->frameCount() > 1 && !stands(*block, state);
}

void advanceClock(Playback &state, float dt)
{
    if (!clockRuns(state))
        return;
    const AnimBlock &block = *playableBlock(state);
    const float rate = playRate(block.speed);
    const float end = state.range.isEmpty() ? playDuration(block) : float(state.range.last) / rate;
    const bool wasInside = state.time < end;
    state.time += dt * state.speedFactor;
    if (wasInside && state.time >= end)
        ++state.rounds;
    if (state.range.isEmpty())
        return;
    const float first = float(state.range.first) / rate;
    if (state.time < first || state.time >= end)
        state.time = first;
}
