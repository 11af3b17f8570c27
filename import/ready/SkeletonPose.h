// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneMath.h"

#include <vector>

/// How bones stand: in the spaces of their parents, and in the model's.
struct SkeletonPose
{
    std::vector<RigidFrame> local;
    std::vector<RigidFrame> world;
    std::vector<Vector3> sizes; ///< of the nodes along their axes, which bones cannot have

    void resize(size_t bones)
    {
        local.resize(bones);
        world.resize(bones);
        sizes.resize(bones, Vector3(1.0));
    }

    /// Turns a bone in the model's space. Its quaternion keeps its sign.
    void turn(size_t bone, const RigidFrame &parent, const Turn &turn)
    {
        Turn back = parent.turn;
        const Turn relative = back.Conjugate() * turn;
        local[bone].turn = dot(relative, local[bone].turn) < 0.0 ? negative(relative) : relative;
    }
    /// Moves a bone in the model's space, and makes its place there of that in its parent's. One that is no
    /// number changes nothing.
    void settle(size_t bone, const RigidFrame &parent, const Vector3 &place)
    {
        RigidFrame &frame = world[bone];
        frame.turn = parent.turn * local[bone].turn;
        frame.turn.Normalize();
        const Vector3 origin = parent.unmap(place);
        if (isFinite(origin))
            local[bone].origin = origin;
        frame.origin = parent.map(local[bone].origin);
    }
};
