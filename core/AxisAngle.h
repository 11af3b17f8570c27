// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector3D>
#include <QVector4D>

/// A rotation as an axis of length 1 and an angle.
struct AxisAngle
{
    QVector3D axis{0.0f, 0.0f, 1.0f};
    float degrees = 0.0f; ///< 0 to 360
};

/// The rotation of a quaternion x, y, z, w of any length. No rotation (and a quaternion that is none: zero
/// or not finite) turns about z.
AxisAngle axisAngle(const QVector4D &quaternion);

/// "0, 1, 0", rounded to what the eye needs.
QString axisText(const AxisAngle &rotation);

/// The unit quaternion x, y, z, w of a rotation.
QVector4D quaternion(const AxisAngle &rotation);
