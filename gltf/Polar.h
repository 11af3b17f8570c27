// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Rigid.h"

#include <QMatrix4x4>

inline Rigid::Vector toDoubles(const QVector3D &v)
{
    return {double(v.x()), double(v.y()), double(v.z())};
}

inline QVector3D toFloats(const Rigid::Vector &v)
{
    return {float(v[0]), float(v[1]), float(v[2])};
}

/// What a bone can have of a matrix: its translation and the rotation of its polar decomposition. `scale`
/// becomes the cube root of the determinant, negative for a mirror; of a singular matrix, which has no such
/// rotation, it is 0 and the rotation is that of `before`.
Rigid rigidPart(const QMatrix4x4 &matrix, double &scale, const Rigid &before = {});

/// The angle between two unit quaternions x, y, z, w in radians, exact for small ones.
double angleBetween(const std::array<double, 4> &a, const std::array<double, 4> &b);
