// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FrameChoice.h"

#include "AnimFile.h"

#include <algorithm>
#include <cmath>

namespace {
FrameChoice wrap(int lastFrame, float rate, float duration, float &time)
{
    time = std::fmod(time, duration);
    const float position = time * rate;
    // Rounding can carry a time just below the duration onto the last frame, which has no successor.
    if (position >= float(lastFrame))
        return {lastFrame, lastFrame, 0.0f};
    // The product can round to the frame before the one that the time was made of, or to the one after.
    int frame = int(position);
    if (float(frame + 1) / rate <= time)
        ++frame;
    if (frame >= lastFrame)
        return {lastFrame, lastFrame, 0.0f};
    const float start = float(frame) / rate;
    const float length = float(frame + 1) / rate - start;
    return {frame, frame + 1, length > 0.0f ? std::max(0.0f, (time - start) / length) : 0.0f};
}
} // namespace

float playRate(float speed)
{
    return speed >= 1.0f ? speed : 1.0f;
}

float playDuration(const AnimBlock &block)
{
    return float(block.frameCount() - 1) / playRate(block.speed);
}

FrameChoice chooseFrame(const AnimBlock &block, PlayState state, bool forceLoop, float &time)
{
    const int frameCount = block.frameCount();
    const int lastFrame = frameCount - 1;
    const float rate = playRate(block.speed);
    const float duration = playDuration(block);
    if (!(duration > 0.0f) || !std::isfinite(duration) || !(time >= 0.0f) || !std::isfinite(time)) {
        time = 0.0f;
        return {0, lastFrame > 0 ? 1 : 0, 0.0f};
    }

    const bool paused = state == PlayState::Paused;
    if ((forceLoop && !paused) || time < duration)
        return wrap(lastFrame, rate, duration, time);
    if (paused)
        return {lastFrame, lastFrame, 0.0f};
    const int loopFrame = block.loopFrame;
    if (loopFrame >= frameCount)
        return wrap(lastFrame, rate, duration, time);
    // The overshoot is dropped: the loop starts exactly on its frame.
    time = float(loopFrame) / rate;
    return {loopFrame, loopFrame < lastFrame ? loopFrame + 1 : loopFrame, 0.0f};
}
