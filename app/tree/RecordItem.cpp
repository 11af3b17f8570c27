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

QVariant RecordItem::data(int column, int role) const
{
    if (column != 0)
        return {};
    switch (role) {
    case Qt::UserRole:
        return userData(record());
    case Qt::DisplayRole:
    case Qt::EditRole: {
        const auto *labels = dynamic_cast<const RecordSelection *>(treeWidget());
        return labels ? labels->label(record()) : QString();
    }
    case Qt::DecorationRole:
        return recordIcon(m_kind);
    default:
        return {};
    }
}
