// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <limits>

/// Which numbers a place can hold, and why it cannot hold another.
struct NumberRange
{
    double least = 0.0;
    double most = 0.0;
    bool isWhole = false;

    /// Every finite float.
    static NumberRange ofFloats();
    template <typename Number>
    static NumberRange of()
    {
        return {double(std::numeric_limits<Number>::lowest()), double(std::numeric_limits<Number>::max()),
                true};
    }

    bool operator==(const NumberRange &other) const
    {
        return least == other.least && most == other.most && isWhole == other.isWhole;
    }

    /// Takes over what was calculated: a whole number without the noise of calculation, a float otherwise.
    /// Gives the reason why the place cannot hold it, a sentence for the user; empty when it can.
    [[nodiscard]] QString fit(double result, double &number) const;
};
