// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QQuaternion>
#include <QVector3D>

#include <array>
#include <cmath>

/// A rotation and then a translation, in double precision: a chain of bones loses nothing on its way.
struct Rigid
{
    using Vector = std::array<double, 3>;

    std::array<double, 4> rotation{0.0, 0.0, 0.0, 1.0}; ///< unit quaternion x, y, z, w
    Vector translation{0.0, 0.0, 0.0};

    /// A quaternion of any length is made a unit; one without length or with what is no number does not turn.
    static Rigid from(const QVector3D &translation, const QQuaternion &rotation)
    {
        Rigid made;
        made.translation = {double(translation.x()), double(translation.y()), double(translation.z())};
        const std::array<double, 4> turn{double(rotation.x()), double(rotation.y()), double(rotation.z()),
                                         double(rotation.scalar())};
        const double length =
            std::sqrt(turn[0] * turn[0] + turn[1] * turn[1] + turn[2] * turn[2] + turn[3] * turn[3]);
        if (length > 0.0 && std::isfinite(length)) {
            for (size_t i = 0; i < 4; ++i)
                made.rotation[i] = turn[i] / length;
        }
        return made;
    }

    QVector3D position() const
    {
        return {float(translation[0]), float(translation[1]), float(translation[2])};
    }
    QQuaternion turn() const
    {
        return {float(rotation[3]), float(rotation[0]), float(rotation[1]), float(rotation[2])};
    }

    Vector rotated(const Vector &v) const
    {
        const auto &[x, y, z, w] = rotation;
        const Vector t{2.0 * (y * v[2] - z * v[1]), 2.0 * (z * v[0] - x * v[2]), 2.0 * (x * v[1] - y * v[0])};
        return {v[0] + w * t[0] + y * t[2] - z * t[1], v[1] + w * t[1] + z * t[0] - x * t[2],
                v[2] + w * t[2] + x * t[1] - y * t[0]};
    }
    Vector map(const Vector &v) const
    {
        const Vector turned = rotated(v);
        return {turned[0] + translation[0], turned[1] + translation[1], turned[2] + translation[2]};
    }

    Rigid operator*(const Rigid &inner) const
    {
        const auto &[ax, ay, az, aw] = rotation;
        const auto &[bx, by, bz, bw] = inner.rotation;
        return {{aw * bx + ax * bw + ay * bz - az * by, aw * by - ax * bz + ay * bw + az * bx,
                 aw * bz + ax * by - ay * bx + az * bw, aw * bw - ax * bx - ay * by - az * bz},
                map(inner.translation)};
    }
    Rigid inverse() const
    {
        Rigid back{{-rotation[0], -rotation[1], -rotation[2], rotation[3]}, {}};
        const Vector moved = back.rotated(translation);
        back.translation = {-moved[0], -moved[1], -moved[2]};
        return back;
    }
};
