// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "Document.h"
#include "RecordSelection.h"

#include <QSet>
#include <QTimer>

#include <array>

/// The records of the open documents that meet a condition. They follow edits, a moment after the last one;
/// another thread looks for them.
class RecordFinder : public QObject
{
    Q_OBJECT

public:
    static constexpr int DelayMs = 100;

    enum class Scope { Document, Selection, All };

    /// A document, and what selects records of it.
    struct Searched
    {
        Document *document;
        const RecordSelection *selection;
    };
    struct Hit
    {
        DocumentType type;
        RecordRef record;
    };

    /// In the order of their kinds; all outlive this.
    RecordFinder(const std::array<Searched, 3> &documents, QObject *parent);

    /// The document that is searched where not all are; null for none.
    void setCurrent(const Document *document);
    /// Looks for what meets the text. What is selected is what is so now, unless that is but the hit that was
    /// shown last.
    void search(const QString &text, Scope scope);
    /// A hit becomes the only record that is selected.
    void noteShown(const Hit &hit) { m_shown = hit; }
    /// Whether edits are followed by themselves, or when somebody asks.
    void setFollowing(bool follows);
    /// Searches again where there were edits since.
    void refresh();

    /// What was understood; empty where the text is no condition, and reason() says why.
    const Condition &condition() const { return m_condition; }
    QString reason() const { return m_reason; }
    bool isRunning() const { return m_work.isRunning(); }
    /// Whether there is a document to search.
    bool hasDocument() const;
    /// By document, kind, and place in the file. All of them exist.
    const std::vector<Hit> &hits() const { return m_hits; }
    Document &document(DocumentType type) const { return *m_documents[size_t(type)].document; }
    const RecordSelection &selection(DocumentType type) const { return *m_documents[size_t(type)].selection; }

    /// What a replacement has come to.
    struct Outcome
    {
        int records = 0; ///< that have another value now
        int documents = 0;
        QString note;   ///< what else there is to say of what was changed
        QString reason; ///< why nothing was changed; empty where it was
        Hit refusing{};
        bool isAboutHit = false; ///< whether `refusing` is one that refuses
    };
    /// Gives the field that `word` stands for a value in these of the hits, which are ascending, as one undo
    /// step a document, or in none of them; never while a search is under way or due.
    Outcome replace(const std::vector<int> &hits, const QString &word, const QString &text);

signals:
    /// Other records meet the condition, or it is another one.
    void changed();
    /// What a hit holds may be another value.
    void valuesChanged();

private:
    bool isSearched(const Document &document) const;
    void start();
    void markStale();
    void take(std::vector<Hit> hits);
    void forget(DocumentType type);
    bool isInSelection(const Hit &hit) const;
    void onStructuresChanged(DocumentType type, const QVector<StructureChange> &changes);

    std::array<Searched, 3> m_documents;
    const Document *m_current = nullptr;
    QString m_text;
    Scope m_scope = Scope::Document;
    std::array<QSet<RecordRef>, 3> m_selected; ///< when the search was asked for
    Hit m_shown{};
    Condition m_condition;
    QString m_reason;
    std::vector<Hit> m_hits;
    bool m_follows = false;
    bool m_isStale = false;
    QTimer m_delay;
    Background m_work;
};
