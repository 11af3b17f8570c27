// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Pose.h"

#include <QVector4D>

/// The poses of the frames before and after the one that is shown, to be drawn behind the model.
class OnionSkin
{
public:
    static constexpr int MostFrames = 5;

    struct Options
    {
        bool isOn = false;
        int frames = 2; ///< before, and as many after; 1 to MostFrames
        int step = 1;   ///< frames from one to the next
    };

    struct Ghost
    {
        BonePalette palette;
        QQuaternion yaw;
        QVector4D color; ///< red, green, blue, opacity
    };

    /// What belongs around the frame that playback() shows. `shown` is the palette of the model in it; null
    /// where nothing plays. Frames beyond the ends of the animation are left out.
    void follow(const BonePalette *shown);
    /// From the farthest in time to the nearest; none while it is off.
    const std::vector<Ghost> &ghosts() const { return m_ghosts; }

    Options options;

private:
    std::vector<Ghost> m_ghosts;
    PoseEvaluator m_poses;
};
