// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneMath.h"

#include <algorithm>

namespace {
/// Of a matrix whose greatest element is 1. What single precision leaves of a scale of zero is far below,
/// the flattest scale that anyone means above.
constexpr double LeastDeterminant = 1e-12;
constexpr int MostSteps = 100; // some ten do even for what is stretched a thousandfold
constexpr double StepsEnd = 1e-14;

double greatest(const Matrix3 &m)
{
    double value = 0.0;
    for (unsigned row = 0; row < 3; ++row) {
        for (unsigned column = 0; column < 3; ++column)
            value = std::max(value, std::abs(m[row][column]));
    }
    return value;
}

Matrix3 scaled(const Matrix3 &m, double factor)
{
    return {m.a1 * factor, m.a2 * factor, m.a3 * factor, m.b1 * factor, m.b2 * factor,
            m.b3 * factor, m.c1 * factor, m.c2 * factor, m.c3 * factor};
}

Matrix3 sum(const Matrix3 &a, const Matrix3 &b)
{
    return {a.a1 + b.a1, a.a2 + b.a2, a.a3 + b.a3, a.b1 + b.b1, a.b2 + b.b2,
            a.b3 + b.b3, a.c1 + b.c1, a.c2 + b.c2, a.c3 + b.c3};
}
} // namespace

std::optional<Turn> turnOf(const Matrix4 &m)
{
    Matrix3 rotation(m);
    const double size = greatest(rotation);
    if (!(size > 0.0) || !std::isfinite(size))
        return std::nullopt;
    rotation = scaled(rotation, 1.0 / size);
    const double determinant = rotation.Determinant();
    if (!(std::abs(determinant) > LeastDeterminant)) // also of what is no number
        return std::nullopt;
    if (determinant < 0.0)
        rotation = scaled(rotation, -1.0);
    // Newton's iteration: the mean of a matrix and its inverse transpose, until they are one. The factor
    // brings what is far from a rotation near to one at once (Higham, "Computing the polar decomposition").
    for (int step = 0; step < MostSteps; ++step) {
        Matrix3 other = rotation;
        other.Inverse().Transpose();
        const double factor = std::sqrt(greatest(other) / greatest(rotation));
        const Matrix3 next = sum(scaled(rotation, factor / 2.0), scaled(other, 0.5 / factor));
        const double change = greatest(sum(next, scaled(rotation, -1.0)));
        rotation = next;
        if (change < StepsEnd)
            break;
    }
    Turn turn(rotation);
    return turn.Normalize();
}
