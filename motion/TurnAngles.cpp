// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TurnAngles.h"

#include "KeyBlend.h"

#include <limits>

namespace {
constexpr double DegreesPerRadian = 180 / M_PI;
/// Of the cosine of y: below it single precision says nothing of x and z alone.
constexpr double AtPole = 1e-5;
constexpr double NoNumber = std::numeric_limits<double>::quiet_NaN();

/// The angle with as many full turns that it is nearest to another.
double turnedNear(double degrees, double near)
{
    return near + std::remainder(degrees - near, 360.0);
}

double distance(const Motion::Angles &a, const Motion::Angles &b)
{
    double sum = 0;
    for (size_t i = 0; i < 3; ++i)
        sum += (a[i] - b[i]) * (a[i] - b[i]);
    return sum;
}

struct Parts
{
    double sineY;
    double cosineY;
    double sineX; ///< these two times the cosine of y
    double cosineX;
};

Parts partsOf(const Motion::Turn &q)
{
    const double sineX = 2 * (q.w * q.x + q.y * q.z);
    const double cosineX = 1 - 2 * (q.x * q.x + q.y * q.y);
    return {2 * (q.w * q.y - q.z * q.x), std::hypot(sineX, cosineX), sineX, cosineX};
}
} // namespace

namespace Motion {
Turn turnOf(const Angles &degrees)
{
    const auto about = [&](size_t axis) {
        const double half = degrees[axis] / DegreesPerRadian / 2;
        const double sine = std::sin(half);
        return Turn{axis == 0 ? sine : 0, axis == 1 ? sine : 0, axis == 2 ? sine : 0, std::cos(half)};
    };
    return about(2) * about(1) * about(0);
}

Angles anglesOf(const Turn &turn)
{
    const Parts parts = partsOf(turn);
    const double y = std::atan2(parts.sineY, parts.cosineY) * DegreesPerRadian;
    if (parts.cosineY < AtPole) // all of it goes to x
        return {2 * std::atan2(turn.x, turn.w) * DegreesPerRadian, y, 0};
    return {std::atan2(parts.sineX, parts.cosineX) * DegreesPerRadian, y,
            std::atan2(2 * (turn.w * turn.z + turn.x * turn.y), 1 - 2 * (turn.y * turn.y + turn.z * turn.z)) *
                DegreesPerRadian};
}

Angles anglesNear(const Turn &turn, const Angles &near)
{
    const Angles first = anglesOf(turn);
    if (partsOf(turn).cosineY < AtPole) {
        // x - z or x + z is what it has to be; each goes half of the way there.
        const double sign = first[1] > 0 ? -1 : 1;
        const double way = std::remainder(first[0] - (near[0] + sign * near[2]), 360.0);
        return {near[0] + way / 2, turnedNear(first[1], near[1]), near[2] + sign * way / 2};
    }
    Angles one = first;
    Angles other{first[0] + 180, 180 - first[1], first[2] + 180};
    for (size_t i = 0; i < 3; ++i) {
        one[i] = turnedNear(one[i], near[i]);
        other[i] = turnedNear(other[i], near[i]);
    }
    return distance(other, near) < distance(one, near) ? other : one;
}

std::vector<Angles> anglesOfTrack(const QVector4D *keys, int count, const Angles *start)
{
    std::vector<Angles> angles;
    angles.reserve(size_t(count));
    const Angles *last = start;
    for (int i = 0; i < count; ++i) {
        if (!isTurn(keys[i])) {
            angles.push_back({NoNumber, NoNumber, NoNumber});
            continue;
        }
        const Turn turn = Turn::of(keys[i]);
        angles.push_back(last ? anglesNear(turn, *last) : anglesOf(turn));
        last = &angles.back(); // which has its room already
    }
    return angles;
}

QVector4D keyOf(const Angles &degrees, const QVector4D &replaced)
{
    const Turn turn = turnOf(degrees);
    return (turn.dot(Turn::of(replaced)) < 0 ? turn.negated() : turn).toVector();
}

void unwrap(std::vector<double> &degrees)
{
    double last = NoNumber;
    for (double &angle : degrees) {
        if (!std::isfinite(angle))
            continue;
        if (std::isfinite(last))
            angle = turnedNear(angle, last);
        last = angle;
    }
}
} // namespace Motion
