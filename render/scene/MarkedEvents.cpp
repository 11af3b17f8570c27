// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MarkedEvents.h"

#include "AnimFile.h"
#include "EventArguments.h"
#include "FrameChoice.h"
#include "PlayClock.h"

#include <algorithm>
#include <cmath>

namespace {
float damageRadiusOf(const AnimAction &action)
{
    // The radius stands before the damage.
    const bool isDamage = eventArgument(action.eventType, 1).question == Question::Damage;
    const float radius = isDamage ? action.args[0] : 0.0f;
    return std::isfinite(radius) && radius > 0.0f ? radius : 0.0f;
}

/// Seconds since a frame was played last; negative where it was not.
float ageOf(int frame, const Playback &state, const AnimBlock &block)
{
    const bool isAlone = !state.range.isEmpty();
    const int first = restartFrame(state, block), last = isAlone ? state.range.last : block.frameCount() - 1;
    if (frame > last || (isAlone && frame < first))
        return -1.0f;
    const float rate = playRate(block.speed);
    const float age = state.time - float(frame) / rate, round = float(last - first) / rate;
    if (frame < first)
        return age + float(state.rounds) * round; // only the first round had it
    return age < 0.0f && state.rounds > 0 ? age + round : age;
}
} // namespace

void MarkedEvents::follow(const Playback &state, int frame)
{
    m_shown.clear();
    m_isFading = false;
    const AnimBlock *block = wanted ? playableBlock(state) : nullptr;
    if (!block)
        return;
    const bool plays = state.playState == PlayState::Playing && frame >= 0;
    const bool stands = plays && !clockRuns(state);
    if (!stands)
        m_stood = 0.0f;
    for (size_t i = 0; i < block->actions.size() && m_shown.size() < Most; ++i) {
        const AnimAction &action = block->actions[i];
        float strength = frame >= 0 && action.frame == frame ? 1.0f : 0.0f;
        if (plays) {
            const float age = ageOf(action.frame, state, *block);
            strength = age < 0.0f ? 0.0f : std::clamp(1.0f - (age + m_stood) / Glow, 0.0f, 1.0f);
        }
        m_isFading = m_isFading || (stands && strength > 0.0f);
        const bool isSelected =
            selectedBlock == state.blockIndex && std::binary_search(selected.begin(), selected.end(), int(i));
        if (strength > 0.0f || isSelected)
            m_shown.push_back({int(i), action.eventType, action.node, action.offset, damageRadiusOf(action),
                               strength, isSelected});
    }
}
