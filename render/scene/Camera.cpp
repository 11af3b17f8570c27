// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Camera.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr QVector3D StartPosition(0.0f, -300.0f, 600.0f);
constexpr float StartYaw = 180.0f;
constexpr float SmoothTime = 0.05f; // seconds
constexpr float FastFactor = 3.0f;
constexpr float FieldOfView = 90.0f; // vertical, degrees
/// Of a place to stand: beyond any model; farther out a float has no fractions left.
constexpr float MostDistance = 1e6f;
/// Of a flight, which steps of an absurd length could take out of all numbers.
constexpr float MostFlight = 1e9f;

bool isWithin(float limit, const QVector3D &place)
{
    return std::fabs(place.x()) <= limit && std::fabs(place.y()) <= limit && std::fabs(place.z()) <= limit;
}

/// Equal to about five digits. Towards a target of 0 only 0 itself is equal.
bool arrived(float value, float target)
{
    return std::fabs(value - target) * 100000.0f <= std::min(std::fabs(value), std::fabs(target));
}
} // namespace

float smoothDamp(float current, float target, float &velocity, float smoothTime, float dt)
{
    const float omega = 2.0f / std::max(smoothTime, 0.0001f);
    const float x = omega * dt;
    const float decay = 1.0f / (1.0f + x + 0.48f * x * x + 0.235f * x * x * x);
    const float change = current - target;
    const float step = (velocity + omega * change) * dt;
    velocity = (velocity - omega * step) * decay;
    const float result = target + (change + step) * decay;
    if ((target - current > 0.0f) == (result > target)) {
        velocity = 0.0f;
        return target;
    }
    return result;
}

void Camera::reset()
{
    m_position = m_targetPosition = StartPosition;
    m_yaw = m_targetYaw = StartYaw;
    m_pitch = m_targetPitch = 0.0f;
    m_framed.reset();
}

void Camera::place(const QVector3D &position, float yaw, float pitch)
{
    if (!isWithin(MostDistance, position) || !isWithin(MostDistance, {yaw, pitch, 0.0f}))
        return;
    m_position = m_targetPosition = position;
    m_yaw = m_targetYaw = std::fmod(yaw, 360.0f);
    m_pitch = m_targetPitch = std::clamp(pitch, -PitchLimit, PitchLimit);
    m_positionVelocity = {};
    m_yawVelocity = m_pitchVelocity = 0.0f;
    m_framed.reset();
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

bool Camera::flies() const
{
    return !m_buttons[LeftButton] && (m_keys[Forward] || m_keys[Back] || m_keys[Left] || m_keys[Right]);
}

bool Camera::press(Button button)
{
    const bool captures = !m_captured;
    if (captures) {
        m_captured = true;
        m_ticksSinceCapture = 0;
    }
    m_buttons[button] = true;
    if (button == LeftButton) {
        m_targetPosition = m_position;
        m_positionVelocity = {};
    } else if (button == RightButton) {
        m_targetYaw = m_yaw;
        m_targetPitch = m_pitch;
        m_yawVelocity = m_pitchVelocity = 0.0f;
    }
    if (m_buttons[LeftButton] && m_buttons[RightButton]) {
        m_targetPosition = m_position;
        m_positionVelocity.setY(0.0f);
    }
    return captures;
}

bool Camera::release(Button button)
{
    m_buttons[button] = false;
    if (!m_captured || m_buttons[LeftButton] || m_buttons[RightButton])
        return false;
    m_captured = false;
    return true;
}

bool Camera::releaseAll()
{
    std::fill(std::begin(m_keys), std::end(m_keys), false);
    std::fill(std::begin(m_buttons), std::end(m_buttons), false);
    const bool wasCaptured = m_captured;
    m_captured = false;
    return wasCaptured;
}

bool Camera::drag(float dx, float dy, float speed)
{
    if (!m_captured || m_ticksSinceCapture < 1)
        return false;
    if (m_buttons[LeftButton]) {
        const QVector3D right = rotation().rotatedVector({1.0f, 0.0f, 0.0f});
        const QVector3D forward = rotation().rotatedVector({0.0f, 0.0f, 1.0f});
        QVector3D move;
        // The heights of both directions are dropped: only a drag with both buttons goes up and down.
        if (m_buttons[RightButton])
            move.setY(dy * speed);
        else
            move -= QVector3D(forward.x(), 0.0f, forward.z()) * (dy * speed);
        move -= QVector3D(right.x(), 0.0f, right.z()) * (dx * speed);
        if (isWithin(MostFlight, m_targetPosition + move))
            m_targetPosition += move;
    } else if (m_buttons[RightButton]) {
        m_targetYaw -= dx * DegreesPerPixel;
        m_targetPitch = std::clamp(m_targetPitch - dy * DegreesPerPixel, -PitchLimit, PitchLimit);
    }
    return true;
}

bool Camera::tick(float dt, float speed)
{
    if (m_captured)
        ++m_ticksSinceCapture;
    const bool flew = fly(speed);
    // The first tick of a capture may still see the cursor on its way to the centre.
    const bool smoothed = m_captured && m_ticksSinceCapture >= 2 && smooth(dt);
    if (flew || smoothed)
        m_framed.reset();
    return flew || smoothed;
}

bool Camera::fly(float speed)
{
    if (!flies())
        return false;
    const float step = speed * (m_keys[Fast] ? FastFactor : 1.0f);
    const QVector3D forward = rotation().rotatedVector({0.0f, 0.0f, 1.0f}) * step;
    const QVector3D right = rotation().rotatedVector({1.0f, 0.0f, 0.0f}) * step;
    QVector3D position = m_position;
    if (m_keys[Forward])
        position += forward;
    else if (m_keys[Back])
        position -= forward;
    if (m_keys[Right])
        position -= right;
    else if (m_keys[Left])
        position += right;
    if (isWithin(MostFlight, position))
        m_position = position;
    return true;
}

// Position goes before angles: angles are smoothed only in ticks in which no position was.
bool Camera::smooth(float dt)
{
    const auto damp = [&](int axis) {
        m_position[axis] =
            smoothDamp(m_position[axis], m_targetPosition[axis], m_positionVelocity[axis], SmoothTime, dt);
    };
    const auto rests = [&](int axis) { return arrived(m_position[axis], m_targetPosition[axis]); };

    if (m_buttons[LeftButton]) {
        const bool withHeight = m_buttons[RightButton];
        if (!rests(0) || !rests(2) || (withHeight && !rests(1))) {
            damp(0);
            if (withHeight)
                damp(1);
            damp(2);
            return true;
        }
    }
    if (m_buttons[RightButton] && !(arrived(m_yaw, m_targetYaw) && arrived(m_pitch, m_targetPitch))) {
        m_yaw = smoothDamp(m_yaw, m_targetYaw, m_yawVelocity, SmoothTime, dt);
        m_pitch = smoothDamp(m_pitch, m_targetPitch, m_pitchVelocity, SmoothTime, dt);
        return true;
    }
    return false;
}
