// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SharedThumbnails.h"

// The system's own is no folder of files.
QString sharedThumbnails()
{
    return {};
}
