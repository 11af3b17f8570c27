// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QQuaternion>
#include <QVector3D>

/// One step of a critically damped spring from `current` towards `target`. `velocity` (units per second) is
/// carried from step to step; times are in seconds. Never overshoots.
float smoothDamp(float current, float target, float &velocity, float smoothTime, float dt);

/// The viewport's camera: keys fly it at once, mouse drags set targets that it is smoothed towards. Knows no
/// window: the widget hands in keys, buttons, mouse offsets and ticks.
class Camera
{
public:
    enum Key { Forward, Back, Left, Right, Fast, KeyCount };
    enum Button { LeftButton, RightButton, MiddleButton, ButtonCount };

    Camera() { reset(); }

    /// In front of the origin and above the ground, looking at a model's front.
    void reset();

    /// Puts the camera anywhere at once; angles in degrees, brought into their range.
    void place(const QVector3D &position, float yaw, float pitch);

    /// The offset applied to the world, not the eye's place.
    const QVector3D &position() const { return m_position; }
    const QVector3D &targetPosition() const { return m_targetPosition; }
    float yaw() const { return m_yaw; }     ///< degrees
    float pitch() const { return m_pitch; } ///< degrees, -89 to 89
    float targetYaw() const { return m_targetYaw; }
    float targetPitch() const { return m_targetPitch; }

    QMatrix4x4 viewMatrix() const;
    /// Vertical field of view 90 degrees; a width or height of 0 counts as 1.
    static QMatrix4x4 projectionMatrix(int width, int height);

    void setKey(Key key, bool held) { m_keys[key] = held; }
    /// True while a key is held that moves the camera.
    bool flies() const;

    /// A button went down. Returns true when this press captures the mouse.
    bool press(Button button);
    /// A button went up. Returns true when this release gives the mouse back: left and right are both up.
    bool release(Button button);
    /// Lets go of every key and button. Returns true when the mouse was captured.
    bool releaseAll();
    bool isCaptured() const { return m_captured; }

    /// The captured mouse moved by (dx, dy) pixels; `speed` is in units per pixel. Does nothing before the
    /// first tick of a capture, when the cursor may not stand in the centre yet.
    void drag(float dx, float dy, float speed);

    /// One timer tick, `dt` seconds after the one before. A held key moves by `speed` units a tick, whatever
    /// the time. Returns true when anything moved.
    bool tick(float dt, float speed);

private:
    QQuaternion rotation() const { return QQuaternion::fromEulerAngles(m_pitch, m_yaw, 0.0f); }
    bool fly(float speed);
    bool smooth(float dt);

    QVector3D m_position;
    QVector3D m_targetPosition;
    QVector3D m_positionVelocity;
    float m_yaw = 0.0f;
    float m_pitch = 0.0f;
    float m_targetYaw = 0.0f;
    float m_targetPitch = 0.0f;
    float m_yawVelocity = 0.0f;
    float m_pitchVelocity = 0.0f;
    bool m_keys[KeyCount] = {};
    bool m_buttons[ButtonCount] = {};
    bool m_captured = false;
    int m_ticksSinceCapture = 0;
};
