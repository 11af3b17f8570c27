// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

#include <functional>

/// The numbers are what a console row stores as its user data.
enum class LogSeverity { Error = 0, Warning = 1, Info = 2 };

struct LogLine
{
    LogSeverity severity;
    QString text;
};

/// The application-wide log: severity and text handed to one replaceable sink. Without a sink the
/// lines go to the debug output. For the GUI thread; in another one only while a HeldLog is there, but for
/// sayInTime().
namespace Log {
using Sink = std::function<void(LogSeverity, const QString &)>;

/// Replaces the sink; an empty function restores the debug output.
void setSink(Sink sink);

void error(const QString &text);
void warning(const QString &text);
void info(const QString &text);
/// Says it in the thread of the application: now, or soon when another thread calls. No HeldLog keeps it.
void sayInTime(LogSeverity severity, const QString &text);
/// Says what a HeldLog kept.
void say(const QVector<LogLine> &lines);
} // namespace Log

/// Keeps what its thread logs while it lives, so that work of another thread can be told of when, and if, its
/// result is wanted.
class HeldLog
{
public:
    HeldLog();
    ~HeldLog();
    HeldLog(const HeldLog &) = delete;
    HeldLog &operator=(const HeldLog &) = delete;

    QVector<LogLine> lines;

private:
    HeldLog *m_outer;
};
