// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QVector3D>

#include <vector>

/// A sequence of pictures of one model: frames of its animation, a turn around it, or both at once.
struct PicturePlan
{
    /// Of the pose that is there already.
    static constexpr int StillPose = -1;

    /// One of its pictures.
    struct Shot
    {
        int frame;  ///< or StillPose
        float turn; ///< degrees that the camera has gone around the model, 0 at the start, below 360
        int number; ///< in its file's name
    };

    int firstFrame = StillPose;
    int lastFrame = StillPose; ///< not before the first
    int step = 1;              ///< from one frame to the next, 1 or more
    int turns = 0;             ///< pictures of a whole turn; 0: the camera stands still

    /// In their order, at least one. Numbers are those of the frames; where the camera turns, they count from
    /// 0. The longer of frames and turn decides how many there are, and the other begins anew meanwhile.
    std::vector<Shot> shots() const;
};

/// What a view sees when the camera has gone around `pivot`, in the view's y-up space, by these degrees: from
/// a model's front to its left side.
QMatrix4x4 turnedView(const QMatrix4x4 &view, const QVector3D &pivot, float degrees);
