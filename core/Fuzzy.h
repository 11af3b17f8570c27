// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

/// True when `a` and `b` differ by less than a millionth of the larger magnitude, or by less than
/// 1.1e-44 (the smallest denormals) around zero. NaN equals nothing.
inline bool fuzzyEqual(float a, float b)
{
    return std::fabs(b - a) < std::max(1.1e-44f, 1e-6f * std::max(std::fabs(a), std::fabs(b)));
}
