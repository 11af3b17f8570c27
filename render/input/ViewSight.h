// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ScreenMap.h"
#include "ViewDrags.h"

#include <optional>

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
    /// The bone that shows there: its joint where joints are marked, else that of the nearest vertex of the
    /// surface; HitMarks::None where there is none.
    virtual int boneAt(const QPoint &) const { return HitMarks::None; }
    /// From the bone's space to the model's; none where there is no such bone.
    virtual std::optional<QMatrix4x4> boneToModel(int) const { return {}; }
    /// What can be dragged at the moment.
    virtual std::optional<BoxHandle> boxHandle() const { return {}; }
    virtual std::optional<PointHandle> pointHandle() const { return {}; }
    virtual bool showsGizmo() const { return false; }
    /// What the camera turns around: what it was aimed at, else what it looks at, in the view's space.
    virtual QVector3D pivot() const = 0;
    /// From the model's space to the view's pixels and back.
    virtual ScreenMap screenMap() const = 0;
};
