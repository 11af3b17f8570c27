// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>

/// One run of korvane-tool, and what came of it.
class ToolRun
{
public:
    explicit ToolRun(const QStringList &arguments,
                     const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
    {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.start(QStringLiteral(KORVANE_TOOL), arguments);
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
