// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Log.h"

#include <QString>
#include <QVector>

#include <algorithm>

/// One line of the account that an import or an export gives of itself.
struct ImportMessage
{
    LogSeverity severity;
    QString text;
};

/// The account itself, which imports and exports are given to add to. An error line means that the whole has
/// failed.
class ImportMessages
{
public:
    void addInfo(const QString &text) { lines.append({LogSeverity::Info, text}); }
    void addWarning(const QString &text) { lines.append({LogSeverity::Warning, text}); }
    void addError(const QString &text) { lines.append({LogSeverity::Error, text}); }

    /// Makes one of the warnings that say the same, be it of other numbers; it tells how many there were.
    void foldWarnings();

    bool hasError() const
    {
        return std::any_of(lines.begin(), lines.end(),
                           [](const ImportMessage &line) { return line.severity == LogSeverity::Error; });
    }

    QVector<ImportMessage> lines;
};
