// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Problems.h"

#include "DocumentLoader.h"
#include "Log.h"
#include "Memory.h"
#include "ModProblems.h"
#include "Repairs.h"
#include "Settings.h"
#include "Validation.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QSet>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {
constexpr int MostInATurnMs = 10;
}

Problems::Problems(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
                   QObject *parent)
    : QObject(parent)
    , m_skinnedMesh(skinnedMesh)
    , m_anim(anim)
    , m_staticMesh(staticMesh)
    , m_documents{&skinnedMesh, &anim, &staticMesh}
    , m_mod(new ModProblems(this))
{
    connect(m_mod, &ModProblems::changed, this, &Problems::collect);
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &Problems::check);
    for (const DocumentKind &kind : documentKinds()) {
        const DocumentType type = kind.type;
        connect(&document(type), &Document::replaced, this, [this, type] {
            // They name records of the model that went.
            m_findings[size_t(type)].clear();
            m_isChecked[size_t(type)] = false;
            m_checks[size_t(type)].cancel();
            collect();
            markChanged(type);
        });
        connect(&document(type), &Document::recordsChanged, this, [this, type] { markChanged(type); });
        connect(&document(type), &Document::structuresChanged, this, [this, type] { markChanged(type); });
        // The document's name may be another one, and what stood behind its end is gone.
        connect(&document(type), &Document::saved, this, [this, type] {
            collect();
            markChanged(type);
            m_mod->recheck();
        });
    }
    // Whoever comes back from a file manager may have put the missing texture into its place.
    connect(qGuiApp, &QGuiApplication::applicationStateChanged, this, [this](Qt::ApplicationState state) {
        if (state == Qt::ApplicationActive)
            recheck();
    });
}

void Problems::collect()
{
    m_all.clear();
    // By their names in the mod; what is wrong with them as files is told until they are checked.
    QStringList open;
    for (const DocumentKind &kind : documentKinds()) {
        const QString path = document(kind.type).path();
        const QString name = m_mod->nameOf(path);
        if (!name.isEmpty() && m_isChecked[size_t(kind.type)])
            open += name;
        for (const Finding &finding : m_findings[size_t(kind.type)]) {
            Problem problem;
            problem.rule = wordsOf(finding.rule);
            problem.text = finding.text;
            problem.place = finding.place;
            problem.notListed = finding.notListed;
            problem.isRepairable = finding.repairable;
            problem.document = kind.type;
            problem.documentRule = finding.rule;
            problem.path = path;
            problem.name = name;
            const auto *silence =
                name.isEmpty() ? nullptr : m_mod->settings().silenceOf(problem.rule.id, name);
            problem.isSilenced = silence != nullptr;
            problem.why = silence ? silence->why : QString();
            m_all.push_back(std::move(problem));
        }
    }
    for (Problem &problem : m_mod->problems(open))
        m_all.push_back(std::move(problem));

    m_counts = {};
    m_silenced = 0;
    for (const Problem &problem : m_all) {
        qint64 &count = problem.isSilenced ? m_silenced : m_counts[size_t(problem.rule.severity)];
        count += std::max<qint64>(problem.notListed, 1);
    }
    emit changed();
}

void Problems::loadReferenceIds()
{
    m_ids = ReferenceIds::load();
    m_mod->setReferenceIds(m_ids);
    markChanged(DocumentType::SkinnedMesh); // and with it the animations
}

void Problems::recheck()
{
    m_isStale.fill(true);
    m_delay.start();
    m_mod->recheck();
}

void Problems::markChanged(DocumentType type)
{
    m_isStale[size_t(type)] = true;
    if (type == DocumentType::SkinnedMesh)
        m_isStale[size_t(DocumentType::Anim)] = true; // which has to fit it
    m_delay.start();
}

