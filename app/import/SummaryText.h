// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneSummary.h"

/// What a foreign file holds, and what of it cannot come along, as rich text.
QString summaryText(const SceneSummary &summary);

/// "25.2 × 154.7 × 79": width, depth and height with as many digits as tell something.
QString sizeText(const QVector3D &size);
/// "3.42 s"
QString secondsText(double seconds);
