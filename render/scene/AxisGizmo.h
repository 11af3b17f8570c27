// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Camera.h"

#include <QPointF>

#include <array>
#include <optional>

/// The axes in the lower left corner of a view, as large whatever its size, and the balls at both ends of
/// each that the mouse takes for the sides. Pixels count from the view's upper left corner.
namespace AxisGizmo {
constexpr float Margin = 64.0f; ///< from the corner to where the axes meet, in pixels

struct Ball
{
    Camera::Side side; ///< that the view is looked at from when it is pressed
    int axis;          ///< of the model
    bool isPositive;
    QPointF pixel;
    float nearness; ///< -1 to 1, the greater the nearer to the eye
};

QPointF centre(const QSize &view);
/// From the farthest to the nearest, as a camera with this view matrix shows them.
std::array<Ball, 6> balls(const QMatrix4x4 &toEye, const QSize &view);
/// Whether a pixel is over any of it.
bool covers(const QPointF &pixel, const QSize &view);
/// The nearest ball there.
std::optional<Ball> ballAt(const QPointF &pixel, const QMatrix4x4 &toEye, const QSize &view);
} // namespace AxisGizmo

/// What the mouse has to do with the gizmo.
struct GizmoHover
{
    bool isOver = false;
    std::optional<Camera::Side> side; ///< whose ball it is over

    bool operator==(const GizmoHover &other) const { return isOver == other.isOver && side == other.side; }
};
