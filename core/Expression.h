// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// A number as a user may write it: "2*3", "-(4+5)", "1/3", "0x1F", "45deg", "2*pi", and relative to a number
/// that is there already: "+=5", "-=5", "*=1.5", "/=2", "=x*2+i", where x is that number and i the place of
/// its record among those that are edited, from 0. A comma counts as a point before decimals. Letters may be
/// large or small, blanks stand between any two parts.
///
/// "-5" and "+5" are numbers and no steps. Read once, it gives a number for each record without reading
/// again.
class Expression
{
public:
    /// What the names in it stand for.
    struct Names
    {
        double x = 0.0;
        double i = 0.0;
        /// What one degree ("45deg") is: a part of a radian, unless the number is in degrees itself.
        double degree = Radian;
    };
    static constexpr double Pi = 3.14159265358979323846;
    static constexpr double Radian = Pi / 180.0;
    /// Longer texts are refused.
    static constexpr int MostCharacters = 500;
    /// More parentheses and signs within one another are refused.
    static constexpr int MostDepth = 64;

    /// Whether a text is a number and nothing to calculate, or what is left of one.
    static bool isPlain(const QString &text);

    /// Reads a text. Gives the reason why it is none, for the user; empty when it is one. What was read
    /// before is forgotten.
    [[nodiscard]] QString read(const QString &text);

    /// Whether the text that was refused could go on to be an expression.
    bool isIncomplete() const { return m_incomplete; }
    /// Whether its number depends on what x or i stand for.
    bool isRelative() const { return m_relative; }

    /// Its number; not finite where it divides by 0 or exceeds all numbers. 0 before something was read.
    double value(const Names &names) const;

    /// The whole number that a result stands for, when it is one but for the noise of calculation.
    [[nodiscard]] static bool whole(double result, qint64 &number);

private:
    enum class Part : quint8 { Number, X, I, Degrees, Add, Subtract, Multiply, Divide, Negate };
    /// One step of a calculation whose operands stand before it.
    struct Step
    {
        Part part;
        double number;
    };
    class Reader;

    std::vector<Step> m_steps;
    bool m_incomplete = false;
    bool m_relative = false;
};