void Problems::check()
{
    m_delay.stop();
    QElapsedTimer begun;
    begun.start();
    for (const DocumentKind &kind : documentKinds()) {
        bool &isStale = m_isStale[size_t(kind.type)];
        // A large model's problems are waited for in vain: the next one is another turn's.
        if (isStale && begun.elapsed() > MostInATurnMs) {
            QTimer::singleShot(0, this, &Problems::check);
            return;
        }
        if (std::exchange(isStale, false))
            startCheck(kind.type);
    }
}

void Problems::startCheck(DocumentType type)
{
    Background &checks = m_checks[size_t(type)];
    struct Checked
    {
        std::vector<Finding> found;
        QString lack; ///< why nothing was looked for
    };
    const auto work = [find = checkNow(type)](const Background::Cancelled &) {
        Checked checked;
        checked.lack = withinMemory([&] { checked.found = find(); });
        return checked;
    };
    checks.start(work, [this, type](Checked checked) {
        // What was known stays where nothing can be said anew.
        if (!checked.lack.isEmpty())
            return Log::warning(
                tr("[Problems] '%1' was not searched: %2").arg(document(type).fileName(), checked.lack));
        m_findings[size_t(type)] = std::move(checked.found);
        m_isChecked[size_t(type)] = true;
        collect();
    });
    // A model of the game's size takes less than a millisecond, and its list does not flicker then.
    checks.wait(DocumentLoader::usualPatience() / 5);
}

std::function<std::vector<Finding>()> Problems::checkNow(DocumentType type) const
{
    if (!document(type).isOpen())
        return [] { return std::vector<Finding>(); };
    const MaterialFolders folders{Settings::GamePath.value(), Settings::OutputDir.value()};
    switch (type) {
    case DocumentType::SkinnedMesh:
        return [model = m_skinnedMesh.copy(), folders, ids = m_ids] {
            return validate(model->get(), folders, ids);
        };
    case DocumentType::Anim: {
        // Of the mesh the animations' checks want to know how many bones it has.
        SkinnedMesh bones;
        bones.nodes.resize(m_skinnedMesh.model().nodes.size());
        return [model = m_anim.copy(), bones, isKnown = m_skinnedMesh.isOpen(), ids = m_ids] {
            return validate(model->get(), isKnown ? &bones : nullptr, ids);
        };
    }
    case DocumentType::StaticMesh:
        break;
    }
    return [model = m_staticMesh.copy(), folders] { return validate(model->get(), folders); };
}

std::vector<RecordRef> Problems::repairable(DocumentType type, Rule rule) const
{
    switch (type) {
    case DocumentType::SkinnedMesh:
        return repairablePlaces(rule, m_skinnedMesh.model(), MostRepairs);
    case DocumentType::Anim:
        return repairablePlaces(rule, m_anim.model(), MostRepairs);
    case DocumentType::StaticMesh:
        break;
    }
    return repairablePlaces(rule, m_staticMesh.model(), MostRepairs);
}

void Problems::repairPlaces(DocumentType type, Rule rule, const QVector<RecordRef> &places)
{
    if (document(type).returnToTyping())
        return;
    // The list may be a moment behind the model.
    const QSet<RecordRef> wanted(places.begin(), places.end());
    const std::vector<RecordRef> now = repairable(type, rule);
    std::vector<RecordRef> both;
    std::copy_if(now.begin(), now.end(), std::back_inserter(both),
                 [&wanted](const RecordRef &place) { return wanted.contains(place); });
    repairNow(type, rule, both);
}

void Problems::repairAll(DocumentType type, Rule rule)
{
    if (!document(type).returnToTyping())
        repairNow(type, rule, repairable(type, rule));
}

void Problems::repairNow(DocumentType type, Rule rule, const std::vector<RecordRef> &places)
{
    if (type == DocumentType::SkinnedMesh)
        repair(rule, places, m_skinnedMesh.editTarget(), *m_skinnedMesh.undoStack());
    else if (type == DocumentType::Anim)
        repair(rule, places, m_anim.editTarget(), *m_anim.undoStack());
    else
        repair(rule, places, m_staticMesh.editTarget(), *m_staticMesh.undoStack());
    check();
}
