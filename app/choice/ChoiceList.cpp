// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ChoiceList.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

ChoiceList::ChoiceList(QVector<Choice> choices, bool names, QObject *parent)
    : QAbstractTableModel(parent)
    , m_choices(std::move(choices))
    , m_rows(m_choices.size())
    , m_hasNames(names)
{
    m_texts.reserve(m_choices.size());
    for (const Choice &choice : qAsConst(m_choices))
        m_texts.append((choice.id + QLatin1Char(' ') + choice.name).toCaseFolded());
    std::iota(m_rows.begin(), m_rows.end(), 0);
}

void ChoiceList::setFilter(const QString &text)
{
    const QString wanted = text.simplified().toCaseFolded();
    const QStringList words = wanted.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::array<QVector<int>, 3> found; // the better first
    for (int i = 0; i < m_choices.size(); ++i) {
        const QString &searched = m_texts[i];
        const bool fits = std::all_of(words.begin(), words.end(),
                                      [&](const QString &word) { return searched.contains(word); });
        if (!fits)
            continue;
        const bool isId = !words.isEmpty() && searched.startsWith(wanted);
        const bool isWholeId = isId && m_choices[i].id.size() == wanted.size();
        found[isWholeId ? 0 : isId ? 1 : 2].append(i);
    }
    beginResetModel();
    m_rows = found[0] + found[1] + found[2];
    m_isFiltered = !words.isEmpty();
    endResetModel();
}

int ChoiceList::rowOf(double number) const
{
    const double whole = std::trunc(number);
    const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                  [&](int choice) { return m_choices[choice].number == whole; });
    return row == m_rows.end() ? -1 : int(row - m_rows.begin());
}

QString ChoiceList::longestId() const
{
    QString longest;
    for (const Choice &choice : m_choices) {
        if (choice.id.size() > longest.size())
            longest = choice.id;
    }
    return longest;
}

int ChoiceList::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.size();
}

int ChoiceList::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_hasNames ? 2 : 1;
}

QVariant ChoiceList::data(const QModelIndex &index, int role) const
{
    constexpr int step = 3; // blanks for each level
    if (!index.isValid())
        return {};
    const Choice &shown = choice(index.row());
    const bool isId = index.column() == 0;
    switch (role) {
    case Qt::DisplayRole:
        // What stands above a found one is not shown.
        return isId           ? shown.id
               : m_isFiltered ? shown.name
                              : QString(step * shown.depth, QLatin1Char(' ')) + shown.name;
    case Qt::AccessibleTextRole:
    case Qt::ToolTipRole:
        return m_hasNames ? shown.id + QStringLiteral(": ") + shown.name : shown.id;
    case Qt::TextAlignmentRole:
        return int((isId && m_hasNames ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
    case Qt::DecorationRole:
        return isId && m_icon ? m_icon(shown.number) : QVariant();
    default:
        return {};
    }
}
