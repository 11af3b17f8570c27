// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ValueScale.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double Margin = 0.08;    ///< of what is shown, above and below
constexpr double LeastSpan = 1e-4; ///< single precision tells no more apart,
constexpr double LeastPart = 1e-6; ///< or no smaller part of a value
constexpr double MostSpan = 1e30;
} // namespace

void ValueScale::fit(int top, int bottom)
{
    m_top = top;
    m_bottom = std::max(top + 1, bottom);
}

void ValueScale::show(double least, double most)
{
    // A curve that is level stands in the middle of some room.
    const double span = most - least > LeastSpan ? most - least : std::max(2.0, std::abs(most) * 0.1);
    const double middle = (least + most) / 2;
    const double half = std::min(span, MostSpan) * (0.5 + Margin);
    m_least = middle - half;
    m_most = middle + half;
}

void ValueScale::zoom(double factor, double y)
{
    const double value = valueAt(y);
    const double span = m_most - m_least;
    const double least = std::clamp(std::abs(value) * LeastPart, LeastSpan, MostSpan);
    const double applied = span / std::clamp(span / factor, least, MostSpan);
    m_least = value - (value - m_least) / applied;
    m_most = value + (m_most - value) / applied;
}

void ValueScale::scroll(double pixels)
{
    const double by = pixels * perPixel();
    m_least += by;
    m_most += by;
}

double ValueScale::step(int pixels) const
{
    const double wanted = pixels * perPixel();
    const double power = std::pow(10.0, std::floor(std::log10(wanted)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (power * factor >= wanted)
            return power * factor;
    }
    return power * 10;
}
