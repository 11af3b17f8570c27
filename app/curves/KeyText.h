// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CurveData.h"
#include "CurveSelection.h"

/// "3: Left Arm, Rotation X, frame 12: 45°"; empty for none. `bone` may be empty.
QString keyText(const CurveData &data, const CurveKey &key, const QString &bone);
/// What follows it while it is dragged with others.
QString keyMoveText(const CurveData &data, const CurveKey &key, double by, int others);
