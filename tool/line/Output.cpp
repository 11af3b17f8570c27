// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Output.h"

#include "ImportMessages.h"

#include <QJsonDocument>

#include <cstdio>

namespace {
void write(std::FILE *to, const QByteArray &bytes)
{
    std::fwrite(bytes.constData(), 1, size_t(bytes.size()), to);
    std::fflush(to);
}
} // namespace

void Output::line(const QString &text)
{
    write(stdout, text.toUtf8() + '\n');
}

bool Output::bytes(const QByteArray &part)
{
    write(stdout, part);
    const bool failed = std::ferror(stdout) != 0;
    if (failed)
        complain(QStringLiteral("Standard output cannot be written."));
    return failed;
}

void Output::json(const QJsonArray &array)
{
    write(stdout, QJsonDocument(array).toJson());
}

void Output::complain(const QString &text)
{
    write(stderr, "korvane-tool: " + text.toUtf8() + '\n');
}

bool Output::outcome(const QString &path, bool failed, const QString &reason)
{
    if (failed)
        complain(QStringLiteral("%1: The file cannot be written: %2").arg(path, reason));
    else
        line(path);
    return failed;
}

QString Output::takenText(const QString &file)
{
    return QStringLiteral("%1: The file exists already; --force replaces it.").arg(file);
}

bool Output::refuseToReplace(const QStringList &files)
{
    for (const QString &file : files)
        complain(takenText(file));
    return !files.isEmpty();
}

void Output::tell(const ImportMessages &messages)
{
    for (const ImportMessage &message : messages.lines) {
        switch (message.severity) {
        case LogSeverity::Error:
            complain(QStringLiteral("error: ") + message.text);
            break;
        case LogSeverity::Warning:
            complain(QStringLiteral("warning: ") + message.text);
            break;
        case LogSeverity::Info:
            line(message.text);
            break;
        }
    }
}
