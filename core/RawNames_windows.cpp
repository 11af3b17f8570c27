// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RawNames.h"

bool mayBeWalked(const QString &)
{
    return true;
}

// All names are text.
QString nameWithoutText(const QString &)
{
    return {};
}
