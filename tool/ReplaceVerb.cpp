// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "FileReplacement.h"
#include "FileRun.h"
#include "Interruption.h"
#include "Output.h"
#include "Settings.h"
#include "Verbs.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>

namespace {
/// The options, and behind "--" the operands: a value may be a number below zero.
QStringList arrangedForReplace(const QStringList &arguments)
{
    QStringList options;
    QStringList operands;
    for (const QString &argument : arguments) {
        const bool isOption = argument.startsWith(QLatin1String("--")) || argument == QLatin1String("-h");
        (isOption ? options : operands) += argument;
    }
    options.removeAll(QStringLiteral("--"));
    return options << QStringLiteral("--") << operands;
}

Companions settingsCompanions()
{
    return Companions({Settings::GamePath.value(), Settings::OutputDir.value()});
}

/// What is found to replace, and what stands against it.
struct Findings
{
    std::vector<FileReplacement> files; ///< that change
    int problems = 0;
};

Findings findAll(const QStringList &paths, const ReplaceRule &rule, Companions &companions)
{
    Findings findings;
    bool isMeant = false;
    QStringList unmeant;
    for (const QString &path : paths) {
        std::vector<FileReplacement> gaps;
        const QStringList files = modelFilesBelow(path, gaps);
        for (const FileReplacement &gap : gaps) {
            ++findings.problems;
            Output::complain(QStringLiteral("%1: %2").arg(gap.path, gap.reason));
        }
        for (const QString &file : files) {
            if (interruption())
                return findings;
            FileReplacement found =
                findReplacement(QDir::cleanPath(QFileInfo(file).absoluteFilePath()), rule, companions);
            isMeant |= !found.isUnmeant;
            if (found.isUnmeant) {
                unmeant += QStringLiteral("%1: %2").arg(file, found.reason);
            } else if (!found.reason.isEmpty()) {
                ++findings.problems;
                Output::complain(QStringLiteral("%1: %2").arg(file, found.reason));
            } else if (!found.changes.empty()) {
                findings.files.push_back(std::move(found));
            }
        }
    }
    // Another file may have what is called so; where none has, it is a mistake.
    if (!isMeant && !unmeant.isEmpty()) {
        Output::complain(unmeant.first());
        ++findings.problems;
    }
    return findings;
}

void print(const Findings &findings, bool isJson)
{
    QJsonArray array;
    for (const FileReplacement &file : findings.files) {
        for (const ReplacedField &change : file.changes) {
            const QString before = QString::fromUtf8(change.before);
            const QString after = QString::fromUtf8(change.after);
            if (isJson)
                array.append(QJsonObject{{QStringLiteral("file"), file.path},
                                         {QStringLiteral("place"), change.place},
                                         {QStringLiteral("before"), before},
                                         {QStringLiteral("after"), after}});
            else
                Output::line(QStringLiteral("%1: %2: %3 -> %4").arg(file.path, change.place, before, after));
        }
    }
    if (isJson)
        Output::json(array);
}

int tell(const FileRun::Outcome &outcome, const FileRun &run, const QString &what)
{
    for (const FileRun::Problem &problem : outcome.problems)
        Output::complain(QStringLiteral("%1: %2").arg(problem.path, problem.reason));
    if (outcome.isWhole)
        Output::complain(QStringLiteral("%1: %2 (files: %3).").arg(run.id(), what).arg(outcome.files));
    else
        Output::complain(QStringLiteral("%1: broken off (files done: %2). 'korvane-tool runs --finish %1' "
                                        "ends it, 'korvane-tool runs --undo %1' takes it back.")
                             .arg(run.id())
                             .arg(outcome.files));
    const bool isCancelled = !outcome.isWhole && interruption();
    return isCancelled ? Interrupted : outcome.problems.isEmpty() && outcome.isWhole ? Fine : Failed;
}

int replaceIn(const Findings &findings, const ReplaceRule &rule, Companions &companions)
{
    FileRun run(FileRun::defaultRoot(),
                QStringLiteral("%1: %2 = %3").arg(rule.condition, rule.field, rule.value));
    for (const FileReplacement &file : findings.files) {
        const QString lack =
            interruption() ? QStringLiteral("Interrupted.") : addReplacement(run, file, rule, companions);
        if (lack.isEmpty())
            continue;
        run.forget();
        Output::complain(QStringLiteral("%1: %2 Nothing was changed.").arg(file.path, lack));
        return interruption() ? Interrupted : Failed;
    }
    return tell(run.apply({&interruption(), nullptr}), run, QStringLiteral("replaced"));
}

QString stateText(const FileRun &run)
{
    switch (run.state()) {
    case FileRun::State::Applying:
    case FileRun::State::Undoing:
        return QStringLiteral("broken off");
    case FileRun::State::Applied:
        return QStringLiteral("replaced");
    case FileRun::State::Undone:
        break;
    }
    return QStringLiteral("undone");
}
} // namespace

