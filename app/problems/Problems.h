// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"
#include "Finding.h"
#include "ReferenceIds.h"

#include <QTimer>

#include <array>
#include <functional>

/// What is wrong with the open documents. It follows their changes, a moment after the last one. Another
/// thread looks, at a copy of the model, so that nobody waits for it.
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
    /// How many there are, in all documents, those included that lists only count.
    qint64 count(Severity severity) const;

    /// The numbers that key frame actions may name from now on.
    void setReferenceIds(const ReferenceIds &ids);
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
    std::array<bool, 3> m_isStale{};
    ReferenceIds m_ids;
    QTimer m_delay;
    std::array<Background, 3> m_checks;
};
