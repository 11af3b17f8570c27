// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QSize>
#include <QVector3D>

#include <array>
#include <vector>

/// Whether no coordinate is farther from 0; false for what is no place.
bool isWithin(float limit, const QVector3D &point);

/// How far points reach beyond the sides of a pyramid of vision, whose tip then goes where it has all of them
/// inside. Points that are not finite do not count.
class VisionExtent
{
public:
    /// `turn` turns the points so that the eye looks along -z; the tangents are those of the angles between
    /// that direction and the sides of the picture.
    VisionExtent(const std::vector<QVector3D> &points, const QMatrix4x4 &turn, float tangentX,
                 float tangentY);

    bool isEmpty() const { return m_isEmpty; }
    /// The nearest eye, in the turned space, that sees all points, at least `least` before the nearest one.
    /// The points reach as far to the left of the picture as to the right, and as far up as down.
    QVector3D eye(float least) const;
    /// Turned z of the points; 0 without points.
    float nearest() const { return m_bounds[Nearest]; }
    float farthest() const { return -m_bounds[Farthest]; }

private:
    /// Where on an axis, between `low` and `high`, the eye sees as much on either side.
    float middle(int axis, float low, float high, float eyeZ) const;

    enum Bound { Right, Left, Up, Down, Nearest, Farthest, BoundCount };

    std::vector<QVector3D> m_points; ///< turned
    float m_tangentX;
    float m_tangentY;
    std::array<float, BoundCount> m_bounds{};
    bool m_isEmpty = true;
};

/// Of a still camera, vertical, in degrees. Narrower than the viewport's, which flies among models: a whole
/// model looks less distorted so.
constexpr float UsualStillLens = 30.0f;

/// Where a still camera stands, as a frame is painted with it.
struct Framing
{
    QMatrix4x4 view;
    QMatrix4x4 projection;
};

/// The nearest camera that has all of `points` (in the view's y-up space) in a picture of this size, with a
/// little room around them. `yaw` goes around the model: 0 degrees stand before its front, 90 see its left
/// side; `pitch`, -90 to 90 degrees, looks down from above. Points that are not finite do not count; without
/// points the origin is in view. `lens` is the vertical field of view in degrees, above 0 and below 180.
Framing frameAll(const std::vector<QVector3D> &points, float yaw, float pitch, const QSize &size,
                 float lens = UsualStillLens);

/// Of many points the few that decide how far away the camera of frameAll() stands, so that those of many
/// poses need not be kept: it has all of them in its picture when it has these.
class OutermostPoints
{
public:
    /// As for frameAll().
    OutermostPoints(float yaw, float pitch, const QSize &size, float lens = UsualStillLens);

    void add(const std::vector<QVector3D> &points);
    /// The circles on which these points go around the upright axis through `pivot`.
    void addCircles(const std::vector<QVector3D> &points, const QVector3D &pivot);
    std::vector<QVector3D> points() const;

private:
    /// Of the pyramid of vision: right, left, above, below, near, far.
    static constexpr size_t SideCount = 6;

    void keep(size_t side, float distance, const QVector3D &point);

    std::array<QVector3D, SideCount> m_outward; ///< directions, square to the sides
    std::array<QVector3D, SideCount> m_points;
    std::array<float, SideCount> m_farthest;
    bool m_isEmpty = true;
};
