// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordItem.h"

#include "RecordSelection.h"
#include "RecordTable.h"

#include <QTreeWidget>

namespace {
QVariantList userData(const RecordRef &record)
{
    return {int(record.kind), record.index[0], record.index[1], record.index[2]};
}
} // namespace

RecordRef RecordItem::record() const
{
    RecordRef record{m_kind, {}};
    for (const auto *item = this; item; item = static_cast<const RecordItem *>(item->parent())) {
        const RecordRow *row = recordRow(item->m_kind);
        if (row->position == RecordRow::FromIndex)
            record.index[size_t(row->component)] = item->m_number;
    }
    return record;
}

int RecordItem::position() const
{
    const int position = recordRow(m_kind)->position;
    return position == RecordRow::FromIndex ? m_number : position;
}

int RecordItem::rowAt(int position) const
{
    const auto positionIn = [this](int row) { return static_cast<RecordItem *>(child(row))->position(); };
    if (position >= 0 && position < childCount() && positionIn(position) == position)
        return position;
    // A filter left some out.
    int begin = 0;
    int end = childCount();
    while (begin < end) {
        const int middle = begin + (end - begin) / 2;
        const int found = positionIn(middle);
        if (found == position)
            return middle;
        if (found < position)
            begin = middle + 1;
        else
            end = middle;
    }
    return -1;
}

QVector<RecordRef> RecordItem::expandedBelow() const
{
    QVector<RecordRef> expanded;
    for (QTreeWidgetItemIterator it(const_cast<RecordItem *>(this), QTreeWidgetItemIterator::HasChildren);
         *it; ++it) {
        // The iterator goes on behind the last child.
        const QTreeWidgetItem *ancestor = *it;
        while (ancestor && ancestor != this)
            ancestor = ancestor->parent();
        if (!ancestor)
            break;
        if (*it != this && (*it)->isExpanded())
            expanded.append(static_cast<RecordItem *>(*it)->record());
    }
    return expanded;
}

QVariant RecordItem::data(int column, int role) const
{
    if (column != 0)
        return {};
    const auto texts = [this] { return dynamic_cast<const RecordSelection *>(treeWidget()); };
    switch (role) {
    case Qt::UserRole:
        return userData(record());
    case Qt::DisplayRole:
    case Qt::EditRole:
        return texts() ? texts()->label(record()) : QString();
    case NoteRole:
        return texts() ? texts()->note(record()) : QString();
    case Qt::ToolTipRole:
        return texts() ? texts()->toolTip(record()) : QString();
    case Qt::AccessibleTextRole:
        return QString(data(column, Qt::DisplayRole).toString() + QLatin1Char(' ') +
                       data(column, NoteRole).toString())
            .trimmed();
    case Qt::DecorationRole:
        return recordIcon(m_kind);
    default:
        return {};
    }
}
