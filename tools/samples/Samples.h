// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Makes the sample folders "game" and "mod" below `folder`. Returns an error message; an empty text means
/// success.
[[nodiscard]] QString makeSamples(const QString &folder);
