// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TestSupport.h"

/// One run of korvane-tool, and what came of it.
class ToolRun
{
public:
    /// With the words of `words`, parted by blanks, and `more` as they are.
    explicit ToolRun(const QString &words, const QStringList &more = {},
                     const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(KORVANE_TOOL), words.split(QLatin1Char(' '), Qt::SkipEmptyParts) + more);
        const bool ended = process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit;
        exitCode = ended ? process.exitCode() : -1;
        out = QString::fromUtf8(process.readAllStandardOutput());
        err = QString::fromUtf8(process.readAllStandardError());
    }

    /// The objects of a JSON array; none when the output is something else.
    QJsonArray json() const { return QJsonDocument::fromJson(out.toUtf8()).array(); }
    QJsonObject first() const { return json().at(0).toObject(); }

    int exitCode;
    QString out;
    QString err;
};
