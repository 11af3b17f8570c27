// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FlightTool.h"

#include "Framing.h"
#include "ViewInput.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr float SmoothTime = 0.05f; // seconds
constexpr float FastFactor = 3.0f;
/// Steps of an absurd length could take the camera out of all numbers.
constexpr float MostFlight = 1e9f;

/// Equal to about five digits. Towards a target of 0 only 0 itself is equal.
bool arrived(float value, float target)
{
    return std::fabs(value - target) * 100000.0f <= std::min(std::fabs(value), std::fabs(target));
}

/// Ctrl+S and the like belong to the window, even where it has no use for them just now.
bool isCommand(const ViewInput &input)
{
    return (input.modifiers & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0 &&
           input.key != Qt::Key_Shift;
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

FlightTool::FlightTool(Camera &camera)
    : m_camera(camera)
    , m_jumps(camera.jumps())
{
    aimAtPosition();
    aimAtAngles();
}

void FlightTool::aimAtAngles()
{
    m_targetYaw = m_camera.yaw();
    m_targetPitch = m_camera.pitch();
}

void FlightTool::reset()
{
    followJumps();
    m_camera.reset();
    aimAtPosition();
    aimAtAngles();
    m_jumps = m_camera.jumps();
}

// A camera that was put elsewhere stays there: it is not drawn back to where a drag wanted it.
void FlightTool::followJumps()
{
    const Camera::Jumps jumps = m_camera.jumps();
    if (jumps.position != m_jumps.position) {
        aimAtPosition();
        m_positionVelocity = {};
    }
    if (jumps.angles != m_jumps.angles)
        aimAtAngles();
    m_jumps = jumps;
}

bool FlightTool::press(const ViewInput &input)
{
    followJumps();
    if (!m_captured) {
        m_captured = true;
        m_ticksSinceCapture = 0;
    }
    if (input.button == Qt::LeftButton) {
        m_left = true;
        aimAtPosition();
        m_positionVelocity = {};
    } else if (input.button == Qt::RightButton) {
        m_right = true;
        aimAtAngles();
        m_yawVelocity = m_pitchVelocity = 0.0f;
    }
    if (m_left && m_right) {
        aimAtPosition();
        m_positionVelocity.setY(0.0f);
    }
    return true;
}

bool FlightTool::release(const ViewInput &input)
{
    if (input.button == Qt::LeftButton)
        m_left = false;
    else if (input.button == Qt::RightButton)
        m_right = false;
    m_captured = m_captured && (m_left || m_right);
    return false;
}

void FlightTool::cancel()
{
    m_held.fill(false);
    m_left = m_right = m_captured = false;
}

std::optional<int> FlightTool::move(const ViewInput &input)
{
    if (!m_captured)
        return std::nullopt;
    // Before the first tick the cursor may not stand in the centre yet.
    if (m_ticksSinceCapture < 1)
        return 0;
    followJumps();
    const auto dx = float(input.step.x()), dy = float(input.step.y());
    if (m_left) {
        const QVector3D right = m_camera.rotation().rotatedVector({1.0f, 0.0f, 0.0f});
        const QVector3D forward = m_camera.rotation().rotatedVector({0.0f, 0.0f, 1.0f});
        QVector3D way;
        // The heights of both directions are dropped: only a drag with both buttons goes up and down.
        if (m_right)
            way.setY(dy * m_speed);
        else
            way -= QVector3D(forward.x(), 0.0f, forward.z()) * (dy * m_speed);
        way -= QVector3D(right.x(), 0.0f, right.z()) * (dx * m_speed);
        if (isWithin(MostFlight, m_targetPosition + way))
            m_targetPosition += way;
    } else if (m_right) {
        m_targetYaw -= dx * Camera::DegreesPerPixel;
        m_targetPitch =
            std::clamp(m_targetPitch - dy * Camera::DegreesPerPixel, -Camera::PitchLimit, Camera::PitchLimit);
    }
    return input.step.manhattanLength();
}

bool FlightTool::setHeld(const ViewInput &input, bool held)
{
    const auto *key = std::find_if(std::begin(FlightKeys), std::end(FlightKeys),
                                   [&](const FlightKey &each) { return each.key == input.key; });
    if (key == std::end(FlightKeys) || (key->motion == FlightMotion::ResetCamera && !held))
        return false;
    if (input.autoRepeat)
        return true;
    if (key->motion == FlightMotion::ResetCamera)
        reset();
    else
        m_held[size_t(key->motion)] = held;
    return true;
}

bool FlightTool::keyPress(const ViewInput &input)
{
    return !isCommand(input) && setHeld(input, true);
}

bool FlightTool::keyRelease(const ViewInput &input)
{
    // Whatever the modifiers are by now: a key that was pressed is let go.
    return setHeld(input, false);
}

bool FlightTool::tick(float dt)
{
    followJumps();
    if (m_captured)
        ++m_ticksSinceCapture;
    const bool flew = fly();
    // The first tick of a capture may still see the cursor on its way to the centre.
    const bool smoothed = m_captured && m_ticksSinceCapture >= 2 && smooth(dt);
    return flew || smoothed;
}

bool FlightTool::flies() const
{
    return !m_left && (isHeld(FlightMotion::Forward) || isHeld(FlightMotion::Back) ||
                       isHeld(FlightMotion::Left) || isHeld(FlightMotion::Right));
}

bool FlightTool::fly()
{
    if (!flies())
        return false;
    const float step = m_speed * (isHeld(FlightMotion::Fast) ? FastFactor : 1.0f);
    const QVector3D forward = m_camera.rotation().rotatedVector({0.0f, 0.0f, 1.0f}) * step;
    const QVector3D right = m_camera.rotation().rotatedVector({1.0f, 0.0f, 0.0f}) * step;
    QVector3D position = m_camera.position();
    if (isHeld(FlightMotion::Forward))
        position += forward;
    else if (isHeld(FlightMotion::Back))
        position -= forward;
    if (isHeld(FlightMotion::Right))
        position -= right;
    else if (isHeld(FlightMotion::Left))
        position += right;
    m_camera.flyTo(isWithin(MostFlight, position) ? position : m_camera.position());
    return true;
}

// Position goes before angles: angles are smoothed only in ticks in which no position was.
bool FlightTool::smooth(float dt)
{
    return (m_left && smoothPosition(dt)) || (m_right && smoothAngles(dt));
}

bool FlightTool::smoothPosition(float dt)
{
    QVector3D position = m_camera.position();
    const auto rests = [&](int axis) { return arrived(position[axis], m_targetPosition[axis]); };
    const auto damp = [&](int axis) {
        position[axis] =
            smoothDamp(position[axis], m_targetPosition[axis], m_positionVelocity[axis], SmoothTime, dt);
    };
    const bool withHeight = m_right;
    if (rests(0) && rests(2) && (!withHeight || rests(1)))
        return false;
    damp(0);
    if (withHeight)
        damp(1);
    damp(2);
    m_camera.flyTo(position);
    return true;
}

bool FlightTool::smoothAngles(float dt)
{
    float yaw = m_camera.yaw(), pitch = m_camera.pitch();
    if (arrived(yaw, m_targetYaw) && arrived(pitch, m_targetPitch))
        return false;
    yaw = smoothDamp(yaw, m_targetYaw, m_yawVelocity, SmoothTime, dt);
    pitch = smoothDamp(pitch, m_targetPitch, m_pitchVelocity, SmoothTime, dt);
    m_camera.turnTo(yaw, pitch);
    return true;
}
