// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RawNames.h"

// All names are text.
QString nameWithoutText(const QString &)
{
    return {};
}
