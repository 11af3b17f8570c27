// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector3D>
#include <QVector4D>

namespace Motion {
/// Whether a rotation has a direction at all.
bool isTurn(const QVector4D &xyzw);

/// What stands between two keys at `t`, 0 to 1. At 0 and at 1, and where a key is no number, it is one of the
/// keys, bit for bit. Rotations go the shorter way and get the length 1; yaw, in radians, goes the shorter
/// way and on from `from` without a jump.
QVector3D between(const QVector3D &from, const QVector3D &to, double t);
QVector4D between(const QVector4D &from, const QVector4D &to, double t);
float yawBetween(float from, float to, double t);

/// Whether two keys are so near that nobody sees a jump between them: 0.001 units, 0.05 degrees.
bool isNear(const QVector3D &a, const QVector3D &b);
bool isNear(const QVector4D &a, const QVector4D &b);
bool isNearYaw(float a, float b);
} // namespace Motion
