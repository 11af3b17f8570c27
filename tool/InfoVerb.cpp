// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Description.h"
#include "FileStamp.h"
#include "Output.h"
#include "Verbs.h"

#include <QFileInfo>

int info(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("info"), QStringLiteral("FILE..."),
        QStringLiteral("Says what is in skinned meshes, animations, static meshes and materials."));
    line.flag(QStringLiteral("json"), QStringLiteral("Write an array of objects, one a file, for programs."));
    if (const auto end = line.parse(arguments, true))
        return *end;

    const bool json = line.isSet(QStringLiteral("json"));
    int exitCode = Fine;
    QJsonArray array;
    for (const QString &file : line.operands()) {
        FileContent content;
        const QString error = readFile(file, content);
        QJsonObject description = describe(content);
        description.insert(QStringLiteral("file"), file);
        if (error.isEmpty()) {
            description.insert(QStringLiteral("size"), double(FileStamp::of(file).size));
        } else {
            exitCode = Failed;
            description.insert(QStringLiteral("error"), error);
            if (!json)
                Output::complain(QStringLiteral("%1: %2").arg(file, error));
        }
        if (json)
            array.append(description);
        else if (error.isEmpty())
            Output::line(QStringLiteral("%1\n%2").arg(file, descriptionText(description)));
    }
    if (json)
        Output::json(array);
    return exitCode;
}
