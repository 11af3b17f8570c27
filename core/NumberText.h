// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Single-precision numbers as texts that say exactly them. A point stands before decimals in every locale;
/// a comma there is understood.
namespace NumberText {

/// The shortest text that parse() reads back as the same value; "nan", "inf" and "-inf" for what is no
/// number.
QString text(float value);
/// A finite value from a text, correctly rounded; false when it is none.
[[nodiscard]] bool parse(const QString &text, float &value);

/// What the shortest text of a value says: 0.1 for the float that is shown as 0.1. To calculate with as a
/// hand would.
double written(float value);
/// The float next to a number; false when that is beyond the largest float, or none.
[[nodiscard]] bool narrow(double number, float &value);

/// The parts of a list of numbers that is separated by tabs, ends of lines, semicolons, commas or blanks, in
/// parentheses or not. A comma between two digits separates where there are several ("1,2,3") or where
/// nothing else does; "1,5" is one number. One part, the text itself, when it is no list.
QStringList split(const QString &text);

} // namespace NumberText
