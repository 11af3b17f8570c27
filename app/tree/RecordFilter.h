// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Condition.h"

#include <QString>
#include <QVector>

class Document;

/// What somebody types to find records: words that all have to be in words of the record's text, in any
/// case, and numbers or ranges of them ("100-120"). A number that follows a word belongs to it: "vertex
/// 100-120" and "event 30" match where such a number stands right behind a word that begins so.
///
/// Or a Condition. One of nothing but words and numbers finds what these are in the text of, too, and leaves
/// long lists (vertices, keys) to that unless it names them.
class RecordFilter
{
public:
    /// The mesh, which may be null, has the names that a condition may be about.
    explicit RecordFilter(const QString &text = {}, const SkinnedMesh *mesh = nullptr);

    /// Matches everything.
    bool isEmpty() const { return m_terms.isEmpty(); }
    const QString &text() const { return m_text; }
    bool matches(const QString &text) const;
    bool matches(const Document &document, const RecordRef &record) const;
    /// Whether one of the words, of three letters or more, begins a word of `noun`.
    bool names(const QString &noun) const;
    /// Whether it is about a list that trees usually hide, of records of this kind, called so.
    bool asksFor(RecordKind kind, const QString &noun) const;

private:
    struct Term
    {
        QString word; ///< empty for numbers without a word
        bool hasRange = false;
        qint64 first = 0;
        qint64 last = 0;
    };

    QString m_text;
    QVector<Term> m_terms;
    Condition m_condition; ///< nothing where the text is none
};
