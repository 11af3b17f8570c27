// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ShownPlayback.h"

#include "AnimFile.h"
#include "FrameChoice.h"

int ShownPlayback::pose(BonePalette *palette, QQuaternion &yaw)
{
    Playback &state = playback();
    int frame = PoseEvaluator::NoFrame;
    if (const AnimBlock *block = palette ? playableBlock(state) : nullptr) {
        if (state.playState == PlayState::InitialPose)
            m_poses.evaluateInitialPose(*palette, *state.mesh, *block);
        else
            frame = m_poses.evaluateAnimatedPose(*palette, *state.mesh, *block, state, yaw);
    }
    m_shown = state;
    return frame;
}

int ShownPlayback::nextFrame(bool hasPalette)
{
    Playback &state = playback();
    const AnimBlock *block = hasPalette ? playableBlock(state) : nullptr;
    if (!block || state.playState == PlayState::InitialPose || block->frameCount() < 2)
        return PoseEvaluator::NoFrame;
    return chooseFrame(*block, state.playState, state.forceLoop, state.time).frame;
}

bool ShownPlayback::isBehind() const
{
    const Playback &now = playback();
    return now.mesh != m_shown.mesh || now.anim != m_shown.anim || now.blockIndex != m_shown.blockIndex ||
           now.playState != m_shown.playState || now.time != m_shown.time ||
           now.forceLoop != m_shown.forceLoop;
}
