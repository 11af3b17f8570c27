// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CrashEnd.h"

#include <windows.h>

inline const CrashEnd CrashEnds[] = {
    {"memory", QProcess::CrashExit, int(EXCEPTION_ACCESS_VIOLATION), "a wrong memory access at 0x1234\n"},
    {"overflow", QProcess::CrashExit, int(EXCEPTION_STACK_OVERFLOW), "a stack that is full"},
    // What an abort ends with there.
    {"abort", QProcess::NormalExit, 3, "abort, given up\n"},
};
/// Where a frame of the stack begins.
constexpr const char *FrameMark = ".exe+0x";

/// Nobody asks by a signal there.
constexpr int EndRequests[] = {0};
constexpr int EndOfTheStuck = 0;
inline void sendSignal(qint64, int) {}
