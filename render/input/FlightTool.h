// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Camera.h"
#include "FlightKeys.h"
#include "ViewTool.h"

#include <array>

/// One step of a critically damped spring from `current` towards `target`. `velocity` (units per second) is
/// carried from step to step; times are in seconds. Never overshoots.
float smoothDamp(float current, float target, float &velocity, float smoothTime, float dt);

/// Flies the camera: held keys move it at once, a step a tick, and drags with the captured mouse set targets
/// that it is smoothed towards. The left button moves it in the plane, the right one turns it, both move it
/// sideways, up and down. Any button captures the mouse; it is free again when left and right are both up.
class FlightTool : public ViewTool
{
public:
    explicit FlightTool(Camera &camera);

    /// Units per pixel of a drag, and per tick of a held key.
    void setSpeed(float speed) { m_speed = speed; }
    /// As Camera::reset(); a drag goes on from there, as fast as it was.
    void reset();

    bool press(const ViewInput &input) override;
    std::optional<int> move(const ViewInput &input) override;
    bool release(const ViewInput &input) override;
    bool keyPress(const ViewInput &input) override;
    bool keyRelease(const ViewInput &input) override;
    bool tick(float dt) override;
    void cancel() override;
    ViewCursor cursor() const override { return m_captured ? ViewCursor::Captured : ViewCursor::Arrow; }

private:
    bool isHeld(FlightMotion motion) const { return m_held[size_t(motion)]; }
    bool setHeld(const ViewInput &input, bool held);
    void aimAtPosition() { m_targetPosition = m_camera.position(); }
    void aimAtAngles();
    void followJumps();
    bool flies() const;
    bool fly();
    bool smooth(float dt);
    bool smoothPosition(float dt);
    bool smoothAngles(float dt);

    Camera &m_camera;
    Camera::Jumps m_jumps; ///< of the camera, which the targets know about
    float m_speed = 0.0f;
    std::array<bool, size_t(FlightMotion::Count)> m_held{}; ///< by motion
    bool m_left = false;                                    ///< the button
    bool m_right = false;
    bool m_captured = false;
    int m_ticksSinceCapture = 0;
    QVector3D m_targetPosition;
    QVector3D m_positionVelocity;
    float m_targetYaw = 0.0f;
    float m_targetPitch = 0.0f;
    float m_yawVelocity = 0.0f;
    float m_pitchVelocity = 0.0f;
};
