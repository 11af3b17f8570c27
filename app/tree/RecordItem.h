// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QTreeWidgetItem>

/// The tree item of one record or group. It keeps the record's four numbers and answers everything else
/// (text, icon) from the tree's document when asked, so that half a million of them are cheap and no label
/// can be stale.
class RecordItem final : public QTreeWidgetItem
{
public:
    static constexpr int Type = QTreeWidgetItem::UserType + 1;

    RecordItem(RecordKind kind, const RecordIndex &index)
        : QTreeWidgetItem(Type)
        , m_kind(kind)
        , m_index(index)
    {}

    RecordRef record() const { return {m_kind, m_index}; }

    /// Under Qt::UserRole the kind code and the three indexes as a list.
    QVariant data(int column, int role) const override;

private:
    RecordKind m_kind;
    RecordIndex m_index;
};
