// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "ModelText.h"
#include "Output.h"
#include "ReplacedFiles.h"
#include "Verbs.h"

#include <QFile>

#include <cstdio>

namespace {
/// What stands in a file, or comes from standard input for "-". Returns why it cannot be read.
QString readText(const QString &name, QByteArray &text)
{
    QFile file(name);
    const bool isOpen =
        name == QLatin1String("-") ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen)
        return QStringLiteral("The file cannot be opened.");
    // The toolkit's arrays end there.
    constexpr qint64 Most = (qint64(1) << 31) - 65536;
    if (file.size() > Most)
        return QStringLiteral("The file is larger than 2 GiB.");
    text = file.readAll();
    return {};
}
} // namespace

int build(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("build"), QStringLiteral("FILE"),
        QStringLiteral(
            "Makes a model of the JSON text that 'korvane-tool dump' writes, or of standard "
            "input where FILE is '-'. What cannot be is refused with its line and column. Names of "
            "bones and animations go into the file of names beside the model."));
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("The model to write; its name ends in what the text says it is. Needed."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace that file if it exists."));
    if (const auto end = line.parse(arguments, false))
        return *end;
    if (!line.isSet(QStringLiteral("output")))
        return line.refuse(QStringLiteral("-o FILE is missing."));
    const QString name = line.operands().first();
    const QString target = line.value(QStringLiteral("output"));

    QByteArray text;
    const QString error = readText(name, text);
    if (!error.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(name, error));
        return Failed;
    }
    ModelJson::Content content;
    const JsonProblem problem = ModelJson::read(text, content);
    if (!problem.text.isEmpty()) {
        Output::complain(
            QStringLiteral("%1:%2:%3: %4")
                .arg(name, QString::number(problem.line), QString::number(problem.column), problem.text));
        return Failed;
    }
    const QString reason = wrongName(target, ModelJson::kindOf(content.model));
    if (!reason.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(target, reason));
        return Failed;
    }
    if (!line.isSet(QStringLiteral("force")) && isTaken(target)) {
        Output::refuseToReplace({target});
        return Failed;
    }
    const bool withNames = !namesOf(content).isEmpty();
    const QString names = replacedNames(target, content);
    if (!line.isSet(QStringLiteral("force")) && !names.isEmpty()) {
        Output::refuseToReplace({names});
        return Failed;
    }
    return writeWholeModel(target, content, withNames) ? Failed : Fine;
}
