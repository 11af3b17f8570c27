// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QQuaternion>
#include <QSize>
#include <QVector3D>

#include <optional>
#include <vector>

/// One step of a critically damped spring from `current` towards `target`. `velocity` (units per second) is
/// carried from step to step; times are in seconds. Never overshoots.
float smoothDamp(float current, float target, float &velocity, float smoothTime, float dt);

/// The viewport's camera: keys fly it at once, mouse drags set targets that it is smoothed towards. Knows no
/// window: the widget hands in keys, buttons, mouse offsets and ticks.
class Camera
{
public:
    enum Key { Forward, Back, Left, Right, Fast, KeyCount };
    /// From where a model is looked at, as drawings name it: the right side of a model that faces the viewer
    /// is that on the viewer's right.
    enum class Side { Front, Back, Left, Right, Top, Bottom };
    enum Button { LeftButton, RightButton, MiddleButton, ButtonCount };

    static constexpr float PitchLimit = 89.0f;     ///< degrees
    static constexpr float DegreesPerPixel = 0.5f; ///< of a drag
    static constexpr float NearPlane = 5.12f;
    static constexpr float FarPlane = 100000.0f;

    Camera() { reset(); }

    /// In front of the origin and above the ground, looking at a model's front.
    void reset();

    /// Puts the camera anywhere at once; angles in degrees, brought into their range. Numbers that are not
    /// finite or absurdly large change nothing.
    void place(const QVector3D &position, float yaw, float pitch);

    /// The offset applied to the world, not the eye's place.
    const QVector3D &position() const { return m_position; }
    const QVector3D &targetPosition() const { return m_targetPosition; }
    float yaw() const { return m_yaw; }     ///< degrees
    float pitch() const { return m_pitch; } ///< degrees, -89 to 89
    float targetYaw() const { return m_targetYaw; }
    float targetPitch() const { return m_targetPitch; }

    /// Where the eye stands, and where it looks.
    QVector3D eye() const;
    QVector3D sight() const;
    /// What the camera was aimed at with frame(), until it flew on.
    const std::optional<QVector3D> &framed() const { return m_framed; }
    /// What was framed is no longer what it was.
    void forgetFramed() { m_framed.reset(); }

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
    /// first tick of a capture, when the cursor may not stand in the centre yet; returns whether it did
    /// anything.
    bool drag(float dx, float dy, float speed);

    /// One timer tick, `dt` seconds after the one before. A held key moves by `speed` units a tick, whatever
    /// the time. Returns true when anything moved.
    bool tick(float dt, float speed);

    // At once, and without losing what was framed.

    /// Goes as near as it can with all of `points` in a picture of this size, and keeps its direction.
    /// Without a finite point nothing happens.
    void frame(const std::vector<QVector3D> &points, const QSize &size);
    /// Turns around `pivot`, which keeps its place in the picture. The pitch stops as that of a drag.
    void orbit(const QVector3D &pivot, float yaw, float pitch);
    /// The same for a mouse that moved by (dx, dy) pixels: what is near follows it.
    void orbitDrag(const QVector3D &pivot, float dx, float dy);
    void lookFrom(Side side, const QVector3D &pivot);
    /// Follows a mouse that moved by (dx, dy) pixels in a picture of this height: `pivot` goes with it.
    void pan(const QVector3D &pivot, float dx, float dy, int height);
    /// Makes the distance from `pivot` this many times as large; it stays between the near plane and the far.
    void dolly(const QVector3D &pivot, float factor);

private:
    /// Stands where the view has `place` at `seen`, unless no float holds that.
    void bring(const QVector3D &place, const QVector3D &seen);
    QQuaternion rotation() const { return QQuaternion::fromEulerAngles(m_pitch, m_yaw, 0.0f); }
    bool fly(float speed);
    bool smooth(float dt);

    QVector3D m_position;
    QVector3D m_targetPosition;
    QVector3D m_positionVelocity;
    std::optional<QVector3D> m_framed;
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
