// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"
#include "Finding.h"
#include "Problem.h"
#include "ReferenceIds.h"

#include <QTimer>

#include <array>
#include <functional>

class ModProblems;

/// What is wrong with the open documents, and with the mod where that is wanted. It follows their changes, a
/// moment after the last one. Another thread looks, at a copy of the model, so that nobody waits for it.
class Problems : public QObject
{
    Q_OBJECT

public:
    static constexpr int DelayMs = 300;
    /// A repair of all findings of one kind stops at this many, so that the window does not.
    static constexpr int MostRepairs = 100000;

    /// The documents outlive this.
    Problems(SkinnedMeshDocument &skinnedMesh, AnimDocument &anim, StaticMeshDocument &staticMesh,
             QObject *parent);

    const std::vector<Finding> &findings(DocumentType type) const { return m_findings[size_t(type)]; }
    /// What is wrong with the open documents, and what was found in the mod, silenced or not.
    const std::vector<Problem> &all() const { return m_all; }
    ModProblems &mod() const { return *m_mod; }
    /// How many there are that nobody has silenced, those included that lists only count.
    qint64 count(Severity severity) const { return m_counts[size_t(severity)]; }
    qint64 silencedCount() const { return m_silenced; }

    /// Reads the numbers anew that key frame actions may name.
    void loadReferenceIds();
    /// Looks again, soon: the folders or what is in them may have changed.
    void recheck();

    // While something is typed for the document that cannot be stored, neither repairs anything: each leads
    // back to it.

    /// Repairs those of the places where the rule still has something to repair, as one undo step.
    void repairPlaces(DocumentType type, Rule rule, const QVector<RecordRef> &places);
    /// Repairs what the rule has to repair in the whole document, as one undo step.
    void repairAll(DocumentType type, Rule rule);

signals:
    void changed();

private:
    Document &document(DocumentType type) const { return *m_documents[size_t(type)]; }
    void markChanged(DocumentType type);
    void collect();
    void check();
    void startCheck(DocumentType type);
    /// What gives the findings of the document as it is now, in any thread.
    std::function<std::vector<Finding>()> checkNow(DocumentType type) const;
    std::vector<RecordRef> repairable(DocumentType type, Rule rule) const;
    void repairNow(DocumentType type, Rule rule, const std::vector<RecordRef> &places);

    SkinnedMeshDocument &m_skinnedMesh;
    AnimDocument &m_anim;
    StaticMeshDocument &m_staticMesh;
    std::array<Document *, 3> m_documents; ///< in the order of DocumentType, as all that follows
    std::array<std::vector<Finding>, 3> m_findings;
    ModProblems *m_mod;
    std::vector<Problem> m_all;
    std::array<qint64, 3> m_counts{}; ///< by severity
    qint64 m_silenced = 0;
    std::array<bool, 3> m_isChecked{}; ///< since the document was replaced
    std::array<bool, 3> m_isStale{};
    ReferenceIds m_ids;
    QTimer m_delay;
    std::array<Background, 3> m_checks;
};
