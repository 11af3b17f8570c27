// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FrameLabel.h"
#include "Pose.h"

/// The process's playback() as a view shows it: pose and label.
class ShownPlayback
{
public:
    /// Poses the bones as playback() has them, where there is a palette and a block to play; the initial pose
    /// leaves `yaw` as it is. Returns the frame that the pose starts from, or PoseEvaluator::NoFrame.
    int pose(BonePalette *palette, QQuaternion &yaw);
    /// The frame that the next pose() starts from, or PoseEvaluator::NoFrame.
    static int nextFrame(bool hasPalette);
    /// Whether playback() is no longer what pose() saw.
    bool isBehind() const;

    FrameLabel label;

private:
    PoseEvaluator m_poses;
    Playback m_shown;
};
