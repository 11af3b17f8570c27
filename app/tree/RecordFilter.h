// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

/// What somebody types to find records: words that all have to be in words of the record's text, in any
/// case, and numbers or ranges of them ("100-120"). A number that follows a word belongs to it: "vertex
/// 100-120" and "event 30" match where such a number stands right behind a word that begins so.
class RecordFilter
{
public:
    explicit RecordFilter(const QString &text = {});

    /// Matches everything.
    bool isEmpty() const { return m_terms.isEmpty(); }
    const QString &text() const { return m_text; }
    bool matches(const QString &text) const;
    /// Whether one of the words, of three letters or more, begins a word of `noun`.
    bool names(const QString &noun) const;

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
};
