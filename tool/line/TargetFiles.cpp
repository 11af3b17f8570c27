// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TargetFiles.h"

#include "CommandLine.h"
#include "ExitCode.h"
#include "FileSystem.h"
#include "Output.h"
#include "ReplacedFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

void TargetFiles::addOptions(CommandLine &line)
{
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("Write into this file; of several files, into this folder."));
    line.flag(QStringLiteral("in-place"), QStringLiteral("Write into FILE itself."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace other files that exist."));
}

std::optional<int> TargetFiles::read(const CommandLine &line, const QStringList &files)
{
    m_files = files;
    m_output = line.value(QStringLiteral("output"));
    m_isInPlace = line.isSet(QStringLiteral("in-place"));
    m_replaces = line.isSet(QStringLiteral("force"));
    if (m_isInPlace && !m_output.isEmpty())
        return line.refuse(QStringLiteral("Either -o or --in-place says where to."));
    m_isFolder = !m_output.isEmpty() && (files.size() > 1 || QFileInfo(m_output).isDir());
    if (m_isFolder && !QFileInfo(m_output).isDir())
        return line.refuseFolder(m_output);
    return {};
}

int TargetFiles::forEach(const std::function<int(const QString &file, const QString &target)> &change) const
{
    int exitCode = Fine;
    QHash<QString, QString> written; // files by their targets, as FileSystem compares them
    for (const QString &file : m_files) {
        const QString target = m_isInPlace  ? file
                               : m_isFolder ? QDir(m_output).filePath(QFileInfo(file).fileName())
                                            : m_output;
        if (!target.isEmpty() && !m_isInPlace && !m_replaces && isTaken(target)) {
            Output::refuseToReplace({target});
            exitCode = Failed;
            continue;
        }
        const QString place = m_isFolder ? FileSystem::comparable(target) : QString();
        if (written.contains(place)) {
            Output::complain(
                QStringLiteral("%1: '%2' is what became of '%3'.").arg(file, target, written.value(place)));
            exitCode = Failed;
            continue;
        }
        if (m_files.size() > 1)
            Output::line(file);
        if (change(file, target) != Fine)
            exitCode = Failed;
        else if (m_isFolder)
            written.insert(place, file);
    }
    return exitCode;
}
