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

QString axisText(const AxisAngle &rotation)
{
    // Adding 0 takes the sign off a zero.
    const auto number = [](float value) {
        return QString::number(std::round(double(value) * 1e3) / 1e3 + 0.0);
    };
    return QStringLiteral("%1, %2, %3")
        .arg(number(rotation.axis.x()), number(rotation.axis.y()), number(rotation.axis.z()));
}

QVector4D quaternion(const AxisAngle &rotation)
{
    const double half = double(rotation.degrees) * RadiansPerDegree / 2.0;
    const double sine = std::sin(half);
    return {float(double(rotation.axis.x()) * sine), float(double(rotation.axis.y()) * sine),
            float(double(rotation.axis.z()) * sine), float(std::cos(half))};
}
