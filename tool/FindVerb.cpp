// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "FoundRecords.h"
#include "ModelFile.h"
#include "ModelText.h"
#include "Output.h"
#include "Settings.h"
#include "Verbs.h"

#include <QJsonObject>

namespace {
/// As of other programs that search.
enum FindCode : int { Some = 0, None = 1, SearchTrouble = 2 };

QJsonValue jsonValue(const FieldValue &value)
{
    if (const auto *text = std::get_if<QString>(&value))
        return *text;
    return std::get<double>(value); // null for what is no number
}

void print(const QString &file, const FoundRecords &found, const RecordValues &values)
{
    for (const RecordRef &record : found.records) {
        const RecordField *field = found.condition.fieldOf(values, record);
        QString line = QStringLiteral("%1: %2").arg(file, recordPath(record));
        if (field)
            line +=
                QStringLiteral(": %1 %2").arg(field->id(), field->text(values.value(*field, record.index)));
        Output::line(line);
    }
}

void append(QJsonArray &array, const QString &file, const FoundRecords &found, const RecordValues &values)
{
    for (const RecordRef &record : found.records) {
        QJsonObject object{{QStringLiteral("file"), file}, {QStringLiteral("record"), recordPath(record)}};
        if (const RecordField *field = found.condition.fieldOf(values, record)) {
            object[QStringLiteral("field")] = field->id();
            object[QStringLiteral("value")] = jsonValue(values.value(*field, record.index));
        }
        array.append(object);
    }
}

bool isModelFile(const QString &path)
{
    return isReadable(path) && !path.endsWith(QLatin1String(".kmat"), Qt::CaseInsensitive);
}
} // namespace

int find(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("find"), QStringLiteral("PATH... CONDITION"),
        QStringLiteral(
            "Lists the records of skinned meshes, animations and static meshes that meet a condition, "
            "such as 'sound = 1234', 'actions frame 10-20', 'damage scale > 1', 'material ~ tree' or "
            "'bone in left arm'. Of a folder, all files in it and below it are searched. Exit "
            "status: 0 some found, 1 none, 2 trouble."));
    line.flag(QStringLiteral("json"),
              QStringLiteral("Write a JSON array with an object for each record that is found."));
    if (const auto end = line.parse(arguments, true))
        return *end;
    QStringList paths = line.operands();
    const QString text = paths.takeLast();
    if (paths.isEmpty())
        return line.refuse(QStringLiteral("A file and a condition are wanted."));

    const bool json = line.isSet(QStringLiteral("json"));
    Companions companions({Settings::GamePath.value(), Settings::OutputDir.value()});
    QJsonArray array;
    bool isFound = false;
    bool isTrouble = false;
    QStringList files;
    for (const QString &path : qAsConst(paths))
        files += filesBelow(path, isModelFile);
    for (const QString &file : qAsConst(files)) {
        ModelJson::Content content;
        QString note;
        FoundRecords found;
        QString reason = readWholeModel(file, content, note);
        if (reason.isEmpty())
            reason = found.find(text, file, content.model, companions);
        if (!reason.isEmpty()) {
            // Another file may have what is called so.
            isTrouble |= !found.condition.lacksName();
            Output::complain(QStringLiteral("%1: %2").arg(file, reason));
            continue;
        }
        isFound |= !found.records.empty();
        if (json)
            append(array, file, found, *valuesOf(content.model));
        else
            print(file, found, *valuesOf(content.model));
    }
    if (json)
        Output::json(array);
    return isTrouble ? SearchTrouble : isFound ? Some : None;
}
