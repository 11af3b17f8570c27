// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Camera.h"

#include "BoundingSphere.h"
#include "Framing.h"
#include "Transform.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr QVector3D StartPosition(0.0f, -300.0f, 600.0f);
constexpr float StartYaw = 180.0f;
constexpr float FieldOfView = 90.0f; // vertical, degrees
/// Of a place to stand: beyond any model; farther out a float has no fractions left.
constexpr float MostDistance = 1e6f;
constexpr float Room = 1.05f;                          // around what is framed
constexpr float LeastDepth = 2.0f * Camera::NearPlane; // of what is framed or orbited
constexpr float MostDepth = 0.5f * Camera::FarPlane;   // what lies around it is still to be seen

QMatrix4x4 withoutTranslation(QMatrix4x4 matrix)
{
    matrix.setColumn(3, {0.0f, 0.0f, 0.0f, 1.0f});
    return matrix;
}
} // namespace

void Camera::reset()
{
    m_position = StartPosition;
    m_yaw = StartYaw;
    m_pitch = 0.0f;
    m_framed.reset();
    ++m_jumps.position;
    ++m_jumps.angles;
}

void Camera::place(const QVector3D &position, float yaw, float pitch)
{
    if (!isWithin(MostDistance, position) || !isWithin(MostDistance, {yaw, pitch, 0.0f}))
        return;
    m_position = position;
    m_yaw = std::fmod(yaw, 360.0f);
    m_pitch = std::clamp(pitch, -PitchLimit, PitchLimit);
    m_framed.reset();
    ++m_jumps.position;
    ++m_jumps.angles;
}

QMatrix4x4 Camera::viewMatrix() const
{
    QMatrix4x4 view;
    view.lookAt(rotation().rotatedVector({0.0f, 0.0f, 1.0f}), {}, {0.0f, 1.0f, 0.0f});
    view.translate(m_position);
    return view;
}

QMatrix4x4 Camera::projectionMatrix(int width, int height)
{
    QMatrix4x4 projection;
    projection.perspective(FieldOfView, float(std::max(width, 1)) / float(std::max(height, 1)), NearPlane,
                           FarPlane);
    return projection;
}

void Camera::flyTo(const QVector3D &position)
{
    m_position = position;
    m_framed.reset();
}

void Camera::turnTo(float yaw, float pitch)
{
    m_yaw = yaw;
    m_pitch = pitch;
    m_framed.reset();
}

QVector3D Camera::eye() const
{
    return viewMatrix().inverted().map(QVector3D());
}

QVector3D Camera::sight() const
{
    return rotation().rotatedVector({0.0f, 0.0f, -1.0f});
}

void Camera::bring(const QVector3D &place, const QVector3D &seen)
{
    const QMatrix4x4 view = viewMatrix();
    const QVector3D position = m_position + withoutTranslation(view).transposed().map(seen - view.map(place));
    if (!isFinite(position))
        return;
    m_position = position;
    ++m_jumps.position;
}

bool Camera::frame(const std::vector<QVector3D> &points, const QSize &size)
{
    const BoundingSphere sphere = BoundingSphere::of(points);
    // Of the angle to the nearer sides of the picture.
    const QMatrix4x4 projection = projectionMatrix(size.width(), size.height());
    const float tangent = std::min(1.0f / projection(0, 0), 1.0f / projection(1, 1));
    const float sine = tangent / std::hypot(1.0f, tangent);
    const float distance = std::max(Room * sphere.radius / sine, sphere.radius + LeastDepth);
    if (sphere.radius < 0.0f || !isFinite(sphere.middle) || !std::isfinite(distance))
        return true;
    m_position = {}; // from far away the way back would be inexact
    bring(sphere.middle, {0.0f, 0.0f, -distance});
    m_framed = sphere.middle;
    return distance + sphere.radius < FarPlane;
}

void Camera::orbit(const QVector3D &pivot, float yaw, float pitch)
{
    const QVector3D seen = viewMatrix().map(pivot);
    m_yaw = yaw;
    m_pitch = std::clamp(pitch, -PitchLimit, PitchLimit);
    ++m_jumps.angles;
    bring(pivot, seen);
}

void Camera::orbitDrag(const QVector3D &pivot, float dx, float dy)
{
    orbit(pivot, m_yaw - dx * DegreesPerPixel, m_pitch - dy * DegreesPerPixel);
}

void Camera::lookFrom(Side side, const QVector3D &pivot)
{
    constexpr float Front = 180.0f;
    switch (side) {
    case Side::Front:
        return orbit(pivot, Front, 0.0f);
    case Side::Back:
        return orbit(pivot, Front - 180.0f, 0.0f);
    case Side::Left:
        return orbit(pivot, Front - 90.0f, 0.0f);
    case Side::Right:
        return orbit(pivot, Front + 90.0f, 0.0f);
    case Side::Top:
        return orbit(pivot, Front, -PitchLimit);
    case Side::Bottom:
        return orbit(pivot, Front, PitchLimit);
    }
}

void Camera::pan(const QVector3D &pivot, float dx, float dy, int height)
{
    const QVector3D seen = viewMatrix().map(pivot);
    const float unitsPerPixel =
        2.0f * std::max(-seen.z(), LeastDepth) / (projectionMatrix(1, 1)(1, 1) * float(std::max(1, height)));
    bring(pivot, seen + QVector3D(dx, -dy, 0.0f) * unitsPerPixel);
    m_framed.reset();
}

void Camera::dolly(const QVector3D &pivot, float factor)
{
    const QVector3D seen = viewMatrix().map(pivot);
    const float depth = -seen.z();
    const bool mayMove = factor < 1.0f ? depth > LeastDepth : depth > 0.0f && depth < MostDepth;
    if (mayMove)
        bring(pivot, seen * (std::clamp(depth * factor, LeastDepth, MostDepth) / depth));
}
