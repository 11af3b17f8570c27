// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Log.h"

#include "CrashReport.h"

#include <QCoreApplication>
#include <QDebug>
#include <QThread>

#include <utility>

namespace {
Log::Sink &currentSink()
{
    static Log::Sink sink;
    return sink;
}

thread_local HeldLog *heldLog = nullptr;

void writeOut(LogSeverity severity, const QString &text)
{
    CrashReport::addLine(text);
    if (currentSink())
        currentSink()(severity, text);
    else
        qDebug().noquote() << text;
}

void write(LogSeverity severity, const QString &text)
{
    if (heldLog)
        return heldLog->lines.append({severity, text});
    writeOut(severity, text);
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

void Log::sayInTime(LogSeverity severity, const QString &text)
{
    QCoreApplication *app = QCoreApplication::instance();
    if (!app || app->thread() == QThread::currentThread())
        return writeOut(severity, text);
    QMetaObject::invokeMethod(
        app, [severity, text] { writeOut(severity, text); }, Qt::QueuedConnection);
}

void Log::say(const QVector<LogLine> &lines)
{
    for (const LogLine &line : lines)
        write(line.severity, line.text);
}

HeldLog::HeldLog()
    : m_outer(std::exchange(heldLog, this))
{}

HeldLog::~HeldLog()
{
    heldLog = m_outer;
}
