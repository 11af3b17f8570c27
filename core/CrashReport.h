// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Writes a report when a fatal signal ends the program: versions, the signal, a stack, the last lines of the
/// log. The report is a file of this computer and goes nowhere. Builds with sanitizers write none: theirs
/// says more. GUI thread only.
namespace CrashReport {
/// From now on a fatal signal writes the file at `path`, then does what it would have done without. An empty
/// path writes none.
void install(const QString &path);
/// Gives the signals back to whom they belonged before.
void uninstall();
/// What draws, such as the driver's vendor and version. Put together beforehand: a crash asks nobody.
void setGraphics(const QString &text);
/// Remembers a line of the log.
void addLine(const QString &text);
} // namespace CrashReport
