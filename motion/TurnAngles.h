// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Turn.h"

#include <array>
#include <vector>

namespace Motion {
/// A rotation as degrees about the fixed axes x, then y, then z, any number of full turns included.
using Angles = std::array<double, 3>;

Turn turnOf(const Angles &degrees);
/// Those of a rotation, y between -90 and 90.
Angles anglesOf(const Turn &turn);
/// Of all angles that make the rotation those that are nearest to others, so that a curve goes on without a
/// jump: over full turns, over y beyond 90 degrees, and at the poles, where only the sum or the difference of
/// x and z counts.
Angles anglesNear(const Turn &turn, const Angles &near);
/// One for each key of a track, each near to the one before, and the first near to `start` where there is
/// one. No numbers where a key has no direction.
std::vector<Angles> anglesOfTrack(const QVector4D *keys, int count, const Angles *start = nullptr);
/// The key that turns as these angles say, of the two the one nearer to the key that it replaces.
QVector4D keyOf(const Angles &degrees, const QVector4D &replaced);
/// Angles in degrees without the full turns between each and the one before.
void unwrap(std::vector<double> &degrees);
} // namespace Motion
