// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// What one of the arguments of a key frame action means to its event.
struct EventArgument
{
    const char *label; ///< null: it has no name but "Arg 1" to "Arg 8"; to be translated in "EventArguments"
    const char *question; ///< what its number stands for, one of Question; null: nothing that has a name
};

/// What numbers of the model files stand for.
namespace Question {
inline constexpr const char *Actor = "actor";
inline constexpr const char *Animation = "animation";
inline constexpr const char *Sound = "sound";
inline constexpr const char *Voice = "voice";
inline constexpr const char *Particle = "particle";
inline constexpr const char *Impact = "impact";
inline constexpr const char *Damage = "damage"; ///< 256 times the damage
} // namespace Question

/// The meaning of argument 0 to 7 of any event type.
EventArgument eventArgument(int eventType, int argument);
