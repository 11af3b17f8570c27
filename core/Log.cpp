// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Log.h"

#include "CrashReport.h"

#include <QDebug>

namespace {
Log::Sink &currentSink()
{
    static Log::Sink sink;
    return sink;
}

void write(LogSeverity severity, const QString &text)
{
    CrashReport::addLine(text);
    if (currentSink())
        currentSink()(severity, text);
    else
        qDebug().noquote() << text;
}
} // namespace

void Log::setSink(Sink sink)
{
    currentSink() = std::move(sink);
}

void Log::error(const QString &text)
{
    write(LogSeverity::Error, text);
}

void Log::warning(const QString &text)
{
    write(LogSeverity::Warning, text);
}

void Log::info(const QString &text)
{
    write(LogSeverity::Info, text);
}
