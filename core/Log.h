// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

/// The numbers are what a console row stores as its user data.
enum class LogSeverity { Error = 0, Warning = 1, Info = 2 };

/// The application-wide log: severity and text handed to one replaceable sink. Without a sink the
/// lines go to the debug output. GUI thread only.
namespace Log {
using Sink = std::function<void(LogSeverity, const QString &)>;

/// Replaces the sink; an empty function restores the debug output.
void setSink(Sink sink);

void error(const QString &text);
void warning(const QString &text);
void info(const QString &text);
} // namespace Log
