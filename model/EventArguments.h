// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReferenceTable.h"

#include <QLatin1String>

#include <optional>

/// What one of the arguments of a key frame action means to its event.
struct EventArgument
{
    const char *label; ///< null: it has no name but "Arg 1" to "Arg 8"; to be translated in "EventArguments"
    QLatin1String question; ///< what its number stands for, one of Question; null: nothing that has a name
};

/// What numbers of the model files stand for.
namespace Question {
inline constexpr QLatin1String Actor{"actor", 5};
inline constexpr QLatin1String Animation{"animation", 9};
inline constexpr QLatin1String Sound{"sound", 5};
inline constexpr QLatin1String Voice{"voice", 5};
inline constexpr QLatin1String Particle{"particle", 8};
inline constexpr QLatin1String Impact{"impact", 6};
inline constexpr QLatin1String Damage{"damage", 6}; ///< 256 times the damage
} // namespace Question

/// The table with the names of what a question asks for; none for damage, which is calculated.
std::optional<ReferenceKind> referenceOf(QLatin1String question);

/// What a number is called by the table that a question asks; empty when there is none, or no such row.
QString numberName(QLatin1String question, double value);

/// The meaning of argument 0 to 7 of any event type.
EventArgument eventArgument(int eventType, int argument);
/// What the value of an argument is called, as ReferenceTables::name().
QString argumentName(int eventType, int argument, float value);
