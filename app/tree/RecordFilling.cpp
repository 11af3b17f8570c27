// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordFilling.h"

#include "RecordItem.h"
#include "RecordTable.h"

#include <QCoreApplication>

#include <algorithm>
#include <memory>

bool RecordFilling::hasBelow(const RecordRef &owner) const
{
    const QVector<const RecordRow *> &rows = childRows(owner.kind);
    return std::any_of(rows.begin(), rows.end(), [&](const RecordRow *row) {
        return !(m_hideData && row->meshData) &&
               (row->position != RecordRow::FromIndex || m_document.recordCount(row->kind, owner.index) > 0);
    });
}

void RecordFilling::leaveForLater(RecordItem *item, const RecordRef &record) const
{
    if (hasBelow(record))
        item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
}

void RecordFilling::fill(RecordItem *item, const RecordRef &owner) const
{
    item->setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
    for (const RecordRow *row : childRows(owner.kind)) {
        if (m_hideData && row->meshData)
            continue;
        if (row->position != RecordRow::FromIndex) {
            auto *group = new RecordItem(row->kind);
            item->addChild(group);
            fill(group, {row->kind, owner.index});
            continue;
        }
        const int count = m_document.recordCount(row->kind, owner.index);
        const bool isLeaf = childRows(row->kind).isEmpty();
        QList<QTreeWidgetItem *> children;
        children.reserve(count);
        RecordIndex index = owner.index;
        for (int i = 0; i < count; ++i) {
            index[size_t(row->component)] = i;
            auto *child = new RecordItem(row->kind, i);
            if (!isLeaf && count > LongList)
                leaveForLater(child, {row->kind, index});
            else if (!isLeaf)
                fill(child, {row->kind, index});
            children.append(child);
        }
        item->addChildren(children);
    }
}

void RecordFilling::fillMatching(RecordItem *item, const RecordRef &owner) const
{
    QList<QTreeWidgetItem *> children;
    for (const RecordRow *row : childRows(owner.kind)) {
        if (m_hideData && row->meshData && !isAskedFor(*row))
            continue;
        const bool isList = row->position == RecordRow::FromIndex;
        const bool isLeaf = childRows(row->kind).isEmpty();
        RecordRef record{row->kind, owner.index};
        const int count = isList ? m_document.recordCount(row->kind, owner.index) : 1;
        for (int i = 0; i < count; ++i) {
            if (isList)
                record.index[size_t(row->component)] = i;
            const bool isMatch = m_letThrough.contains(record) || m_filter.matches(m_document, record);
            if (isLeaf && !isMatch)
                continue;
            auto child = std::make_unique<RecordItem>(row->kind, isList ? i : 0);
            if (isMatch && count > LongList)
                leaveForLater(child.get(), record);
            else if (isMatch)
                fill(child.get(), record);
            else
                fillMatching(child.get(), record);
            if (isMatch || child->childCount() > 0)
                children.append(child.release());
        }
    }
    item->addChildren(children);
}

bool RecordFilling::isAskedFor(const RecordRow &row) const
{
    // What a list is hidden in has no noun of its own.
    const RecordRow &list = row.position == RecordRow::FromIndex ? row : *childRows(row.kind).first();
    return m_filter.asksFor(list.kind, QCoreApplication::translate("Records", list.noun));
}
