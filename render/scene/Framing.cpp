// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Framing.h"

#include <QQuaternion>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
// Narrower than the viewport's, which flies among models: a whole model looks less distorted so.
constexpr float FieldOfView = 30.0f; // vertical, degrees
constexpr float Room = 1.06f;
constexpr float LeastDistance = 1.0e-3f; // of the eye from the nearest point, relative to its place
constexpr float DegreesPerRadian = 57.29578f;

bool isFinite(const QVector3D &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y()) && std::isfinite(point.z());
}

/// The greatest of the sums that say how far the four sides of the pyramid of vision, and the planes before
/// and behind, have to go.
struct Extent
{
    float right = 0.0f;
    float left = 0.0f;
    float up = 0.0f;
    float down = 0.0f;
    float nearest = 0.0f;
    float farthest = 0.0f;
};
} // namespace

Framing frameAll(const std::vector<QVector3D> &points, float yaw, float pitch, const QSize &size)
{
    const QQuaternion around = QQuaternion::fromAxisAndAngle({0.0f, 1.0f, 0.0f}, yaw);
    const float height = std::clamp(pitch, -90.0f, 90.0f) / DegreesPerRadian;
    QMatrix4x4 turn;
    turn.lookAt(around.rotatedVector({0.0f, std::sin(height), -std::cos(height)}), {},
                around.rotatedVector({0.0f, std::cos(height), std::sin(height)}));
    turn.setColumn(3, {0.0f, 0.0f, 0.0f, 1.0f});

    // A point is in the picture when |x - cx| <= (cz - z) * tangent, so each side gives a bound of its own,
    // and the camera stands where the widest bounds of both sides meet.
    const float aspect = float(std::max(1, size.width())) / float(std::max(1, size.height()));
    const float tangentY = std::tan(0.5f * FieldOfView / DegreesPerRadian) / Room;
    const float tangentX = tangentY * aspect;
    Extent extent;
    bool any = false;
    for (const QVector3D &point : points) {
        const QVector3D p = turn.map(point);
        if (!isFinite(p))
            continue;
        const Extent own{p.x() + tangentX * p.z(),
                         -p.x() + tangentX * p.z(),
                         p.y() + tangentY * p.z(),
                         -p.y() + tangentY * p.z(),
                         p.z(),
                         p.z()};
        if (!std::exchange(any, true)) {
            extent = own;
            continue;
        }
        extent.right = std::max(extent.right, own.right);
        extent.left = std::max(extent.left, own.left);
        extent.up = std::max(extent.up, own.up);
        extent.down = std::max(extent.down, own.down);
        extent.nearest = std::max(extent.nearest, own.nearest);
        extent.farthest = std::min(extent.farthest, own.farthest);
    }
    const float least = LeastDistance * std::max(1.0f, std::fabs(extent.nearest));
    const QVector3D eye(0.5f * (extent.right - extent.left), 0.5f * (extent.up - extent.down),
                        std::max({0.5f * (extent.right + extent.left) / tangentX,
                                  0.5f * (extent.up + extent.down) / tangentY, extent.nearest + least}));

    const float depth = eye.z() - extent.farthest;
    // Beyond a few thousand to one the depth buffer could not tell the model's parts apart.
    const float nearPlane = std::max(0.5f * (eye.z() - extent.nearest), depth / 4096.0f);
    Framing framing;
    framing.projection.perspective(FieldOfView, aspect, nearPlane, 1.1f * depth + nearPlane);
    framing.view.translate(-eye);
    framing.view *= turn;
    return framing;
}
