// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector4D>

#include <vector>

namespace Motion {
/// How many frames to either side the mean of each chosen frame is taken of, at most `most`: never beyond the
/// first frame that is not chosen, which stays as it is, so the curve has no step there, nor beyond the first
/// and the last of all. 0 for what is not chosen or has no neighbours that are numbers.
std::vector<int> smoothingReach(const std::vector<bool> &chosen, const std::vector<bool> &isNumber, int most);

/// The mean of the values around a frame, weighted by the binomial coefficients: what goes straight stays.
double smoothed(const std::vector<double> &values, int frame, int reach);
/// The same of rotations, which are blended as such. Has the length 1.
QVector4D smoothed(const QVector4D *keys, int frame, int reach);
} // namespace Motion
