// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CrashReport.h"

#include "CrashText.h"

void CrashReport::setGraphics(const QString &text)
{
    CrashText::setGraphics(text);
}

void CrashReport::addLine(const QString &text)
{
    CrashText::addLine(text);
}
