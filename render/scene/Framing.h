// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QSize>
#include <QVector3D>

#include <vector>

/// Where a still camera stands, as a frame is painted with it.
struct Framing
{
    QMatrix4x4 view;
    QMatrix4x4 projection;
};

/// The nearest camera that has all of `points` (in the view's y-up space) in a picture of this size, with a
/// little room around them. `yaw` goes around the model: 0 degrees stand before its front, 90 see its left
/// side; `pitch`, -90 to 90 degrees, looks down from above. Points that are not finite do not count; without
/// points the origin is in view.
Framing frameAll(const std::vector<QVector3D> &points, float yaw, float pitch, const QSize &size);
