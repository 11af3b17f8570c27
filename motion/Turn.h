// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector3D>
#include <QVector4D>

#include <cmath>

namespace Motion {
/// A place or a difference of places, in double precision: what goes through many turns is rounded once.
struct Place
{
    double x = 0;
    double y = 0;
    double z = 0;
};

inline Place placeOf(const QVector3D &v)
{
    return {double(v.x()), double(v.y()), double(v.z())};
}
inline QVector3D vectorOf(const Place &p)
{
    return {float(p.x), float(p.y), float(p.z)};
}
inline Place operator+(const Place &a, const Place &b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Place operator-(const Place &a, const Place &b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Place operator*(double factor, const Place &p)
{
    return {factor * p.x, factor * p.y, factor * p.z};
}
inline double lengthOf(const Place &p)
{
    return std::sqrt(p.x * p.x + p.y * p.y + p.z * p.z);
}

/// A rotation as a quaternion of length 1, in double precision.
struct Turn
{
    double x = 0;
    double y = 0;
    double z = 0;
    double w = 1;

    /// No rotation where the length is next to none, or no number.
    static Turn of(const QVector4D &xyzw)
    {
        return Turn{double(xyzw.x()), double(xyzw.y()), double(xyzw.z()), double(xyzw.w())}.normalized();
    }
    static Turn aboutZ(double radians) { return {0, 0, std::sin(radians / 2), std::cos(radians / 2)}; }

    Turn normalized() const
    {
        const double squared = dot(*this);
        if (!(squared > 1e-12) || !std::isfinite(squared)) // as QQuaternion::normalized()
            return {};
        const double length = std::sqrt(squared);
        return {x / length, y / length, z / length, w / length};
    }
    QVector4D toVector() const { return {float(x), float(y), float(z), float(w)}; }
    double dot(const Turn &other) const { return x * other.x + y * other.y + z * other.z + w * other.w; }
    Turn inverse() const { return {-x, -y, -z, w}; }
    Turn negated() const { return {-x, -y, -z, -w}; }
    /// Seen in a mirror that stands in the plane x = 0.
    Turn mirrored() const { return {x, -y, -z, w}; }
};

/// The right one first, then the left one.
inline Turn operator*(const Turn &a, const Turn &b)
{
    return {a.w * b.x + a.x * b.w + a.y * b.z - a.z * b.y, //
            a.w * b.y - a.x * b.z + a.y * b.w + a.z * b.x, //
            a.w * b.z + a.x * b.y - a.y * b.x + a.z * b.w, //
            a.w * b.w - a.x * b.x - a.y * b.y - a.z * b.z};
}

inline Place operator*(const Turn &turn, const Place &p)
{
    const Turn turned = turn * Turn{p.x, p.y, p.z, 0} * turn.inverse();
    return {turned.x, turned.y, turned.z};
}

/// Radians between two rotations, the shorter way.
inline double angleBetween(const Turn &a, const Turn &b)
{
    const Turn way = a.inverse() * b;
    return 2 * std::atan2(std::sqrt(way.x * way.x + way.y * way.y + way.z * way.z), std::abs(way.w));
}
} // namespace Motion