int replace(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("replace"), QStringLiteral("PATH... CONDITION FIELD VALUE"),
        QStringLiteral(
            "Gives a field of all records that meet a condition another value, in files and in all files of "
            "folders: 'korvane-tool replace mod \"actions sound = 1234\" sound 4321'. CONDITION, FIELD and "
            "VALUE are as in find and set --where. A copy of each file is kept, with which 'korvane-tool "
            "runs' undoes it. Where a file or a folder cannot be read or a value cannot be, nothing is "
            "written."));
    line.flag(QStringLiteral("list"), QStringLiteral("List what would change, and write nothing."));
    line.flag(QStringLiteral("json"),
              QStringLiteral("Write a JSON array with an object for each value that changes."));
    line.flag(QStringLiteral("skip"),
              QStringLiteral("Leave out files that cannot be changed, and folders that cannot be read."));
    if (const auto end = line.parse(arrangedForReplace(arguments), true))
        return *end;
    QStringList paths = line.operands();
    if (paths.size() < 4)
        return line.refuse(QStringLiteral("Files, a condition, a field and a value are wanted."));
    ReplaceRule rule;
    rule.value = paths.takeLast();
    rule.field = paths.takeLast();
    rule.condition = paths.takeLast();

    Companions companions = settingsCompanions();
    const Findings findings = findAll(paths, rule, companions);
    if (interruption())
        return Interrupted;
    print(findings, line.isSet(QStringLiteral("json")));
    if (findings.problems > 0 && !line.isSet(QStringLiteral("skip"))) {
        Output::complain(QStringLiteral("Nothing was changed; --skip leaves such files out."));
        return Failed;
    }
    if (line.isSet(QStringLiteral("list")) || findings.files.empty())
        return Fine;
    return replaceIn(findings, rule, companions);
}

int runs(const QStringList &arguments)
{
    CommandLine line(QStringLiteral("runs"), QStringLiteral("[RUN]"),
                     QStringLiteral("Lists the replacements of 'korvane-tool replace' and of the editor, the "
                                    "newest first, or undoes one: RUN is its number in the list, the newest "
                                    "without. Files that were changed since are left as they are."));
    line.setOperandsOptional();
    line.flag(QStringLiteral("undo"), QStringLiteral("Give the files back what they held."));
    line.flag(QStringLiteral("finish"),
              QStringLiteral("End a run that was broken off, or do again what was undone."));
    line.flag(QStringLiteral("forget"), QStringLiteral("Take its copies away; the files stay as they are."));
    if (const auto end = line.parse(arguments, false))
        return *end;
    std::vector<FileRun> all = FileRun::all(FileRun::defaultRoot());
    const bool undoes = line.isSet(QStringLiteral("undo"));
    const bool finishes = line.isSet(QStringLiteral("finish"));
    const bool forgets = line.isSet(QStringLiteral("forget"));
    if (int(undoes) + int(finishes) + int(forgets) > 1)
        return line.refuse(QStringLiteral("--undo, --finish and --forget exclude one another."));
    if (!undoes && !finishes && !forgets) {
        for (const FileRun &run : all)
            Output::line(QStringLiteral("%1  %2, files: %3  %4")
                             .arg(run.id(), stateText(run))
                             .arg(run.count())
                             .arg(run.title()));
        return Fine;
    }
    const QString id = line.operands().value(0);
    const auto run = std::find_if(all.begin(), all.end(),
                                  [&id](const FileRun &each) { return id.isEmpty() || each.id() == id; });
    if (run == all.end()) {
        Output::complain(id.isEmpty() ? QStringLiteral("There is no run.")
                                      : QStringLiteral("There is no run '%1'.").arg(id));
        return Failed;
    }
    if (forgets) {
        if (!run->hold()) {
            Output::complain(QStringLiteral("Another program is at work on it."));
            return Failed;
        }
        run->forget();
        return Fine;
    }
    const FileRun::Course course{&interruption(), nullptr};
    return undoes ? tell(run->undo(course), *run, QStringLiteral("undone"))
                  : tell(run->apply(course), *run, QStringLiteral("replaced"));
}
