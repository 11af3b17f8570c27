// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KeyBlend.h"

#include "Transform.h"
#include "Turn.h"

namespace {
constexpr double NearUnits = 1e-3;
constexpr double NearRadians = 0.05 * M_PI / 180;

/// The full turns between two angles left out.
double shorterWay(float from, float to)
{
    return std::remainder(double(to) - double(from), 2 * M_PI);
}
} // namespace

namespace Motion {
bool isTurn(const QVector4D &xyzw)
{
    double squared = 0;
    for (int i = 0; i < 4; ++i)
        squared += double(xyzw[i]) * double(xyzw[i]);
    return std::isfinite(squared) && squared > 1e-12;
}

QVector3D between(const QVector3D &from, const QVector3D &to, double t)
{
    if (t >= 1)
        return to;
    if (t <= 0 || !isFinite(from) || !isFinite(to))
        return from;
    const Place start = placeOf(from);
    return vectorOf(start + t * (placeOf(to) - start));
}

QVector4D between(const QVector4D &from, const QVector4D &to, double t)
{
    if (t >= 1)
        return to;
    if (t <= 0 || !isTurn(from) || !isTurn(to))
        return from;
    const Turn a = Turn::of(from);
    Turn b = Turn::of(to);
    double cosine = a.dot(b);
    if (cosine < 0) {
        b = b.negated();
        cosine = -cosine;
    }
    double ofA = 1 - t;
    double ofB = t;
    if (cosine < 1 - 1e-9) { // else the arc is as good as straight
        const double angle = std::acos(cosine);
        ofA = std::sin((1 - t) * angle) / std::sin(angle);
        ofB = std::sin(t * angle) / std::sin(angle);
    }
    return Turn{ofA * a.x + ofB * b.x, ofA * a.y + ofB * b.y, ofA * a.z + ofB * b.z, ofA * a.w + ofB * b.w}
        .normalized()
        .toVector();
}

float yawBetween(float from, float to, double t)
{
    if (t >= 1)
        return to;
    if (t <= 0 || !std::isfinite(from) || !std::isfinite(to))
        return from;
    return float(double(from) + t * shorterWay(from, to));
}

bool isNear(const QVector3D &a, const QVector3D &b)
{
    return lengthOf(placeOf(a) - placeOf(b)) <= NearUnits;
}

bool isNear(const QVector4D &a, const QVector4D &b)
{
    return isTurn(a) && isTurn(b) && angleBetween(Turn::of(a), Turn::of(b)) <= NearRadians;
}

bool isNearYaw(float a, float b)
{
    return std::abs(shorterWay(a, b)) <= NearRadians;
}
} // namespace Motion
