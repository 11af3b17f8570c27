// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "Faults.h"
#include "ModelFile.h"
#include "Output.h"
#include "Validation.h"
#include "Verbs.h"

#include <QJsonObject>

#include <climits>

namespace {
QJsonObject jsonFault(const Fault &fault)
{
    QJsonObject object{{QStringLiteral("severity"), fault.severity},
                       {QStringLiteral("rule"), fault.rule},
                       {QStringLiteral("text"), fault.text}};
    if (fault.place.kind != RecordKind::None) {
        QJsonArray index;
        for (int i = 0; i < indexCount(fault.place.kind); ++i)
            index.append(fault.place.index[size_t(i)]);
        object.insert(QStringLiteral("record"),
                      QJsonObject{{QStringLiteral("kind"), recordName(fault.place.kind)},
                                  {QStringLiteral("index"), index}});
    }
    if (fault.notListed > 0)
        object.insert(QStringLiteral("notListed"), fault.notListed);
    return object;
}

/// What was found, over all files.
struct Tally
{
    qint64 files = 0;
    qint64 errors = 0;
    qint64 warnings = 0;
    qint64 notes = 0;

    void add(const Fault &fault)
    {
        qint64 &count = fault.severity == QLatin1String("error")     ? errors
                        : fault.severity == QLatin1String("warning") ? warnings
                                                                     : notes;
        count += std::max<qint64>(fault.notListed, 1);
    }

    QString text() const
    {
        const auto number = [](qint64 count, const char *one) {
            return QStringLiteral("%1 %2%3").arg(QString::number(count), QLatin1String(one),
                                                 count == 1 ? QString() : QStringLiteral("s"));
        };
        return QStringLiteral("%1 checked: %2, %3, %4")
            .arg(number(files, "file"), number(errors, "error"), number(warnings, "warning"),
                 number(notes, "note"));
    }
};
} // namespace

int check(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("check"), QStringLiteral("PATH..."),
        QStringLiteral("Says what is wrong with skinned meshes, animations, static meshes and materials: "
                       "which cannot be read and why, and which records do not fit together. Of a "
                       "folder, all files in it and below it are checked."));
    line.flag(QStringLiteral("json"), QStringLiteral("Write an array of objects, one a file, for programs."));
    line.flag(
        QStringLiteral("all"),
        QStringLiteral("List all places of a fault, not only the first %1 in a file.").arg(ListedFindings));
    line.folderOptions(CommandLine::GameFolder::IfKnown);
    if (const auto end = line.parse(arguments, true))
        return *end;

    const bool json = line.isSet(QStringLiteral("json"));
    const MaterialFolders folders = chosenFolders(line);
    Companions companions(folders);
    const CheckBasis basis{ReferenceIds::load(), companions,
                           line.isSet(QStringLiteral("all")) ? INT_MAX : ListedFindings};
    if (folders.gamePath.isEmpty())
        Output::complain(
            QStringLiteral("Materials are not looked for, without a game folder; --game-path names one."));
    Tally tally;
    bool failed = false;
    QJsonArray array;
    for (const QString &path : line.operands()) {
        const QStringList files = filesBelow(path, isReadable);
        if (files.isEmpty()) {
            failed = true;
            Output::complain(QStringLiteral("%1: There is no file to check in this folder.").arg(path));
        }
        for (const QString &file : files) {
            ++tally.files;
            QJsonArray list;
            for (const Fault &fault : faultsOf(file, folders, basis)) {
                tally.add(fault);
                if (json)
                    list.append(jsonFault(fault));
                else
                    Output::line(
                        QStringLiteral("%1: %2: %3 [%4]").arg(file, fault.severity, fault.text, fault.rule));
            }
            if (json)
                array.append(QJsonObject{{QStringLiteral("file"), file}, {QStringLiteral("findings"), list}});
        }
    }
    if (json)
        Output::json(array);
    else
        Output::line(tally.text());
    return failed || tally.errors > 0 ? Failed : Fine;
}
