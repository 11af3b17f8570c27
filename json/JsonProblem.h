// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Why a text was refused, and where.
struct JsonProblem
{
    QString text;   ///< empty: it was not
    int line = 0;   ///< from 1
    int column = 0; ///< from 1, in characters
};
