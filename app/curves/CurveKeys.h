// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlockKeys.h"
#include "CurveData.h"
#include "CurveSelection.h"

#include <functional>

/// The keys that edits of selected points of curves make. A key of which no point gets another value is not
/// among them, so it keeps its bits; of a rotation the three angles make the quaternion.
namespace CurveKeys {
/// A selected point's other value; the same where it stays as it is.
using Change = std::function<double(const CurveKey &key, double value)>;

/// Only of curves of that unit.
BlockKeys changed(const CurveData &data, const CurveSelection &selection, CurveUnit unit,
                  const Change &change);
/// The mean over as many frames to either side, less near to what is not selected. Rotations of which all
/// three angles are selected are blended as such.
BlockKeys smoothed(const CurveData &data, const CurveSelection &selection, int frames);
/// The line, or the turn, from the first to the last of the selected keys that stand in a row.
BlockKeys straightened(const CurveData &data, const CurveSelection &selection);
} // namespace CurveKeys
