// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Faults.h"
#include "ModelFile.h"
#include "Output.h"
#include "Verbs.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QJsonObject>

#include <algorithm>

namespace {
/// The files of a folder and of all below it, sorted; a file itself.
QStringList filesOf(const QString &path)
{
    if (!QFileInfo(path).isDir())
        return {path};
    QStringList files;
    QDirIterator walk(path, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString file = walk.next();
        if (isReadable(file))
            files += file;
    }
    files.sort();
    return files;
}

QJsonObject jsonFault(const Fault &fault)
{
    return {{QStringLiteral("severity"), fault.severity},
            {QStringLiteral("rule"), fault.rule},
            {QStringLiteral("text"), fault.text}};
}
} // namespace

int check(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("check"), QStringLiteral("PATH..."),
        QStringLiteral("Reads skinned meshes, animations, static meshes and materials, and says which "
                       "cannot be read and why. Of a folder, all files in it and below it are read."));
    line.flag(QStringLiteral("json"), QStringLiteral("Write an array of objects, one a file, for programs."));
    if (const auto end = line.parse(arguments, true))
        return *end;

    const bool json = line.isSet(QStringLiteral("json"));
    int exitCode = Fine;
    QJsonArray array;
    for (const QString &path : line.operands()) {
        const QStringList files = filesOf(path);
        if (files.isEmpty()) {
            exitCode = Failed;
            Output::complain(QStringLiteral("%1: There is no file to check in this folder.").arg(path));
        }
        for (const QString &file : files) {
            const std::vector<Fault> faults = faultsOf(file);
            QJsonArray list;
            for (const Fault &fault : faults) {
                if (fault.severity == QLatin1String("error"))
                    exitCode = Failed;
                if (json)
                    list.append(jsonFault(fault));
                else
                    Output::line(QStringLiteral("%1: %2: %3").arg(file, fault.severity, fault.text));
            }
            if (json)
                array.append(QJsonObject{{QStringLiteral("file"), file}, {QStringLiteral("findings"), list}});
        }
    }
    if (json)
        Output::json(array);
    return exitCode;
}
