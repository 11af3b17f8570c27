// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FrameLabel.h"

#include "AnimFile.h"
#include "FrameChoice.h"

#include <QCoreApplication>
#include <QtGlobal>

#include <algorithm>
#include <cmath>

int FrameLabel::nearestFrame(float time, float rate)
{
    const float position = time * rate;
    if (!std::isfinite(position))
        return 0;
    // Far beyond every frame count, and still exact as a float and as an int.
    constexpr float Limit = 1 << 30;
    return qRound(std::clamp(position, -Limit, Limit));
}

bool FrameLabel::update(const Playback &state)
{
    const AnimBlock *block = playableBlock(state);
    if (!block) {
        if (m_shownFrame == Invalid)
            return false;
        m_shownFrame = Invalid;
        m_text = QCoreApplication::translate("FrameLabel", "Invalid Animation");
        return true;
    }

    const int frame = nearestFrame(state.time, playRate(block->speed));
    const int count = block->frameCount();
    if (frame == m_shownFrame && int(state.playState) == m_shownState && count == m_shownCount)
        return false;
    m_shownFrame = frame;
    m_shownState = int(state.playState);
    m_shownCount = count;
    const int lastFrame = std::max(0, count - 1);
    m_text = state.playState == PlayState::InitialPose
                 ? QCoreApplication::translate("FrameLabel", "Initial Pose")
                 : QCoreApplication::translate("FrameLabel", "Frame: %1 / %2")
                       .arg(QString::number(std::min(frame, lastFrame)), QString::number(lastFrame));
    return true;
}
