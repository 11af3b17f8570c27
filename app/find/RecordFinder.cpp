// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordFinder.h"

#include "DocumentLoader.h"
#include "Memory.h"
#include "RecordOrder.h"
#include "RecordTable.h"
#include "Replacement.h"

#include <algorithm>

RecordFinder::RecordFinder(const std::array<Searched, 3> &documents, QObject *parent)
    : QObject(parent)
    , m_documents(documents)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(DelayMs);
    connect(&m_delay, &QTimer::timeout, this, &RecordFinder::start);
    for (const Searched &each : m_documents) {
        const DocumentType type = each.document->kind().type;
        connect(each.document, &Document::aboutToBeReplaced, this, [this, type] { forget(type); });
        connect(each.document, &Document::replaced, this, [this, type] {
            m_selected[size_t(type)].clear();
            markStale();
        });
        connect(each.document, &Document::recordsChanged, this, [this] {
            emit valuesChanged();
            markStale();
        });
        connect(
            each.document, &Document::structuresChanged, this,
            [this, type](const QVector<StructureChange> &changes) { onStructuresChanged(type, changes); });
    }
}

void RecordFinder::setCurrent(const Document *document)
{
    if (std::exchange(m_current, document) == document || m_scope == Scope::All)
        return;
    m_follows ? start() : markStale();
}

bool RecordFinder::isSearched(const Document &document) const
{
    return document.isOpen() && (m_scope == Scope::All || &document == m_current);
}

bool RecordFinder::hasDocument() const
{
    return std::any_of(m_documents.begin(), m_documents.end(),
                       [this](const Searched &each) { return isSearched(*each.document); });
}

void RecordFinder::search(const QString &text, Scope scope)
{
    m_text = text;
    m_scope = scope;
    for (size_t i = 0; i < m_documents.size(); ++i) {
        const QVector<RecordRef> selected = m_documents[i].selection->selectedRefs();
        const bool isShown = size_t(m_shown.type) == i && selected == QVector<RecordRef>{m_shown.record};
        if (scope != Scope::Selection || (isShown && !m_selected[i].isEmpty()))
            continue;
        m_selected[i] = QSet<RecordRef>(selected.begin(), selected.end());
    }
    start();
}

void RecordFinder::setFollowing(bool follows)
{
    m_follows = follows;
    if (follows && m_isStale)
        m_delay.start();
}

void RecordFinder::refresh()
{
    if (m_isStale)
        start();
}

void RecordFinder::markStale()
{
    m_isStale = true;
    if (m_follows)
        m_delay.start();
}

void RecordFinder::start()
{
    m_delay.stop();
    m_isStale = false;
    m_work.cancel();
    m_reason.clear();
    m_condition = Condition();
    if (!m_text.trimmed().isEmpty())
        m_reason = m_condition.read(m_text, m_documents.front().document->namedMesh());
    if (m_condition.isEmpty())
        return take({});
    struct Part
    {
        DocumentType type;
        Document::Searcher search;
    };
    struct Found
    {
        std::vector<Hit> hits;
        QString lack;
    };
    std::vector<Part> parts;
    for (const Searched &each : m_documents) {
        if (isSearched(*each.document))
            parts.push_back({each.document->kind().type, each.document->searcher(m_condition)});
    }
    m_work.start(
        [parts = std::move(parts)](const std::atomic_bool &cancelled) {
            Found found;
            found.lack = withinMemory([&] {
                for (const Part &part : parts) {
                    for (const RecordRef &record : part.search(cancelled))
                        found.hits.push_back({part.type, record});
                }
            });
            return found;
        },
        [this](Found found) {
            m_reason = found.lack;
            take(found.lack.isEmpty() ? std::move(found.hits) : std::vector<Hit>());
        });
    m_work.wait(DocumentLoader::usualPatience());
    if (isRunning())
        emit changed();
}

void RecordFinder::take(std::vector<Hit> hits)
{
    m_hits = std::move(hits);
    if (m_scope == Scope::Selection)
        m_hits.erase(std::remove_if(m_hits.begin(), m_hits.end(),
                                    [this](const Hit &hit) { return !isInSelection(hit); }),
                     m_hits.end());
    emit changed();
}

void RecordFinder::forget(DocumentType type)
{
    m_work.cancel();
    m_hits.erase(
        std::remove_if(m_hits.begin(), m_hits.end(), [type](const Hit &hit) { return hit.type == type; }),
        m_hits.end());
    emit changed();
}

void RecordFinder::onStructuresChanged(DocumentType type, const QVector<StructureChange> &changes)
{
    // Numbers stand for other records now.
    forget(type);
    QVector<RecordRef> selected(m_selected[size_t(type)].begin(), m_selected[size_t(type)].end());
    for (const StructureChange &change : changes) {
        if (change.added != 0)
            shift(selected, change);
    }
    m_selected[size_t(type)] = QSet<RecordRef>(selected.begin(), selected.end());
    markStale();
}

bool RecordFinder::isInSelection(const Hit &hit) const
{
    const QSet<RecordRef> &selected = m_selected[size_t(hit.type)];
    RecordRef owner = hit.record;
    for (const RecordRow *row = recordRow(owner.kind); row; row = recordRow(row->parent)) {
        owner.kind = row->kind;
        if (selected.contains(owner))
            return true;
        if (row->position == RecordRow::FromIndex)
            owner.index[size_t(row->component)] = 0;
    }
    return false;
}

RecordFinder::Outcome RecordFinder::replace(const std::vector<int> &hits, const QString &word,
                                            const QString &text)
{
    Outcome outcome;
    // What is listed may be what another condition has found, or what was so before an edit.
    if (isRunning() || m_isStale) {
        outcome.reason = tr("The records are being searched.");
        return outcome;
    }
    std::array<Replacement, 3> made;
    int place = hits.size() == 1 ? hits.front() : 0;
    for (const Searched &each : m_documents) {
        const DocumentType type = each.document->kind().type;
        std::vector<RecordRef> records;
        for (const int hit : hits) {
            if (m_hits[size_t(hit)].type == type)
                records.push_back(m_hits[size_t(hit)].record);
        }
        if (records.empty())
            continue;
        Replacement &replacement = made[size_t(type)];
        replacement =
            replacementOf(each.document->values(), records, word, text, place, each.document->namedMesh());
        if (!replacement.reason.isEmpty()) {
            outcome.reason = replacement.reason;
            outcome.refusing = {type, replacement.refusing};
            outcome.isAboutHit = replacement.refusing.kind != RecordKind::None;
            return outcome;
        }
        place += int(records.size());
    }
    // Nothing is changed before everything fits.
    for (const Searched &each : m_documents) {
        const Replacement &replacement = made[size_t(each.document->kind().type)];
        if (replacement.differing == 0)
            continue;
        outcome.records += replacement.differing;
        ++outcome.documents;
        for (const FieldChange &change : replacement.changes) {
            if (outcome.note.isEmpty())
                outcome.note = change.field->note();
        }
        each.document->changeFields(replacement.changes,
                                    tr("Replace %1 (%2)").arg(word, QString::number(replacement.differing)));
    }
    if (outcome.records > 0)
        start();
    return outcome;
}
