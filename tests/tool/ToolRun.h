// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TestSupport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QProcessEnvironment>

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

/// A folder for the files of one test.
class ToolFolder
{
public:
    QString path(const QString &name = {}) const { return m_folder.filePath(name); }
    /// The path of a file with these bytes.
    QString put(const QString &name, const QByteArray &bytes) const
    {
        QDir(path()).mkpath(QFileInfo(name).path());
        TestSupport::writeFile(path(name), bytes);
        return path(name);
    }

private:
    QTemporaryDir m_folder;
};
