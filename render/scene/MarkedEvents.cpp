// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MarkedEvents.h"

#include "AnimFile.h"
#include "EventArguments.h"
#include "FrameChoice.h"

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
} // namespace

void MarkedEvents::follow(const Playback &state, int frame)
{
    m_shown.clear();
    const AnimBlock *block = wanted ? playableBlock(state) : nullptr;
    if (!block)
        return;
    const float rate = playRate(block->speed);
    const bool plays = state.playState == PlayState::Playing;
    for (size_t i = 0; i < block->actions.size() && m_shown.size() < Most; ++i) {
        const AnimAction &action = block->actions[i];
        const float age = state.time - float(action.frame) / rate;
        float strength = frame >= 0 && action.frame == frame ? 1.0f : 0.0f;
        if (plays && frame >= 0)
            strength = std::clamp(age < 0.0f ? 0.0f : 1.0f - age / Glow, 0.0f, 1.0f);
        const bool isSelected =
            selectedBlock == state.blockIndex && std::binary_search(selected.begin(), selected.end(), int(i));
        if (strength > 0.0f || isSelected)
            m_shown.push_back({int(i), action.eventType, action.node, action.offset, damageRadiusOf(action),
                               strength, isSelected});
    }
}
