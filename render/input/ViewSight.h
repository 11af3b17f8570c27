// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ScreenMap.h"

class QPoint;
class QVector3D;

/// The marks under a pixel, by their indexes: one of the two at most.
struct HitMarks
{
    static constexpr int None = -1;

    int bone = None;
    int hotPoint = None;
};

/// What a view shows where, as its tools ask for it.
class ViewSight
{
public:
    virtual ~ViewSight() = default;

    virtual HitMarks marksAt(const QPoint &pixel) const = 0;
    /// The nearest surface; HitMarks::None where there is none.
    virtual int surfaceAt(const QPoint &pixel) const = 0;
    /// What the camera turns around: what it was aimed at, else what it looks at, in the view's space.
    virtual QVector3D pivot() const = 0;
    /// From the model's space to the view's pixels and back.
    virtual ScreenMap screenMap() const = 0;
};
