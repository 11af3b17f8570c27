// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadyOptions.h"

#include "Output.h"
#include "Verbs.h"
#include "WorkerRun.h"

#include <algorithm>

namespace {
constexpr float LeastScale = 1.0e-6f;
constexpr float GreatestScale = 1.0e6f;
constexpr float LeastRate = 1.0f;
constexpr float GreatestRate = 240.0f;

const QString Ready = QStringLiteral("ready");
const QString Scale = QStringLiteral("scale");
const QString UpAxis = QStringLiteral("up");
const QString Rate = QStringLiteral("rate");
const QString Clips = QStringLiteral("clips");
const QString ExtraBones = QStringLiteral("extra-bones");
const QString Auto = QStringLiteral("auto");
const QString AxisY = QStringLiteral("y");
const QString AxisZ = QStringLiteral("z");
const QString Source = QStringLiteral("source");

/// The number of the clip that is called so, or has that number; -1 without one.
int clipNamed(const QString &wanted, const SceneSummary &summary)
{
    const auto found =
        std::find_if(summary.clips.begin(), summary.clips.end(),
                     [&wanted](const SceneSummary::Clip &clip) { return clip.name == wanted; });
    if (found != summary.clips.end())
        return int(found - summary.clips.begin());
    bool isNumber = false;
    const int number = wanted.toInt(&isNumber);
    return isNumber && number >= 0 && number < int(summary.clips.size()) ? number : -1;
}

std::optional<int> readClips(const CommandLine &line, const SceneSummary &summary, ReadyChoices &ready)
{
    ready.allClips = false;
    for (const QString &each : line.value(Clips).split(QLatin1Char(','), Qt::SkipEmptyParts)) {
        const int number = clipNamed(each.trimmed(), summary);
        if (number < 0) {
            QStringList names;
            for (const SceneSummary::Clip &clip : summary.clips)
                names += clip.name;
            return line.refuse(
                QStringLiteral("--clips: The file has no animation '%1'. It has %2: %3")
                    .arg(each.trimmed(), QString::number(names.size()), names.join(QStringLiteral(", "))));
        }
        ready.clips.push_back({number, ReadyClip::Loop::WhereItCloses});
    }
    return {};
}
} // namespace

void ReadyOptions::add(CommandLine &line)
{
    line.flag(Ready,
              QStringLiteral(
                  "Make the model ready for the game: upright (see --up), all its parts where they stand, "
                  "its bones and animations as the game poses them. Names of bones and "
                  "animations go into NAME.names.json. Other turns and normals are not "
                  "asked for then."));
    line.option(
        {Scale}, QStringLiteral("factor"),
        QStringLiteral("Scale the model; with --ready also 'auto', which makes a person about 200 units "
                       "high."),
        QStringLiteral("1"));
    line.option({UpAxis}, QStringLiteral("axis"),
                QStringLiteral("With --ready: the axis of the file that points up, y or z, or 'auto', which "
                               "takes z where the format has it so."),
                AxisY);
    line.option(
        {Rate}, QStringLiteral("number"),
        QStringLiteral("With --ready: frames a second of animations, or 'source' for the file's own."),
        QString::number(ReadyChoices::UsualRate));
    line.option({Clips}, QStringLiteral("list"),
                QStringLiteral("With --ready: the animations to take, by name or number (from 0), parted by "
                               "commas; by default all."));
    line.flag(ExtraBones,
              QStringLiteral("With --ready: give bones of their own to vertices that several bones or "
                             "stretched ones move, where they would be off by more than 1 % of the model's "
                             "size, up to 128 bones in all."));
}

std::optional<int> ReadyOptions::read(const CommandLine &line, ImportChoices &choices)
{
    const bool isReady = line.isSet(Ready);
    if (!isReady && (line.isSet(UpAxis) || line.isSet(Rate) || line.isSet(Clips) || line.isSet(ExtraBones)))
        return line.refuse(QStringLiteral("--up, --rate, --clips and --extra-bones need --ready."));
    if (line.isSet(ExtraBones) && choices.isStatic)
        return line.refuse(QStringLiteral("A static mesh has no bones, so no --extra-bones."));
    if ((line.isSet(Rate) || line.isSet(Clips)) && choices.isStatic)
        return line.refuse(QStringLiteral("A static mesh has no animations, so neither --rate nor --clips."));
    if (!isReady || line.value(Scale) != Auto) {
        const auto scale = line.number(Scale, LeastScale, GreatestScale);
        if (!scale)
            return WrongUsage;
        choices.scale = choices.ready.scale = *scale;
    }
    if (!isReady)
        return {};
    const QString up = line.value(UpAxis);
    if (up != AxisY && up != AxisZ && up != Auto)
        return line.refuse(QStringLiteral("--up: y, z or auto, not '%1'.").arg(up));
    choices.ready.isZUp = up == AxisZ;
    for (const char *option : {"no-normals", "flip-uv", "flip-winding", "no-rotate"}) {
        if (line.isSet(QLatin1String(option)))
            return line.refuse(QStringLiteral("--%1 means nothing with --ready.").arg(QLatin1String(option)));
    }
    choices.arrival = Arrival::Ready;
    choices.ready.extraBones = line.isSet(ExtraBones);
    choices.ready.rate = 0.0;
    if (line.value(Rate) == Source)
        return {};
    const auto rate = line.number(Rate, LeastRate, GreatestRate);
    choices.ready.rate = double(rate.value_or(0.0f));
    return rate ? std::nullopt : std::optional<int>(WrongUsage);
}

std::optional<int> ReadyOptions::lookUp(const CommandLine &line, int seconds, ImportChoices &choices)
{
    const bool isAuto = line.value(Scale) == Auto;
    const bool asksUp = line.value(UpAxis) == Auto;
    if (choices.arrival != Arrival::Ready || (!isAuto && !asksUp && !line.isSet(Clips)))
        return {};
    WorkerJob job = importJob(choices);
    job.task = WorkerJob::Task::Summarize;
    ImportWorker worker;
    runJob(worker, seconds, QStringLiteral("--time-limit grants more."), job);
    if (worker.messages().hasError()) {
        Output::tell(worker.messages());
        return Failed;
    }
    const SceneSummary &summary = worker.summary();
    if (asksUp)
        choices.ready.isZUp = summary.proposesZUp;
    if (isAuto)
        choices.ready.scale =
            choices.ready.isZUp == summary.proposesZUp ? summary.proposedScale : summary.otherScale;
    return line.isSet(Clips) ? readClips(line, summary, choices.ready) : std::nullopt;
}
