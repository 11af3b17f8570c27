// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordFilter.h"

#include "RecordTable.h"
#include "RecordTexts.h"

#include <QRegularExpression>
#include <QStringView>

#include <algorithm>

namespace {
using Words = QVector<QStringView>;

/// The runs of letters and digits.
Words wordsOf(const QString &text)
{
    Words words;
    int begin = -1;
    for (int i = 0; i <= text.size(); ++i) {
        const bool within = i < text.size() && text[i].isLetterOrNumber();
        if (within && begin < 0) {
            begin = i;
        } else if (!within && begin >= 0) {
            words.append(QStringView(text).mid(begin, i - begin));
            begin = -1;
        }
    }
    return words;
}

/// The number that a word is; false when it is none.
bool numberOf(QStringView word, qint64 &number)
{
    bool isNumber = false;
    number = word.toLongLong(&isNumber);
    return isNumber;
}
} // namespace

RecordFilter::RecordFilter(const QString &text, const SkinnedMesh *mesh)
    : m_text(text)
{
    // A text that is no condition is words.
    static_cast<void>(m_condition.read(text, mesh));
    static const QRegularExpression term(
        QStringLiteral("(\\d{1,18})(?:\\s*(?:-|–|\\.\\.)\\s*(\\d{1,18}))?|[^\\W_]+"),
        QRegularExpression::UseUnicodePropertiesOption);
    for (auto found = term.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        if (match.capturedLength(1) == 0) {
            m_terms.append({match.captured(), false, 0, 0});
            continue;
        }
        if (m_terms.isEmpty() || m_terms.last().hasRange)
            m_terms.append(Term());
        Term &numbers = m_terms.last();
        numbers.hasRange = true;
        numbers.first = match.captured(1).toLongLong();
        numbers.last = match.capturedLength(2) == 0 ? numbers.first : match.captured(2).toLongLong();
        if (numbers.first > numbers.last)
            std::swap(numbers.first, numbers.last);
    }
}

bool RecordFilter::matches(const QString &text) const
{
    const Words words = wordsOf(text);
    return std::all_of(m_terms.begin(), m_terms.end(), [&words](const Term &term) {
        for (int i = 0; i < words.size(); ++i) {
            // Anywhere in a word, for "arm" is in "Oberarm"; what a number belongs to is named by its
            // beginning.
            if (!term.hasRange && words[i].contains(term.word, Qt::CaseInsensitive))
                return true;
            if (!term.hasRange || !words[i].startsWith(term.word, Qt::CaseInsensitive))
                continue;
            const int at = term.word.isEmpty() ? i : i + 1;
            qint64 number = 0;
            if (at < words.size() && numberOf(words[at], number) && number >= term.first &&
                number <= term.last)
                return true;
        }
        return false;
    });
}

bool RecordFilter::names(const QString &noun) const
{
    const Words words = wordsOf(noun);
    return std::any_of(m_terms.begin(), m_terms.end(), [&words](const Term &term) {
        return term.word.size() >= 3 && std::any_of(words.begin(), words.end(), [&term](QStringView word) {
                   return word.startsWith(term.word, Qt::CaseInsensitive);
               });
    });
}

bool RecordFilter::matches(const Document &document, const RecordRef &record) const
{
    if (!m_condition.isEmpty() && !m_condition.isPlain())
        return m_condition.matches(document.values(), record);
    if (matches(searchText(document, record)))
        return true;
    return (!recordRow(record.kind)->meshData || m_condition.names(record.kind)) &&
           m_condition.matches(document.values(), record);
}

bool RecordFilter::asksFor(RecordKind kind, const QString &noun) const
{
    if (m_condition.isEmpty() || m_condition.isPlain())
        return names(noun);
    if (m_condition.names(kind) || !m_condition.concerns(kind))
        return m_condition.names(kind);
    // What is hidden is shown where the condition is about nothing else.
    const RecordKind root = RecordWords::kindOf(kind)->root;
    const auto &kinds = RecordWords::kinds();
    return std::none_of(kinds.begin(), kinds.end(), [&](const SearchedKind &each) {
        return each.root == root && !recordRow(each.kind)->meshData && m_condition.concerns(each.kind);
    });
}
