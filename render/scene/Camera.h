// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QQuaternion>
#include <QSize>
#include <QVector3D>

#include <optional>
#include <vector>

/// Where the viewport looks from, and whither. Whoever flies it there little by little uses flyTo() and
/// turnTo(); all else puts it elsewhere at once.
class Camera
{
public:
    /// From where a model is looked at, as drawings name it: the right side of a model that faces the viewer
    /// is that on the viewer's right.
    enum class Side { Front, Back, Left, Right, Top, Bottom };

    static constexpr float PitchLimit = 89.0f;     ///< degrees
    static constexpr float DegreesPerPixel = 0.5f; ///< of a drag
    static constexpr float NearPlane = 5.12f;
    static constexpr float FarPlane = 100000.0f;
    static constexpr float UsualLens = 90.0f;     ///< vertical field of view, degrees
    static constexpr float DollyPerNotch = 0.88f; ///< of a wheel: how many times as far away it is then

    Camera() { reset(); }

    /// In front of the origin and above the ground, looking at a model's front.
    void reset();

    /// Puts the camera anywhere at once; angles in degrees, brought into their range. Numbers that are not
    /// finite or absurdly large change nothing.
    void place(const QVector3D &position, float yaw, float pitch);

    /// The offset applied to the world, not the eye's place.
    const QVector3D &position() const { return m_position; }
    float yaw() const { return m_yaw; }     ///< degrees
    float pitch() const { return m_pitch; } ///< degrees, -89 to 89, or from an orthographic side -90 or 90
    QQuaternion rotation() const { return QQuaternion::fromEulerAngles(m_pitch, m_yaw, 0.0f); }

    /// Where the eye stands, and where it looks.
    QVector3D eye() const;
    QVector3D sight() const;
    /// What the camera was aimed at with frame(), until it flew on.
    const std::optional<QVector3D> &framed() const { return m_framed; }
    /// What was framed is no longer what it was.
    void forgetFramed() { m_framed.reset(); }

    QMatrix4x4 viewMatrix() const;
    /// Of a picture of this size; a width or height of 0 counts as 1. An orthographic one has all in it that
    /// is less than the far plane away, before the eye and behind it.
    QMatrix4x4 projectionMatrix(int width, int height) const;

    float lens() const { return m_lens; } ///< vertical field of view, degrees
    bool isOrthographic() const { return m_isOrthographic || m_isSideOn; }
    /// Whether lookFrom() is orthographic, and straight down, until the camera is turned or flown.
    void setOrthographicSides(bool on) { m_hasOrthographicSides = on; }

    /// The next step of a flight. What was framed is left behind.
    void flyTo(const QVector3D &position);
    void turnTo(float yaw, float pitch);

    /// How often the camera was put elsewhere at once: where a flight was bound for does not count any more.
    struct Jumps
    {
        int position = 0;
        int angles = 0;
    };
    const Jumps &jumps() const { return m_jumps; }

    // At once, and without losing what was framed.

    /// Goes as near as it can with the sphere around all of `points` in a picture of this size, and keeps its
    /// direction: from another one it is as far away. Without a finite point nothing happens. Returns whether
    /// all of it lies before the far plane.
    bool frame(const std::vector<QVector3D> &points, const QSize &size);
    /// Turns around `pivot`, which keeps its place in the picture. The pitch stops as that of a drag.
    void orbit(const QVector3D &pivot, float yaw, float pitch);
    /// The same for a mouse that moved by (dx, dy) pixels: what is near follows it.
    void orbitDrag(const QVector3D &pivot, float dx, float dy);
    void lookFrom(Side side, const QVector3D &pivot);
    /// Another field of view, 1 to 150 degrees: `pivot` keeps its place in the picture and its size.
    void setLens(float degrees, const QVector3D &pivot);
    /// Whether all is as large, however far away: as large as it was where `pivot` is.
    void setOrthographic(bool on, const QVector3D &pivot);
    /// Follows a mouse that moved by (dx, dy) pixels in a picture of this height: `pivot` goes with it.
    void pan(const QVector3D &pivot, float dx, float dy, int height);
    /// Makes the distance from `pivot` this many times as large; it stays between the near plane and the far.
    /// An orthographic picture comes to show as many times as much.
    void dolly(const QVector3D &pivot, float factor);

private:
    /// Stands where the view has `place` at `seen`, unless no float holds that.
    void bring(const QVector3D &place, const QVector3D &seen);
    float tangent() const; ///< of half the field of view
    /// How deep the plane lies that a pixel of the picture has its size from.
    float depthOf(const QVector3D &seen) const;
    void leaveSide() { m_isSideOn = false; }

    QVector3D m_position;
    std::optional<QVector3D> m_framed;
    float m_yaw = 0.0f;
    float m_pitch = 0.0f;
    float m_lens = UsualLens;
    bool m_isOrthographic = false; ///< until it is no longer wanted
    bool m_isSideOn = false;       ///< the same, until the camera is turned or flown
    bool m_hasOrthographicSides = false;
    float m_scaleDepth = 0.0f; ///< where an orthographic picture is as large as one that is not
    Jumps m_jumps;
};
