// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "FoundRecords.h"
#include "ModelText.h"
#include "MotionCommand.h"
#include "Output.h"
#include "ReplacedFiles.h"
#include "Settings.h"
#include "TargetFiles.h"
#include "Verbs.h"

#include <QRegularExpression>

#include <numeric>

namespace {
/// A command by its words.
struct MotionWord
{
    const char *word;
    const char *arguments;
    int least;
    int most;
};

constexpr MotionWord motionWords[] = {
    {"resample", "FRAMES", 1, 1},  {"rate", "FRAMES-A-SECOND", 1, 1},
    {"reverse", "", 0, 0},         {"trim", "FIRST LAST", 2, 2},
    {"shift", "FRAMES", 1, 1},     {"close-loop", "FRAMES", 1, 1},
    {"mirror", "", 0, 0},          {"extract-yaw", "", 0, 0},
    {"apply-yaw", "", 0, 0},       {"remove-unused", "", 0, 0},
    {"join-equal", "", 0, 0},      {"renumber", "OFFSET|OLD=NEW,...", 1, 2},
    {"copy-from", "SOURCE", 1, 1},
};

const MotionWord *motionWord(const QString &text)
{
    for (const MotionWord &each : motionWords) {
        if (text == QLatin1String(each.word))
            return &each;
    }
    return nullptr;
}

/// Numbers below 0 are no options.
QStringList numbersLast(const QStringList &arguments)
{
    static const QRegularExpression number(QStringLiteral("^-\\d+$"));
    QStringList options;
    QStringList operands;
    bool takesNext = false;
    for (const QString &argument : arguments) {
        const bool isOption = argument.size() > 1 && argument.startsWith(QLatin1Char('-')) &&
                              !number.match(argument).hasMatch();
        if (takesNext || isOption)
            options += argument;
        else
            operands += argument;
        takesNext = !takesNext && QStringList{QStringLiteral("-o"),      QStringLiteral("--output"),
                                              QStringLiteral("--block"), QStringLiteral("--around"),
                                              QStringLiteral("--mesh"),  QStringLiteral("--source-mesh")}
                                      .contains(argument);
    }
    options.removeAll(QStringLiteral("--"));
    return options << QStringLiteral("--") << operands;
}

/// What is to be done with each file.
struct AnimateJob
{
    QString word;
    Motion::Command command;
    QString source; ///< of "copy-from"
    QVector<int> blocks;
    bool isAll = false;
    QString mesh;       ///< file; empty for the one that belongs to the animations
    QString sourceMesh; ///< the same
};

/// The command that words and options say. Returns why they say none.
QString readCommand(const CommandLine &line, const QStringList &arguments, AnimateJob &job)
{
    bool isNumber = true;
    const auto number = [&](int place) {
        bool isOne = false;
        const int value = arguments.value(place).toInt(&isOne);
        isNumber = isNumber && isOne;
        return value;
    };
    const QString &word = job.word;
    if (word == QLatin1String("resample"))
        job.command = Motion::Resample{number(0), 0, line.isSet(QStringLiteral("keep-speed"))};
    else if (word == QLatin1String("rate"))
        job.command = Motion::Resample{0, arguments.first().toDouble(&isNumber), false};
    else if (word == QLatin1String("reverse"))
        job.command = Motion::Reverse{};
    else if (word == QLatin1String("trim"))
        job.command = Motion::Trim{number(0), number(1)};
    else if (word == QLatin1String("close-loop"))
        job.command = Motion::CloseLoop{number(0)};
    else if (word == QLatin1String("mirror"))
        job.command = Motion::Mirror{};
    else if (word == QLatin1String("extract-yaw"))
        job.command = Motion::ExtractYaw{};
    else if (word == QLatin1String("apply-yaw"))
        job.command = Motion::ApplyYaw{};
    else if (word == QLatin1String("remove-unused"))
        job.command = Motion::RemoveUnusedTracks{};
    else if (word == QLatin1String("join-equal"))
        job.command = Motion::JoinEqualTracks{};
    else if (word == QLatin1String("copy-from"))
        job.source = arguments.first();
    if (word == QLatin1String("shift")) {
        const QString around = line.value(QStringLiteral("around"));
        const int way =
            QStringList{QStringLiteral("loops"), QStringLiteral("always"), QStringLiteral("never")}.indexOf(
                around);
        if (way < 0)
            return QStringLiteral("--around takes loops, always or never, not '%1'.").arg(around);
        job.command = Motion::Shift{number(0), Motion::Shift::Around(way)};
    } else if (word == QLatin1String("renumber")) {
        Motion::RenumberIds how;
        for (const QString &argument : arguments) {
            bool isOffset = false;
            const int offset = argument.toInt(&isOffset);
            if (isOffset) {
                how.offset = offset;
                continue;
            }
            const QString reason = Motion::readIdTable(argument, how.table);
            if (!reason.isEmpty())
                return reason;
        }
        job.command = how;
    }
    return isNumber ? QString()
                    : QStringLiteral("'%1' is not %2.")
                          .arg(arguments.join(QLatin1Char(' ')), QLatin1String(motionWord(word)->arguments));
}

/// The mesh of an animation file: the one that is named, else the one that belongs to it.
std::shared_ptr<const SkinnedMesh> meshOf(const QString &named, const QString &file,
                                          const ModelJson::Model &anim, QString &error)
{
    if (named.isEmpty()) {
        Companions companions({Settings::GamePath.value(), Settings::OutputDir.value()});
        return namedMesh(file, anim, companions);
    }
    ModelJson::Content content;
    QString note;
    error = readWholeModel(named, content, note);
    if (error.isEmpty() && !std::holds_alternative<SkinnedMesh>(content.model))
        error = QStringLiteral("It is no skinned mesh.");
    if (!error.isEmpty()) {
        error = QStringLiteral("%1: %2").arg(named, error);
        return nullptr;
    }
    return std::make_shared<const SkinnedMesh>(std::get<SkinnedMesh>(content.model));
}

/// The numbers of the blocks that are meant. Returns why there is one that does not exist.
QString chosenBlocks(const AnimateJob &job, const AnimFile &file, std::vector<int> &blocks)
{
    blocks.resize(file.blocks.size());
    std::iota(blocks.begin(), blocks.end(), 0);
    if (job.isAll)
        return {};
    blocks.assign(job.blocks.begin(), job.blocks.end());
    for (const int block : blocks) {
        if (size_t(block) >= file.blocks.size())
            return QStringLiteral("There is no animation %1; there are %2.")
                .arg(block)
                .arg(file.blocks.size());
    }
    return {};
}

void tellWords(const QString &title, const QStringList &words)
{
    Output::line(QStringLiteral("  %1").arg(title));
    for (const QString &word : words)
        Output::line(QStringLiteral("    %1").arg(word));
}

/// Puts copies of the source's blocks behind those of the file. Returns why that cannot be.
QString copyBlocks(const AnimateJob &job, const QString &path, AnimFile &file, const ModelJson::Model &own)
{
    ModelJson::Content content;
    QString note;
    QString error = readWholeModel(job.source, content, note);
    if (error.isEmpty() && !std::holds_alternative<AnimFile>(content.model))
        error = QStringLiteral("It is no animation.");
    if (!error.isEmpty())
        return QStringLiteral("%1: %2").arg(job.source, error);
    const auto &source = std::get<AnimFile>(content.model);
    std::vector<int> blocks;
    error = chosenBlocks(job, source, blocks);
    const auto toMesh = error.isEmpty() ? meshOf(job.mesh, path, own, error) : nullptr;
    const auto fromMesh =
        error.isEmpty() ? meshOf(job.sourceMesh, job.source, content.model, error) : nullptr;
    if (!error.isEmpty())
        return error;
    if (!toMesh || !fromMesh)
        return QStringLiteral("The mesh that '%1' belongs to was not found; %2 names it.")
            .arg(toMesh ? job.source : path, QLatin1String(toMesh ? "--source-mesh" : "--mesh"));
    const AnimFile before = file;
    std::vector<qint32> taken;
    for (const int index : blocks) {
        Motion::CopiedBlock copied = Motion::copiedTo({*toMesh, before}, {*fromMesh, source}, index, taken);
        if (!copied.block)
            return QStringLiteral("%1: %2").arg(Motion::blockTitle(source, index, fromMesh.get()),
                                                copied.refusal);
        taken.push_back(copied.block->animId);
        file.blocks.push_back(std::move(*copied.block));
        tellWords(Motion::blockTitle(file, int(file.blocks.size()) - 1, toMesh.get()), copied.account.notes);
    }
    return {};
}

/// Changes the blocks and says how. Returns why that cannot be.
QString changeBlocks(const AnimateJob &job, const QString &path, AnimFile &file, const ModelJson::Model &own,
                     bool &changes)
{
    std::vector<int> blocks;
    QString error = chosenBlocks(job, file, blocks);
    if (!error.isEmpty())
        return error;
    const auto mesh = meshOf(job.mesh, path, own, error);
    if (!error.isEmpty())
        return error;
    const std::atomic_bool going{false};
    std::vector<Motion::BlockChange> made = Motion::changesBy(job.command, file, blocks, mesh.get(), going);
    QStringList refused;
    for (const Motion::BlockChange &change : made) {
        if (!change.refusal.isEmpty())
            refused << QStringLiteral("%1: %2").arg(Motion::blockTitle(file, change.index, mesh.get()),
                                                    change.refusal);
    }
    // Of all, those that can be changed are; what was named has to be.
    if (!refused.isEmpty() && (!job.isAll || refused.size() == int(made.size())))
        return refused.first();
    for (const QString &refusal : refused)
        Output::complain(QStringLiteral("%1: warning: %2 It stays as it is.").arg(path, refusal));
    for (Motion::BlockChange &change : made) {
        if (!change.changes)
            continue;
        changes = true;
        tellWords(Motion::blockTitle(file, change.index, mesh.get()), change.words);
        file.blocks[size_t(change.index)] = std::move(change.block);
    }
    return {};
}

/// An empty target: nothing is written.
int animateFile(const AnimateJob &job, const QString &path, const QString &target)
{
    ModelJson::Content content;
    QString note;
    QString error = readWholeModel(path, content, note);
    if (error.isEmpty() && !std::holds_alternative<AnimFile>(content.model))
        error = QStringLiteral("It is no animation.");
    if (error.isEmpty() && !target.isEmpty())
        error = wrongName(target, ModelJson::kindOf(content.model));
    bool changes = !job.source.isEmpty();
    if (error.isEmpty()) {
        AnimFile file = std::get<AnimFile>(content.model);
        error = changes ? copyBlocks(job, path, file, content.model)
                        : changeBlocks(job, path, file, content.model, changes);
        content.model = std::move(file);
    }
    if (!error.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(path, error));
        return Failed;
    }
    if (!note.isEmpty())
        Output::complain(QStringLiteral("%1: warning: %2").arg(path, note));
    if (!changes)
        Output::line(QStringLiteral("  Nothing changes."));
    // A file that is to stay as it is keeps its bytes and its time.
    const bool writes = !target.isEmpty() && (changes || !isOneFile(path, target));
    return writes && writeWholeModel(target, content, false) ? Failed : Fine;
}
} // namespace

