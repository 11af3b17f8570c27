// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "FoundRecords.h"
#include "ModelText.h"
#include "Output.h"
#include "ReplacedFiles.h"
#include "Settings.h"
#include "Verbs.h"

namespace {
/// The options, and behind "--" the operands: what stands behind a field is its value, whatever it begins
/// with.
QStringList arranged(const QStringList &arguments)
{
    QStringList options;
    QStringList operands;
    for (int i = 0; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const bool isValue = operands.size() >= 2 && operands.size() % 2 == 0;
        if (isValue || argument.size() < 2 || !argument.startsWith(QLatin1Char('-'))) {
            operands += argument;
        } else if (argument != QLatin1String("--")) {
            options += argument;
            const bool takesNext = argument == QLatin1String("-o") || argument == QLatin1String("--output") ||
                                   argument == QLatin1String("--where");
            if (takesNext && i + 1 < arguments.size())
                options += arguments.at(++i);
        }
    }
    return options << QStringLiteral("--") << operands;
}
} // namespace

int set(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("set"), QStringLiteral("FILE FIELD VALUE [FIELD VALUE...]"),
        QStringLiteral(
            "Sets fields of a skinned mesh, an animation or a static mesh, and says which changed. FIELD is "
            "such as 'block 3 speed', 'bone 2-5 damage scale', 'hot point * origin x'; VALUE is a number, "
            "a text, or calculated from the old number, as '*=1.5' and '=x+10*i' are. When one "
            "cannot be, nothing is written. With --where, FIELD is a field of the records that meet the "
            "condition, such as 'sound'."));
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("Write into this file instead of FILE itself."));
    line.option({QStringLiteral("where")}, QStringLiteral("condition"),
                QStringLiteral("Set fields of the records that meet this, such as 'actions sound = 1234'; "
                               "'korvane-tool find' lists them."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace that file if it exists."));
    if (const auto end = line.parse(arranged(arguments), true))
        return *end;
    const QStringList operands = line.operands();
    if (operands.size() < 3)
        return line.refuse(QStringLiteral("A field and a value are missing."));
    if (operands.size() % 2 == 0)
        return line.refuse(QStringLiteral("There is no value for '%1'.").arg(operands.last()));
    const QString &file = operands.first();
    const bool isOther = line.isSet(QStringLiteral("output"));
    const QString target = isOther ? line.value(QStringLiteral("output")) : file;
    if (!line.isSet(QStringLiteral("force")) && isTaken(target) && !isOneFile(file, target)) {
        Output::refuseToReplace({target});
        return Failed;
    }

    ModelJson::Content content;
    QString note;
    QString error = readWholeModel(file, content, note);
    if (error.isEmpty() && isOther)
        error = wrongName(target, ModelJson::kindOf(content.model));
    const ModelNames before = namesOf(content);
    std::vector<PatchedField> changes;
    std::vector<ReplacedField> replaced;
    const bool isSearch = line.isSet(QStringLiteral("where"));
    FoundRecords found;
    if (error.isEmpty() && isSearch) {
        Companions companions({Settings::GamePath.value(), Settings::OutputDir.value()});
        error = found.find(line.value(QStringLiteral("where")), file, content.model, companions);
        // Values may be names, too.
        if (error.isEmpty() && !found.mesh && !std::holds_alternative<StaticMesh>(content.model))
            found.mesh = namedMesh(file, content.model, companions);
    }
    for (int i = 1; i < operands.size() && error.isEmpty(); i += 2) {
        error = isSearch ? found.replace(content.model, operands.at(i), operands.at(i + 1), replaced)
                         : patchModel(content.model, operands.at(i), operands.at(i + 1), changes);
    }
    if (!error.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(file, error));
        return Failed;
    }
    changes.insert(changes.end(), replaced.begin(), replaced.end());
    if (!note.isEmpty())
        Output::complain(QStringLiteral("%1: warning: %2").arg(file, note));
    const bool isSame = isOneFile(file, target);
    const ModelNames after = namesOf(content);
    const bool withNames = isSame ? !(before == after) : !after.isEmpty();
    const QString names = withNames ? replacedNames(target, content, isSame ? before : after) : QString();
    if (!line.isSet(QStringLiteral("force")) && !names.isEmpty()) {
        Output::refuseToReplace({names});
        return Failed;
    }
    // A file that is to stay as it is keeps its bytes and its time.
    if ((!changes.empty() || !isSame) && writeWholeModel(target, content, withNames))
        return Failed;
    for (const PatchedField &change : changes)
        Output::line(
            QStringLiteral("  %1: %2 -> %3")
                .arg(change.place, QString::fromUtf8(change.before), QString::fromUtf8(change.after)));
    if (changes.empty())
        Output::line(QStringLiteral("  No value changed."));
    return Fine;
}
