// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Transform.h"

#include <QMatrix4x4>
#include <QVector3D>

#include <array>
#include <cstddef>

/// A box of a view whose faces can be dragged.
struct BoxHandle
{
    BoxHandle() = default;
    /// Between two corners that are stored, whichever is the lower one along an axis.
    BoxHandle(const QVector3D &corner, const QVector3D &other, const QMatrix4x4 &fromItsSpace)
        : box(boxBetween(corner, other))
        , toModel(fromItsSpace)
    {
        for (int axis = 0; axis < 3; ++axis)
            isTurned[size_t(axis)] = corner[axis] > other[axis];
    }

    Box box;
    QMatrix4x4 toModel;             ///< from its space
    std::array<bool, 3> isTurned{}; ///< along these axes the first corner is the upper one
};

/// A place of a view that can be dragged.
struct PointHandle
{
    static constexpr int NoBone = -1;

    QVector3D place; ///< in the space of its bone
    int bone = NoBone;
    QMatrix4x4 toModel; ///< from that space
};

/// What has become of a box so far.
struct BoxDrag
{
    Box box;
    int face;        ///< that is dragged
    bool isOfSecond; ///< the face is that of the second corner that is stored
    double step;     ///< what the face snaps to where that is wanted
};

/// What has become of a place so far.
struct PointDrag
{
    enum class Lock { Free, ModelAxis, OwnAxis };

    QVector3D place; ///< in the space of the bone
    int bone;
    bool isTaken; ///< the bone is one that takes it over
    Lock lock;
    int axis;    ///< that it is locked to
    double step; ///< what it snaps to where that is wanted
};

/// Whoever edits what is dragged in a view. Nothing is to change before it is dropped; one of the last two
/// ends what grabbed() begins, be it that nothing was dragged between.
class ViewDrags
{
public:
    virtual ~ViewDrags() = default;

    enum class Handle { Box, Point };

    virtual void hovered(int face) = 0; ///< of the box, or none of them: -1
    virtual void grabbed(Handle handle) = 0;
    virtual void dragged(const BoxDrag &drag) = 0;
    virtual void dragged(const PointDrag &drag) = 0;
    virtual void dropped() = 0;
    virtual void givenUp() = 0;
};
