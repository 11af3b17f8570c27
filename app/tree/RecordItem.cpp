// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordItem.h"

#include "KVTreeView.h"
#include "RecordTable.h"

QVariant RecordItem::data(int column, int role) const
{
    if (column != 0)
        return {};
    switch (role) {
    case Qt::UserRole:
        return QVariantList{int(m_kind), m_index[0], m_index[1], m_index[2]};
    case Qt::DisplayRole:
    case Qt::EditRole: {
        const auto *tree = static_cast<const KVTreeView *>(treeWidget());
        return tree ? tree->label(record()) : QString();
    }
    case Qt::DecorationRole:
        return recordIcon(m_kind);
    default:
        return {};
    }
}
