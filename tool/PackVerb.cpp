// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Files.h"
#include "Interruption.h"
#include "ModelFile.h"
#include "Output.h"
#include "PackList.h"
#include "PackedCheck.h"
#include "ReplacedFiles.h"
#include "Settings.h"
#include "Verbs.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QSet>

namespace {
QString counted(size_t count)
{
    return count == 1 ? QStringLiteral("1 file") : QStringLiteral("%1 files").arg(count);
}

void tell(const PackList &list)
{
    for (const LeftOutFile &file : list.leftOut)
        Output::line(QStringLiteral("left out: %1 (%2)").arg(file.name, file.reason));
    for (const PackedFile &file : list.files) {
        if (file.replacesGame)
            Output::line(QStringLiteral("replaces the game's: %1").arg(file.name));
    }
}

QJsonArray asJson(const PackList &list)
{
    QJsonArray array;
    for (const PackedFile &file : list.files)
        array.append(QJsonObject{{QStringLiteral("file"), file.name},
                                 {QStringLiteral("replacesGame"), file.replacesGame}});
    for (const LeftOutFile &file : list.leftOut)
        array.append(
            QJsonObject{{QStringLiteral("file"), file.name}, {QStringLiteral("leftOut"), file.reason}});
    return array;
}

int write(const PackList &list, const QString &target, const std::atomic_bool &interrupted)
{
    const PackEnd end = writePack(list, target, [&interrupted](qint64) { return !interrupted; });
    if (end.isFailed && interrupted)
        return Interrupted;
    if (end.isFailed)
        Output::complain(QStringLiteral("%1: %2").arg(end.path, end.reason));
    return end.isFailed ? Failed : Fine;
}
} // namespace

int pack(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("pack"), QStringLiteral("MODFOLDER"),
        QStringLiteral("Makes the archive of a mod: a zip file with all that belongs to the mod, checked "
                       "before. Hidden files, backups, sources of other programs, archives and programs "
                       "stay out, and so does what Korvane keeps beside models. Says what replaces files "
                       "of the game. The same files make the same bytes."));
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("The archive to write, a .kpf or .zip file. Needed, but for --list."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace that file if it exists."));
    line.flag(QStringLiteral("list"), QStringLiteral("Say what would be packed, and write nothing."));
    line.flag(QStringLiteral("json"), QStringLiteral("With --list: write an array of objects, one a file."));
    line.flag(QStringLiteral("with-errors"),
              QStringLiteral("Pack what 'korvane-tool check --mod' finds errors in, too."));
    line.option({QStringLiteral("leave-out")}, QStringLiteral("pattern"),
                QStringLiteral("Leave out files of such names, with * and ?, or such paths below the mod's "
                               "folder. May stand there more than once."));
    line.option({QStringLiteral("game-path")}, QStringLiteral("folder"),
                QStringLiteral("Game folder, or the game's archive, whose files are replaced, and in which "
                               "materials and textures are looked for; by default the one of the editor's "
                               "options."));
    if (const auto end = line.parse(arguments, false))
        return *end;
    const bool lists = line.isSet(QStringLiteral("list"));
    const QString target = line.value(QStringLiteral("output"));
    if (target.isEmpty() == !lists)
        return line.refuse(lists ? QStringLiteral("--list writes no archive: -o says nothing there.")
                                 : QStringLiteral("-o FILE is missing."));
    if (!lists && !Files::isArchiveName(target))
        return line.refuse(QStringLiteral("An archive is called .kpf or .zip, not '%1'.").arg(target));
    if (line.isSet(QStringLiteral("json")) && !lists)
        return line.refuse(QStringLiteral("--json goes with --list."));

    const QString mod = line.operands().first();
    if (!QFileInfo(mod).isDir()) {
        Output::complain(QStringLiteral("%1: There is no such folder.").arg(mod));
        return Failed;
    }
    const QString game = QStringLiteral("game-path");
    const MaterialFolders folders{line.isSet(game) ? line.value(game) : Settings::GamePath.value(), mod};
    const QString problem = Files::archiveProblem(Files::archiveOf(folders.gamePath));
    if (!problem.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(folders.gamePath, problem));
        return Failed;
    }
    if (folders.gamePath.isEmpty())
        Output::complain(
            QStringLiteral("What replaces the game's files is not known without a game folder."));
    if (!lists && !line.isSet(QStringLiteral("force")) && isTaken(target)) {
        Output::refuseToReplace({target});
        return Failed;
    }

    const PackList list = listForPacking(mod, folders.gamePath, line.values(QStringLiteral("leave-out")));
    for (const QString &each : list.problems)
        Output::complain(QStringLiteral("%1: %2").arg(mod, each));
    if (list.files.empty())
        Output::complain(QStringLiteral("%1: There is no file to pack in this folder.").arg(mod));
    const bool isPossible = list.problems.isEmpty() && !list.files.empty();
    if (lists && line.isSet(QStringLiteral("json"))) {
        Output::json(asJson(list));
    } else if (lists) {
        for (const PackedFile &file : list.files)
            Output::line(file.name);
        tell(list);
    }
    if (lists || !isPossible)
        return isPossible ? Fine : Failed;
    const std::atomic_bool &interrupted = interruption();
    QSet<QString> names;
    for (const PackedFile &file : list.files)
        names.insert(file.name);
    const bool hasErrors = findsErrors(folders, names, [&interrupted] { return !interrupted; });
    if (interrupted)
        return Interrupted;
    if (hasErrors && !line.isSet(QStringLiteral("with-errors"))) {
        Output::complain(
            QStringLiteral("%1: Nothing was packed, for errors; --with-errors packs all the same.").arg(mod));
        return Failed;
    }
    tell(list);
    const int exitCode = write(list, target, interrupted);
    if (exitCode == Fine)
        Output::line(QStringLiteral("%1: %2").arg(target, counted(list.files.size())));
    return exitCode;
}