int animate(const QStringList &arguments)
{
    QStringList list;
    for (const MotionWord &each : motionWords)
        list
            << QString(QLatin1String(each.word) + QLatin1Char(' ') + QLatin1String(each.arguments)).trimmed();
    CommandLine line(
        QStringLiteral("animate"), QStringLiteral("FILE... COMMAND [ARGUMENTS]"),
        QStringLiteral(
            "Changes whole animations, and says what changes. With neither -o nor --in-place nothing is "
            "written. COMMAND is one of: %1. 'copy-from' puts animations of SOURCE behind those of FILE, "
            "for the bones of FILE.")
            .arg(list.join(QStringLiteral(", "))));
    line.option(
        {QStringLiteral("block")}, QStringLiteral("number"),
        QStringLiteral(
            "The animation, counted from 0; may be given several times. Of 'copy-from' one of SOURCE."));
    line.flag(QStringLiteral("all"), QStringLiteral("All animations; those that cannot be changed stay."));
    TargetFiles::addOptions(line);
    line.flag(QStringLiteral("keep-speed"),
              QStringLiteral("Of 'resample': the motion takes longer or shorter."));
    line.option({QStringLiteral("around")}, QStringLiteral("which"),
                QStringLiteral("Of 'shift': which animations go round: loops, always or never."),
                QStringLiteral("loops"));
    line.option({QStringLiteral("mesh")}, QStringLiteral("file"),
                QStringLiteral("The mesh of the animations, where it is not found by itself."));
    line.option({QStringLiteral("source-mesh")}, QStringLiteral("file"),
                QStringLiteral("The same of SOURCE."));
    if (const auto end = line.parse(numbersLast(arguments), true))
        return *end;

    QStringList files = line.operands();
    QStringList words;
    int first = 0;
    while (first < files.size() && !motionWord(files.at(first)))
        ++first;
    words = files.mid(first);
    files = files.mid(0, first);
    if (words.isEmpty() || files.isEmpty())
        return line.refuse(QStringLiteral("A file and a command are wanted."));
    AnimateJob job;
    job.word = words.takeFirst();
    const MotionWord &word = *motionWord(job.word);
    if (words.size() < word.least || words.size() > word.most)
        return line.refuse(
            QStringLiteral("The command is: %1 %2").arg(job.word, QLatin1String(word.arguments)).trimmed());
    const QString reason = readCommand(line, words, job);
    if (!reason.isEmpty())
        return line.refuse(reason);
    job.isAll = line.isSet(QStringLiteral("all"));
    for (const QString &block : line.values(QStringLiteral("block"))) {
        const auto number = line.integer(QStringLiteral("block"), block, 0, 65535);
        if (!number)
            return WrongUsage;
        job.blocks.append(*number);
    }
    if (job.isAll == !job.blocks.isEmpty())
        return line.refuse(QStringLiteral("Either --block or --all says which animations."));
    job.mesh = line.value(QStringLiteral("mesh"));
    job.sourceMesh = line.value(QStringLiteral("source-mesh"));
    TargetFiles targets;
    if (const auto end = targets.read(line, files))
        return *end;
    return targets.forEach(
        [&job](const QString &file, const QString &target) { return animateFile(job, file, target); });
}
