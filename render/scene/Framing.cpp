// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Framing.h"

#include "Transform.h"

#include <QQuaternion>
#include <QtMath>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {
constexpr float FrameRoom = 1.06f;
constexpr float LeastDistance = 1.0e-3f; // of the eye from the nearest point, relative to its place

/// Turns what stands around the origin so that the camera looks along -z.
QMatrix4x4 turnToCamera(float yaw, float pitch)
{
    const QQuaternion around = QQuaternion::fromAxisAndAngle({0.0f, 1.0f, 0.0f}, yaw);
    const float height = qDegreesToRadians(std::clamp(pitch, -90.0f, 90.0f));
    QMatrix4x4 turn;
    turn.lookAt(around.rotatedVector({0.0f, std::sin(height), -std::cos(height)}), {},
                around.rotatedVector({0.0f, std::cos(height), std::sin(height)}));
    turn.setColumn(3, {0.0f, 0.0f, 0.0f, 1.0f});
    return turn;
}

float aspectOf(const QSize &size)
{
    return float(std::max(1, size.width())) / float(std::max(1, size.height()));
}

/// Of half the vertical angle that is filled.
float lensTangent(float lens)
{
    return std::tan(qDegreesToRadians(0.5f * lens)) / FrameRoom;
}
} // namespace

bool isWithin(float limit, const QVector3D &point)
{
    return std::fabs(point.x()) <= limit && std::fabs(point.y()) <= limit && std::fabs(point.z()) <= limit;
}

VisionExtent::VisionExtent(const std::vector<QVector3D> &points, const QMatrix4x4 &turn, float tangentX,
                           float tangentY)
    : m_tangentX(tangentX)
    , m_tangentY(tangentY)
{
    // A point is in the picture when |x - cx| <= (cz - z) * tangent, so each side gives a bound of its own,
    // and the camera stands where the widest bounds of both sides meet.
    for (const QVector3D &point : points) {
        const QVector3D p = turn.map(point);
        if (!isFinite(p))
            continue;
        const float own[] = {p.x() + tangentX * p.z(),
                             -p.x() + tangentX * p.z(),
                             p.y() + tangentY * p.z(),
                             -p.y() + tangentY * p.z(),
                             p.z(),
                             -p.z()};
        for (size_t bound = 0; bound < m_bounds.size(); ++bound)
            m_bounds[bound] = m_isEmpty ? own[bound] : std::max(m_bounds[bound], own[bound]);
        m_isEmpty = false;
        m_points.push_back(p);
    }
}

QVector3D VisionExtent::eye(float least) const
{
    const float z = std::max({0.5f * (m_bounds[Right] + m_bounds[Left]) / m_tangentX,
                              0.5f * (m_bounds[Up] + m_bounds[Down]) / m_tangentY, nearest() + least});
    // The side that did not decide how far away the eye stands leaves it room to either side.
    return {middle(0, m_bounds[Right] - m_tangentX * z, m_tangentX * z - m_bounds[Left], z),
            middle(1, m_bounds[Up] - m_tangentY * z, m_tangentY * z - m_bounds[Down], z), z};
}

float VisionExtent::middle(int axis, float low, float high, float eyeZ) const
{
    constexpr int Halvings = 24; // as many as a float has digits
    for (int i = 0; i < Halvings && !m_points.empty(); ++i) {
        const float tried = 0.5f * (low + high);
        float least = std::numeric_limits<float>::max(), most = -least;
        for (const QVector3D &point : m_points) {
            const float place = (point[axis] - tried) / (eyeZ - point.z());
            least = std::min(least, place);
            most = std::max(most, place);
        }
        (most > -least ? low : high) = tried;
    }
    return 0.5f * (low + high);
}

Framing frameAll(const std::vector<QVector3D> &points, float yaw, float pitch, const QSize &size, float lens)
{
    const QMatrix4x4 turn = turnToCamera(yaw, pitch);
    const float aspect = aspectOf(size);
    const float tangentY = lensTangent(lens);
    const VisionExtent extent(points, turn, tangentY * aspect, tangentY);
    const QVector3D eye = extent.eye(LeastDistance * std::max(1.0f, std::fabs(extent.nearest())));

    const float depth = eye.z() - extent.farthest();
    // Beyond a few thousand to one the depth buffer could not tell the model's parts apart.
    const float nearPlane = std::max(0.5f * (eye.z() - extent.nearest()), depth / 4096.0f);
    Framing framing;
    framing.projection.perspective(lens, aspect, nearPlane, 1.1f * depth + nearPlane);
    framing.view.translate(-eye);
    framing.view *= turn;
    return framing;
}

OutermostPoints::OutermostPoints(float yaw, float pitch, const QSize &size, float lens)
{
    const QMatrix4x4 turn = turnToCamera(yaw, pitch);
    const QVector3D right = turn.row(0).toVector3D(), up = turn.row(1).toVector3D(),
                    back = turn.row(2).toVector3D();
    const float tangentY = lensTangent(lens);
    const float tangentX = tangentY * aspectOf(size);
    m_outward = {right + tangentX * back,
                 -right + tangentX * back,
                 up + tangentY * back,
                 -up + tangentY * back,
                 back,
                 -back};
    m_farthest.fill(-std::numeric_limits<float>::max());
}

void OutermostPoints::add(const std::vector<QVector3D> &points)
{
    for (const QVector3D &point : points) {
        for (size_t side = 0; side < SideCount; ++side)
            keep(side, QVector3D::dotProduct(m_outward[side], point), point);
    }
}

void OutermostPoints::addCircles(const std::vector<QVector3D> &points, const QVector3D &pivot)
{
    for (size_t side = 0; side < SideCount; ++side) {
        // Where a circle reaches farthest out it lies in this direction from its middle.
        const QVector3D level(m_outward[side].x(), 0.0f, m_outward[side].z());
        const QVector3D direction = level.normalized();
        for (const QVector3D &point : points) {
            const float radius = std::hypot(point.x() - pivot.x(), point.z() - pivot.z());
            const QVector3D place = QVector3D(pivot.x(), point.y(), pivot.z()) + radius * direction;
            keep(side, QVector3D::dotProduct(m_outward[side], place), place);
        }
    }
}

void OutermostPoints::keep(size_t side, float distance, const QVector3D &point)
{
    if (!(distance > m_farthest[side]) || !isFinite(point))
        return;
    m_farthest[side] = distance;
    m_points[side] = point;
    m_isEmpty = false;
}

std::vector<QVector3D> OutermostPoints::points() const
{
    return m_isEmpty ? std::vector<QVector3D>() : std::vector<QVector3D>(m_points.begin(), m_points.end());
}
