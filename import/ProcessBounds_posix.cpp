// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ProcessBounds.h"

void ProcessBounds::prepare(QProcess &) {}

void ProcessBounds::take(const QProcess &, int, qint64) {}

bool ProcessBounds::isCrash(int exitCode)
{
    return exitCode == 3; // as abort ends elsewhere; here a signal tells
}
