// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

/// How a program crashes, how it ends by that, and what the report says of it.
struct CrashEnd
{
    QString way;
    QProcess::ExitStatus status;
    int code;
    QString text;
};
