// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModProblems.h"

#include "FileSystem.h"
#include "Log.h"
#include "Memory.h"
#include "Settings.h"
#include "WholeFile.h"

#include <QDir>
#include <QFile>
#include <QSet>

#include <algorithm>
#include <array>
#include <utility>

namespace {
QString modFolder()
{
    const QString folder = Settings::OutputDir.value();
    return folder.isEmpty() ? QString() : QDir::cleanPath(QDir(folder).absolutePath());
}

Problem problemOf(const ModFinding &finding, const QString &folder)
{
    Problem problem;
    problem.rule = finding.rule;
    problem.text = finding.text;
    problem.place = finding.place;
    problem.notListed = finding.notListed;
    problem.path = folder + QLatin1Char('/') + finding.name;
    problem.name = finding.name;
    problem.isSilenced = finding.isSilenced;
    problem.why = finding.why;
    return problem;
}
} // namespace

ModProblems::ModProblems(QObject *parent)
    : QObject(parent)
    , m_isWhole(Settings::ProblemsWholeMod.value())
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &ModProblems::check);
    m_delay.start();
}

void ModProblems::setWhole(bool on)
{
    if (m_isWhole == on)
        return;
    m_isWhole = on;
    Settings::ProblemsWholeMod.setValue(on);
    check();
}

void ModProblems::setReferenceIds(const ReferenceIds &ids)
{
    m_ids = ids;
    recheck();
}

void ModProblems::check()
{
    m_delay.stop();
    const QString folder = modFolder();
    const bool forgets = folder != m_folder || !m_isWhole; // what is of another mod, or of no interest
    if (forgets)
        m_report.findings.clear();
    m_folder = folder;
    m_progress = std::make_shared<Progress>();
    const MaterialFolders folders{Settings::GamePath.value(), folder};
    const auto work = [folders, ids = m_ids, isWhole = m_isWhole,
                       progress = m_progress](const Background::Cancelled &cancelled) {
        ModReport report;
        if (folders.outputDir.isEmpty())
            return report;
        if (!isWhole) {
            report.settings = CheckSettings::of(folders.outputDir);
            return report;
        }
        const auto goesOn = [progress, &cancelled](qint64 done, qint64 all) {
            progress->done = done;
            progress->all = all;
            return !cancelled;
        };
        const QString lack =
            withinMemory([&] { report = ModCheck(folders, ids, ListedFindings, goesOn).run(); });
        if (!lack.isEmpty())
            Log::sayInTime(LogSeverity::Warning,
                           tr("[Problems] '%1' was not searched: %2").arg(folders.outputDir, lack));
        return report;
    };
    m_check.start(work, [this](ModReport report) { take(std::move(report)); });
    if (std::exchange(m_isGivenUp, false) || forgets)
        emit changed();
    emit runningChanged();
}

void ModProblems::take(ModReport report)
{
    m_report = std::move(report);
    emit changed();
    emit runningChanged();
}

void ModProblems::cancel()
{
    m_check.cancel();
    m_isGivenUp = true;
    emit changed();
    emit runningChanged();
}

QString ModProblems::nameOf(const QString &path) const
{
    const int length = m_folder.size();
    const bool isBelow = length > 0 && path.size() > length + 1 && path[length] == QLatin1Char('/') &&
                         FileSystem::isSamePath(path.left(length), m_folder);
    return isBelow ? path.mid(length + 1) : QString();
}

std::vector<Problem> ModProblems::problems(const QStringList &openFiles) const
{
    // The worst first, and what is silenced last.
    constexpr size_t Silenced = size_t(Severity::Note) + 1;
    std::array<std::vector<const ModFinding *>, Silenced + 1> sorted;
    for (const ModFinding &finding : m_report.findings) {
        const bool isOpen = !isModRule(finding.rule) && openFiles.contains(finding.name);
        if (!isOpen)
            sorted[finding.isSilenced ? Silenced : size_t(finding.rule.severity)].push_back(&finding);
    }
    std::vector<Problem> problems;
    for (const std::vector<const ModFinding *> &findings : sorted) {
        Problem rest;
        for (const ModFinding *finding : findings) {
            if (problems.size() < MostListed) {
                problems.push_back(problemOf(*finding, m_folder));
                continue;
            }
            rest.rule.severity = finding->rule.severity;
            rest.isSilenced = finding->isSilenced;
            rest.notListed += std::max<qint64>(finding->notListed, 1);
        }
        if (rest.notListed > 0) {
            rest.rule.order = int(allRuleWords().size());
            rest.text = tr("And %1 more in the mod. They are listed when others are mended or silenced.")
                            .arg(rest.notListed);
            problems.push_back(rest);
        }
    }
    return problems;
}

