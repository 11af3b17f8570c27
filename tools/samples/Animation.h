// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "Figure.h"

#include <functional>
#include <initializer_list>
#include <utility>

/// How a figure stands at one moment, as changes to its rest.
struct Pose
{
    explicit Pose(size_t boneCount)
        : turns(boneCount)
        , moves(boneCount)
    {}

    /// Turns a bone further, by degrees about its own x, then its y, then its z axis.
    void turn(int bone, float x, float y = 0.0f, float z = 0.0f);
    void move(int bone, float x, float y, float z);

    std::vector<QQuaternion> turns; ///< after the rest rotation
    std::vector<QVector3D> moves;   ///< in the parent's space
    float yaw = 0.0f;               ///< radians about z, of the whole figure
};

/// A block of `frameCount` frames at 30 a second. A bone that stays at rest gets no track.
AnimBlock makeBlock(const Figure &figure, int animId, int frameCount, const std::function<Pose(int)> &poseAt);

/// Value at a time of a curve through (time, value) pairs that stands still at each of them.
float curve(std::initializer_list<std::pair<float, float>> keys, float time);

/// The matrices of all bones in model space.
std::vector<QMatrix4x4> poseMatrices(const Figure &figure, const Pose &pose);

/// The three bones of a leg and the lengths of the upper two, which at rest hang straight down.
struct Leg
{
    int upper, lower, foot;
    float upperLength, lowerLength;
};
/// Bends a leg so that its ankle comes to `ankle` (model space) as near as it can, the knee forward, the foot
/// turned by `pitch` degrees (toes down) from level.
void placeFoot(const Figure &figure, Pose &pose, const Leg &leg, const QVector3D &ankle, float pitch);
