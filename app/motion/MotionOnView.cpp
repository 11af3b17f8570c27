// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MotionOnView.h"

#include <algorithm>
#include <utility>

MotionOnView::MotionOnView(const AnimFile &anim)
    : m_anim(anim)
    , m_plays(playback().anim == &anim)
{}

void MotionOnView::show(const std::vector<Motion::BlockChange> &changes)
{
    Playback &state = playback();
    const int index = state.blockIndex;
    const auto found =
        std::find_if(changes.begin(), changes.end(), [index](const Motion::BlockChange &change) {
            return change.changes && change.index == index;
        });
    if (!m_plays || found == changes.end())
        return giveBack();
    // The view tells by the file that something else plays: it is another one each time.
    auto lent = std::make_unique<AnimFile>();
    lent->blocks.resize(size_t(index) + 1);
    lent->blocks.front().nodes = m_anim.blocks.front().nodes; // by which a mesh is told to be its own
    lent->blocks.back() = found->block;
    if (!m_lent) {
        m_range = state.range;
        m_time = state.time;
    }
    state.anim = lent.get();
    state.range = {}; // of frames that are others now, or are there no more
    m_lent = std::move(lent);
}

void MotionOnView::giveBack()
{
    if (!std::exchange(m_lent, nullptr))
        return;
    Playback &state = playback();
    state.anim = &m_anim;
    state.range = m_range;
    if (state.playState != PlayState::Playing)
        state.time = m_time;
}
