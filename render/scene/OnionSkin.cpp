// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OnionSkin.h"

#include "AnimFile.h"

#include <algorithm>

namespace {
constexpr QVector3D Before(0.35f, 0.2f, 0.95f), After(1.0f, 0.5f, 0.1f);
constexpr float MostOpacity = 0.5f; // of the nearest; those farther away fade
} // namespace

void OnionSkin::follow(const BonePalette *shown)
{
    Playback now = playback();
    const AnimBlock *block = options.isOn && shown ? playableBlock(now) : nullptr;
    if (!block || now.playState == PlayState::InitialPose || block->frameCount() < 2) {
        m_ghosts.clear();
        return;
    }
    const int frame = chooseFrame(*block, now.playState, now.forceLoop, now.time).frame;
    const int frames = std::clamp(options.frames, 1, MostFrames), step = std::max(options.step, 1);
    size_t count = 0;
    for (int distance = frames; distance > 0; --distance) {
        for (const int side : {-1, 1}) {
            const qint64 other = qint64(frame) + qint64(side) * distance * step;
            if (other < 0 || other >= block->frameCount())
                continue;
            if (count == m_ghosts.size())
                m_ghosts.emplace_back();
            Ghost &ghost = m_ghosts[count++];
            ghost.palette = *shown; // for bones that no pose reaches
            ghost.yaw = {};
            ghost.color = QVector4D(side < 0 ? Before : After,
                                    MostOpacity * float(frames + 1 - distance) / float(frames));
            now.playState = PlayState::Paused;
            now.time = float(other) / playRate(block->speed);
            m_poses.evaluateAnimatedPose(ghost.palette, *now.mesh, *block, now, ghost.yaw);
        }
    }
    m_ghosts.resize(count);
}
