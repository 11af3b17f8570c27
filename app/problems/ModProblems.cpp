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
    text = file.readAll();
    return {};
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
    for (const Silence &each : silences) {
        const std::vector<CheckSettings::Silence> known = CheckSettings::read(text).silences();
        const bool isKnown = std::any_of(known.begin(), known.end(), [&each](const auto &silence) {
            return silence.rule == each.rule && silence.files == each.name;
        });
        if (isKnown)
            continue;
        text = CheckSettings::withSilence(text, each.rule, each.name);
        if (text.isEmpty())
            return tr("'%1' is not as it has to be. Mend it first.")
                .arg(QDir::toNativeSeparators(settingsFile()));
    }
    return writeSettings(text);
}

QString ModProblems::hear(const QVector<Silence> &silences)
{
    QByteArray text;
    const QString failure = readSettings(text);
    if (!failure.isEmpty())
        return failure;
    for (const Silence &each : silences) {
        for (;;) {
            const CheckSettings settings = CheckSettings::read(text);
            const auto *silence = settings.silenceOf(QLatin1String(each.rule.toLatin1()), each.name);
            if (!silence)
                break;
            const QByteArray without = CheckSettings::withoutSilence(text, silence->place);
            if (without.isEmpty() || without == text)
                return tr("'%1' is not as it has to be. Mend it first.")
                    .arg(QDir::toNativeSeparators(settingsFile()));
            text = without;
        }
    }
    return writeSettings(text);
}
