// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MotionOnView.h"

#include "Playback.h"

#include <algorithm>

MotionOnView::MotionOnView(const AnimFile &anim)
    : m_anim(anim)
    , m_plays(playback().anim == &anim)
{}

void MotionOnView::show(const std::vector<Motion::BlockChange> &changes)
{
    const int index = playback().blockIndex;
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
    playback().anim = lent.get();
    m_lent = std::move(lent);
}

void MotionOnView::giveBack()
{
    if (m_lent)
        playback().anim = &m_anim;
    m_lent.reset();
}
