// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AxisGizmo.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double Length = 48.0; // of an axis, in pixels, as the arrows are
constexpr double BallReach = 11.0;
constexpr double Reach = Length + BallReach;

struct End
{
    Camera::Side side;
    int axis;
    bool isPositive;
    QVector3D direction; ///< in the view's y-up space, where the model faces -z
};
constexpr End Ends[] = {
    {Camera::Side::Right, 0, true, {-1.0f, 0.0f, 0.0f}},
    {Camera::Side::Left, 0, false, {1.0f, 0.0f, 0.0f}},
    {Camera::Side::Back, 1, true, {0.0f, 0.0f, 1.0f}},
    {Camera::Side::Front, 1, false, {0.0f, 0.0f, -1.0f}},
    {Camera::Side::Top, 2, true, {0.0f, 1.0f, 0.0f}},
    {Camera::Side::Bottom, 2, false, {0.0f, -1.0f, 0.0f}},
};

double distanceBetween(const QPointF &a, const QPointF &b)
{
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}
} // namespace

QPointF AxisGizmo::centre(const QSize &view)
{
    return {double(Margin), double(view.height()) - double(Margin)};
}

std::array<AxisGizmo::Ball, 6> AxisGizmo::balls(const QMatrix4x4 &toEye, const QSize &view)
{
    std::array<Ball, 6> balls;
    for (size_t i = 0; i < balls.size(); ++i) {
        const End &end = Ends[i];
        const QVector3D way = toEye.mapVector(end.direction);
        balls[i] = {end.side, end.axis, end.isPositive,
                    centre(view) + Length * QPointF(double(way.x()), -double(way.y())), way.z()};
    }
    std::sort(balls.begin(), balls.end(),
              [](const Ball &a, const Ball &b) { return a.nearness < b.nearness; });
    return balls;
}

bool AxisGizmo::covers(const QPointF &pixel, const QSize &view)
{
    return distanceBetween(pixel, centre(view)) < Reach;
}

std::optional<AxisGizmo::Ball> AxisGizmo::ballAt(const QPointF &pixel, const QMatrix4x4 &toEye,
                                                 const QSize &view)
{
    std::optional<Ball> found;
    for (const Ball &ball : balls(toEye, view)) {
        if (distanceBetween(pixel, ball.pixel) < BallReach)
            found = ball;
    }
    return found;
}
