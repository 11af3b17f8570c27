// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "AxisAngle.h"

#include <QtMath>

#include <cmath>

namespace {
// Double precision throughout, so that a float angle survives the way there and back.
constexpr double RadiansPerDegree = M_PI / 180.0;
} // namespace

AxisAngle axisAngle(const QVector4D &quaternion)
{
    const double x = double(quaternion.x());
    const double y = double(quaternion.y());
    const double z = double(quaternion.z());
    const double sine = std::sqrt(x * x + y * y + z * z);
    const double angle = 2.0 * std::atan2(sine, double(quaternion.w()));
    if (!(sine > 0.0) || !std::isfinite(sine) || !std::isfinite(angle))
        return {};
    return {{float(x / sine), float(y / sine), float(z / sine)}, float(angle / RadiansPerDegree)};
}

QVector4D quaternion(const AxisAngle &rotation)
{
    const double half = double(rotation.degrees) * RadiansPerDegree / 2.0;
    const double sine = std::sin(half);
    return {float(double(rotation.axis.x()) * sine), float(double(rotation.axis.y()) * sine),
            float(double(rotation.axis.z()) * sine), float(std::cos(half))};
}
