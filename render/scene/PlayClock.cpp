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
    state.time += dt * state.speedFactor;
    if (state.range.isEmpty())
        return;
    const float rate = playRate(playableBlock(state)->speed);
    const float first = float(state.range.first) / rate;
    if (state.time < first || state.time >= float(state.range.last) / rate)
        state.time = first;
}
