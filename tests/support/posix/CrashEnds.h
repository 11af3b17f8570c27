// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CrashEnd.h"

#include <csignal>

inline const CrashEnd CrashEnds[] = {
    {"memory", QProcess::CrashExit, SIGSEGV, "SIGSEGV, a wrong memory access at 0x1234\n"},
    {"overflow", QProcess::CrashExit, SIGSEGV, "SIGSEGV"},
    {"abort", QProcess::CrashExit, SIGABRT, "SIGABRT, given up\n"},
    {QString::number(SIGBUS), QProcess::CrashExit, SIGBUS, "Ended by SIG"},
    {QString::number(SIGFPE), QProcess::CrashExit, SIGFPE, "Ended by SIG"},
    {QString::number(SIGILL), QProcess::CrashExit, SIGILL, "Ended by SIG"},
};
/// Where a frame of the stack begins.
constexpr const char *FrameMark = "[0x";

/// What asks a program to end, and what ends one that does not.
constexpr int EndRequests[] = {SIGTERM, SIGHUP, SIGINT};
constexpr int EndOfTheStuck = SIGALRM;
inline void sendSignal(qint64 process, int number)
{
    kill(pid_t(process), number);
}