QString ModProblems::notAsItHasToBe() const
{
    return tr("'%1' is not as it has to be. Mend it first.").arg(QDir::toNativeSeparators(settingsFile()));
}

QString ModProblems::settingsFile() const
{
    return QDir(m_folder).filePath(CheckSettings::FileName);
}

QString ModProblems::readSettings(QByteArray &text) const
{
    if (m_folder.isEmpty() || !QDir(m_folder).exists())
        return tr("There is no mod folder to write %1 into. The options name it.")
            .arg(CheckSettings::FileName);
    QFile file(settingsFile());
    if (!file.exists())
        return {};
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    const qint64 size = file.size();
    text = file.readAll();
    // What is missing would be missing in the file, too, once that is written.
    const bool isWhole = text.size() == size && file.error() == QFileDevice::NoError;
    return isWhole ? QString() : tr("The file could not be read whole.");
}

QString ModProblems::writeSettings(const QByteArray &text)
{
    const QString failure = writeWholeFile(settingsFile(), text);
    if (!failure.isEmpty())
        return failure;
    m_report.settings = CheckSettings::read(text);
    for (ModFinding &finding : m_report.findings) {
        const auto *silence = m_report.settings.silenceOf(finding.rule.id, finding.name);
        finding.isSilenced = silence != nullptr;
        finding.why = silence ? silence->why : QString();
    }
    emit changed();
    return {};
}

QString ModProblems::silence(const QVector<Silence> &silences)
{
    QByteArray text;
    const QString failure = readSettings(text);
    if (!failure.isEmpty())
        return failure;
    const CheckSettings settings = CheckSettings::read(text);
    QSet<CheckSettings::RuleOfFiles> known;
    for (const CheckSettings::Silence &each : settings.silences())
        known.insert({each.rule, each.files});
    std::vector<CheckSettings::RuleOfFiles> added;
    for (const Silence &each : silences) {
        if (!known.contains({each.rule, each.name}))
            added.emplace_back(each.rule, each.name);
        known.insert({each.rule, each.name});
    }
    const QString path = QDir::toNativeSeparators(settingsFile());
    if (settings.silences().size() + added.size() > size_t(CheckSettings::MostSilences))
        return tr("'%1' can silence %2 rules for files at most. Silence a rule everywhere, or write a "
                  "pattern of files into it.")
            .arg(path, QString::number(CheckSettings::MostSilences));
    if (added.empty()) {
        recheck(); // somebody put it in already
        return {};
    }
    text = CheckSettings::withSilences(text, added);
    return text.isEmpty() ? notAsItHasToBe() : writeSettings(text);
}

QString ModProblems::hear(const QVector<Silence> &silences)
{
    QByteArray text;
    const QString failure = readSettings(text);
    if (!failure.isEmpty())
        return failure;
    const CheckSettings settings = CheckSettings::read(text);
    QVector<Silence> folded = silences; // names in one case
    for (Silence &each : folded)
        each.name = each.name.toCaseFolded();
    std::set<int> places;
    for (const CheckSettings::Silence &silence : settings.silences()) {
        const bool isMeant = std::any_of(folded.begin(), folded.end(), [&silence](const Silence &each) {
            return silence.rule == each.rule && silence.pattern.matchesFolded(each.name);
        });
        if (isMeant)
            places.insert(silence.place);
    }
    if (places.empty()) {
        recheck(); // somebody took it out already
        return {};
    }
    const QByteArray without = CheckSettings::withoutSilences(text, places);
    const size_t left = settings.silences().size() - places.size();
    return CheckSettings::read(without).silences().size() == left ? writeSettings(without) : notAsItHasToBe();
}
