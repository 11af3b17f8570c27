// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Camera.h"

#include "BoundingSphere.h"
#include "Framing.h"
#include "Transform.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {
constexpr QVector3D StartPosition(0.0f, -300.0f, 600.0f);
constexpr float StartYaw = 180.0f;
constexpr float LeastLens = 1.0f, MostLens = 150.0f; // degrees
/// Of a place to stand: beyond any model; farther out a float has no fractions left.
constexpr float MostDistance = 1e6f;
constexpr float Room = 1.05f;                          // around what is framed
constexpr float LeastDepth = 2.0f * Camera::NearPlane; // of what is framed or orbited
constexpr float MostDepth = 0.5f * Camera::FarPlane;   // what lies around it is still to be seen
constexpr float LeastScaleDepth = 0.25f;               // of an orthographic picture, which nothing cuts

QMatrix4x4 withoutTranslation(QMatrix4x4 matrix)
{
    matrix.setColumn(3, {0.0f, 0.0f, 0.0f, 1.0f});
    return matrix;
}

/// What it may come to be that was `before`: a model that is framed may be larger than any other is shown.
float scaleDepth(float before, float wanted)
{
    return std::clamp(wanted, LeastScaleDepth, std::max(MostDepth, before));
}
} // namespace

void Camera::reset()
{
    m_position = StartPosition;
    m_yaw = StartYaw;
    m_pitch = 0.0f;
    m_scaleDepth = StartPosition.z();
    m_framed.reset();
    leaveSide();
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
    leaveSide();
    ++m_jumps.position;
    ++m_jumps.angles;
}

QMatrix4x4 Camera::viewMatrix() const
{
    QMatrix4x4 view;
    if (std::fabs(m_pitch) > PitchLimit) { // where nothing is upright
        view.translate(0.0f, 0.0f, -1.0f);
        view.rotate(rotation().conjugated());
        view.translate(m_position);
        return view;
    }
    view.lookAt(rotation().rotatedVector({0.0f, 0.0f, 1.0f}), {}, {0.0f, 1.0f, 0.0f});
    view.translate(m_position);
    return view;
}

QMatrix4x4 Camera::projectionMatrix(int width, int height) const
{
    const float aspect = float(std::max(width, 1)) / float(std::max(height, 1));
    QMatrix4x4 projection;
    if (isOrthographic()) {
        const float up = m_scaleDepth * tangent();
        projection.ortho(-up * aspect, up * aspect, -up, up, -FarPlane, FarPlane);
    } else {
        projection.perspective(m_lens, aspect, NearPlane, FarPlane);
    }
    return projection;
}

float Camera::tangent() const
{
    return std::tan(qDegreesToRadians(0.5f * m_lens));
}

float Camera::depthOf(const QVector3D &seen) const
{
    return isOrthographic() ? m_scaleDepth : std::max(-seen.z(), LeastDepth);
}

void Camera::flyTo(const QVector3D &position)
{
    leaveSide();
    // Forward in an orthographic picture is into it.
    const float forward = -QVector3D::dotProduct(position - m_position, sight());
    if (isOrthographic() && std::isfinite(forward))
        m_scaleDepth = scaleDepth(m_scaleDepth, m_scaleDepth - forward);
    m_position = position;
    m_framed.reset();
}

void Camera::turnTo(float yaw, float pitch)
{
    leaveSide();
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
    const float aspect = float(std::max(size.width(), 1)) / float(std::max(size.height(), 1));
    const float nearer = tangent() * std::min(1.0f, aspect);
    const float sine = nearer / std::hypot(1.0f, nearer);
    const float distance = std::max(Room * sphere.radius / sine, sphere.radius + LeastDepth);
    if (sphere.radius < 0.0f || !isFinite(sphere.middle) || !std::isfinite(distance))
        return true;
    m_position = {}; // from far away the way back would be inexact
    bring(sphere.middle, {0.0f, 0.0f, -distance});
    m_framed = sphere.middle;
    m_scaleDepth = distance; // as large as in perspective, where it may be turned next
    return distance + sphere.radius < FarPlane;
}

void Camera::orbit(const QVector3D &pivot, float yaw, float pitch)
{
    QVector3D seen = viewMatrix().map(pivot);
    if (m_isSideOn && !m_isOrthographic) // as large as it was
        seen.setZ(-std::max(m_scaleDepth, LeastDepth));
    leaveSide();
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
    const bool wasOrthographic = isOrthographic();
    const auto look = [&](float yaw, float pitch) { orbit(pivot, yaw, pitch); };
    switch (side) {
    case Side::Front:
        look(Front, 0.0f);
        break;
    case Side::Back:
        look(Front - 180.0f, 0.0f);
        break;
    case Side::Left:
        look(Front - 90.0f, 0.0f);
        break;
    case Side::Right:
        look(Front + 90.0f, 0.0f);
        break;
    case Side::Top:
        look(Front, -PitchLimit);
        break;
    case Side::Bottom:
        look(Front, PitchLimit);
        break;
    }
    if (!m_hasOrthographicSides)
        return;
    const QVector3D seen = viewMatrix().map(pivot);
    if (!wasOrthographic)
        m_scaleDepth = std::max(-seen.z(), LeastDepth);
    m_isSideOn = true;
    if (m_pitch != 0.0f) {
        m_pitch = std::copysign(90.0f, m_pitch);
        bring(pivot, seen);
    }
}

void Camera::setLens(float degrees, const QVector3D &pivot)
{
    if (!(degrees >= LeastLens && degrees <= MostLens))
        return;
    const QVector3D seen = viewMatrix().map(pivot);
    const float before = tangent();
    m_lens = degrees;
    const float factor = before / tangent();
    m_scaleDepth = scaleDepth(m_scaleDepth, m_scaleDepth * factor);
    if (seen.z() < 0.0f)
        bring(pivot, {seen.x(), seen.y(), -std::clamp(-seen.z() * factor, LeastDepth, MostDepth)});
}

void Camera::setOrthographic(bool on, const QVector3D &pivot)
{
    QVector3D seen = viewMatrix().map(pivot);
    const bool was = isOrthographic();
    m_isOrthographic = on;
    leaveSide();
    if (on && !was)
        m_scaleDepth = std::clamp(-seen.z(), LeastDepth, MostDepth);
    if (on || !was)
        return;
    seen.setZ(-std::max(m_scaleDepth, LeastDepth));
    bring(pivot, seen);
}

void Camera::pan(const QVector3D &pivot, float dx, float dy, int height)
{
    const QVector3D seen = viewMatrix().map(pivot);
    const float unitsPerPixel = 2.0f * depthOf(seen) * tangent() / float(std::max(1, height));
    bring(pivot, seen + QVector3D(dx, -dy, 0.0f) * unitsPerPixel);
    m_framed.reset();
}

void Camera::dolly(const QVector3D &pivot, float factor)
{
    const QVector3D seen = viewMatrix().map(pivot);
    if (isOrthographic()) {
        const float before = m_scaleDepth;
        m_scaleDepth = scaleDepth(before, before * factor);
        const float grown = m_scaleDepth / before;
        // The eye goes along, as near as it may.
        return bring(pivot, {seen.x() * grown, seen.y() * grown, -std::max(m_scaleDepth, LeastDepth)});
    }
    const float depth = -seen.z();
    const bool mayMove = factor < 1.0f ? depth > LeastDepth : depth > 0.0f && depth < MostDepth;
    if (mayMove)
        bring(pivot, seen * (std::clamp(depth * factor, LeastDepth, MostDepth) / depth));
}
