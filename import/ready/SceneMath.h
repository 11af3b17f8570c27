// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector3D>
#include <QVector4D>

#include <assimp/types.h>

#include <cmath>
#include <limits>
#include <optional>

// A model's places come of chains of matrices, some dozens deep: single precision would show in the fingers.
using Matrix4 = aiMatrix4x4t<double>;
using Matrix3 = aiMatrix3x3t<double>;
using Vector3 = aiVector3t<double>;
using Turn = aiQuaterniont<double>;

inline Vector3 exact(const aiVector3D &v)
{
    return {double(v.x), double(v.y), double(v.z)};
}

inline Turn exact(const aiQuaternion &q)
{
    return {double(q.w), double(q.x), double(q.y), double(q.z)};
}

inline QVector3D single(const Vector3 &v)
{
    return {float(v.x), float(v.y), float(v.z)};
}

/// x, y, z, w.
inline QVector4D single(const Turn &q)
{
    return {float(q.x), float(q.y), float(q.z), float(q.w)};
}

/// Whether all are numbers that single precision can hold.
inline bool isFinite(const Vector3 &v)
{
    return std::abs(v.x) + std::abs(v.y) + std::abs(v.z) < double(std::numeric_limits<float>::max());
}

inline double dot(const Turn &a, const Turn &b)
{
    return a.w * b.w + a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Turn negative(const Turn &q)
{
    return {-q.w, -q.x, -q.y, -q.z};
}

inline void addScaled(Matrix3 &sum, const Matrix3 &m, double factor)
{
    for (unsigned row = 0; row < 3; ++row) {
        for (unsigned column = 0; column < 3; ++column)
            sum[row][column] += m[row][column] * factor;
    }
}

inline Vector3 originOf(const Matrix4 &m)
{
    return {m.a4, m.b4, m.c4};
}

/// Maps normals as `m` maps planes: its cofactors. Unlike the inverse it is there for matrices that flatten,
/// too. Lengths come out as they may.
inline Matrix3 normalMatrix(const Matrix4 &m)
{
    const double sign = Matrix3(m).Determinant() < 0.0 ? -1.0 : 1.0;
    return {sign * (m.b2 * m.c3 - m.b3 * m.c2), sign * (m.b3 * m.c1 - m.b1 * m.c3),
            sign * (m.b1 * m.c2 - m.b2 * m.c1), sign * (m.c2 * m.a3 - m.c3 * m.a2),
            sign * (m.c3 * m.a1 - m.c1 * m.a3), sign * (m.c1 * m.a2 - m.c2 * m.a1),
            sign * (m.a2 * m.b3 - m.a3 * m.b2), sign * (m.a3 * m.b1 - m.a1 * m.b3),
            sign * (m.a1 * m.b2 - m.a2 * m.b1)};
}

/// Scales, then turns, then shifts. The library's own matrix of these three turns before it scales.
inline Matrix4 composed(const Vector3 &scale, const Turn &turn, const Vector3 &place)
{
    const Matrix3 r = turn.GetMatrix();
    return {r.a1 * scale.x,
            r.a2 * scale.y,
            r.a3 * scale.z,
            place.x, //
            r.b1 * scale.x,
            r.b2 * scale.y,
            r.b3 * scale.z,
            place.y, //
            r.c1 * scale.x,
            r.c2 * scale.y,
            r.c3 * scale.z,
            place.z, //
            0.0,
            0.0,
            0.0,
            1.0};
}

/// The identity for a matrix that holds what is no number.
inline Matrix4 exact(const aiMatrix4x4 &m)
{
    const Matrix4 wide = m;
    double sum = 0.0;
    for (unsigned row = 0; row < 4; ++row)
        sum += wide[row][0] + wide[row][1] + wide[row][2] + wide[row][3];
    return std::isfinite(sum) ? wide : Matrix4();
}

/// The rotation in the polar decomposition of `m`, which is the turn that scales least; of a matrix that
/// mirrors, the one of its negative. So it follows `m` without jumps, and turning `m` turns it as much. None
/// of a matrix that flattens, or is no number.
std::optional<Turn> turnOf(const Matrix4 &m);

/// A place without scale, as the game has it of bones.
struct RigidFrame
{
    Turn turn;
    Vector3 origin;

    /// Of a point in the frame's space, the one around it.
    Vector3 map(const Vector3 &point) const { return turn.Rotate(point) + origin; }
    /// The other way.
    Vector3 unmap(const Vector3 &point) const { return unturn(point - origin); }
    Vector3 unturn(const Vector3 &direction) const
    {
        Turn back = turn;
        return back.Conjugate().Rotate(direction);
    }
};
