// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Polar.h"

#include <algorithm>

namespace {
using Square = std::array<std::array<double, 3>, 3>;

/// The matrix of the cofactors: the inverse transposed, times the determinant.
Square cofactors(const Square &m)
{
    Square c{};
    for (size_t i = 0; i < 3; ++i) {
        for (size_t j = 0; j < 3; ++j) {
            const size_t a = (i + 1) % 3;
            const size_t b = (i + 2) % 3;
            const size_t x = (j + 1) % 3;
            const size_t y = (j + 2) % 3;
            c[i][j] = m[a][x] * m[b][y] - m[a][y] * m[b][x];
        }
    }
    return c;
}

/// Of a rotation: by the greatest of the four components, which loses nothing.
std::array<double, 4> quaternionOf(const Square &m)
{
    const double trace = m[0][0] + m[1][1] + m[2][2];
    std::array<double, 4> q{};
    if (trace > 0.0) {
        const double s = 0.5 / std::sqrt(trace + 1.0);
        q = {(m[2][1] - m[1][2]) * s, (m[0][2] - m[2][0]) * s, (m[1][0] - m[0][1]) * s, 0.25 / s};
    } else {
        const size_t i = m[0][0] > m[1][1] ? (m[0][0] > m[2][2] ? 0 : 2) : (m[1][1] > m[2][2] ? 1 : 2);
        const size_t j = (i + 1) % 3;
        const size_t k = (i + 2) % 3;
        const double s = 0.5 / std::sqrt(std::max(1.0e-12, 1.0 + m[i][i] - m[j][j] - m[k][k]));
        q[i] = 0.25 / s;
        q[j] = (m[j][i] + m[i][j]) * s;
        q[k] = (m[k][i] + m[i][k]) * s;
        q[3] = (m[k][j] - m[j][k]) * s;
    }
    const double length = std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3]);
    for (double &each : q)
        each /= length;
    return q;
}
} // namespace

// Newton's iteration for the orthogonal factor: the mean of a matrix and its inverse transposed. It doubles
// the correct digits with each step, after one step for each factor of two in the scale.
Rigid rigidPart(const QMatrix4x4 &matrix, double &scale, const Rigid &before)
{
    constexpr int MostSteps = 60;
    constexpr double Settled = 1.0e-10;
    constexpr double LeastScale = 1.0e-6;
    Rigid rigid;
    rigid.rotation = before.rotation;
    Square m{};
    for (size_t i = 0; i < 3; ++i) {
        rigid.translation[i] = double(matrix(int(i), 3));
        for (size_t j = 0; j < 3; ++j)
            m[i][j] = double(matrix(int(i), int(j)));
    }
    scale = 0.0;
    double found = 0.0;
    for (int step = 0; step < MostSteps; ++step) {
        const Square c = cofactors(m);
        const double determinant = m[0][0] * c[0][0] + m[0][1] * c[0][1] + m[0][2] * c[0][2];
        if (step == 0)
            found = std::cbrt(determinant);
        if (!std::isnormal(determinant) || std::abs(found) < LeastScale)
            return rigid;
        double moved = 0.0;
        for (size_t i = 0; i < 3; ++i) {
            for (size_t j = 0; j < 3; ++j) {
                const double next = 0.5 * (m[i][j] + c[i][j] / determinant);
                moved = std::max(moved, std::abs(next - m[i][j]));
                m[i][j] = next;
            }
        }
        if (moved < Settled)
            break;
    }
    scale = found;
    if (scale < 0.0) { // a mirror is no turn
        for (auto &row : m) {
            for (double &each : row)
                each = -each;
        }
    }
    rigid.rotation = quaternionOf(m);
    return rigid;
}

double angleBetween(const std::array<double, 4> &a, const std::array<double, 4> &b)
{
    // Of conj(a) b: the length of its vector is the sine of half the angle.
    const double x = a[3] * b[0] - a[0] * b[3] - a[1] * b[2] + a[2] * b[1];
    const double y = a[3] * b[1] - a[1] * b[3] - a[2] * b[0] + a[0] * b[2];
    const double z = a[3] * b[2] - a[2] * b[3] - a[0] * b[1] + a[1] * b[0];
    const double w = a[0] * b[0] + a[1] * b[1] + a[2] * b[2] + a[3] * b[3];
    return 2.0 * std::atan2(std::sqrt(x * x + y * y + z * z), std::abs(w));
}
