// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QTreeWidgetItem>
#include <QVector>

/// The tree item of one record or group. It keeps the record's kind and its number in its list; its owners'
/// numbers are its parents', the text comes from its tree (a RecordSelection) when asked. So half a million
/// of them are cheap and no label can be stale.
class RecordItem final : public QTreeWidgetItem
{
public:
    static constexpr int Type = QTreeWidgetItem::UserType + 1;

    /// `number`: the place in the list; 0 for what is in none.
    explicit RecordItem(RecordKind kind, int number = 0)
        : QTreeWidgetItem(Type)
        , m_kind(kind)
        , m_number(number)
    {}

    /// The record, for an item that stands in its tree.
    RecordRef record() const;

    /// Whether anything belongs below it, be it there or left for later.
    bool hasBelow() const { return isIncomplete() || childCount() > 0; }
    /// What belongs below it is not there yet: see KVTreeView::complete().
    bool isIncomplete() const { return childIndicatorPolicy() == ShowIndicator; }

    /// The row of the child that stands there while no filter leaves any out; -1 when there is none.
    int rowAt(int position) const;
    /// What is open below it.
    QVector<RecordRef> expandedBelow() const;

    /// Where it stands among its siblings while no filter leaves any of them out.
    int position() const;

    /// A quieter text behind the label: see RecordNotes.
    static constexpr int NoteRole = Qt::UserRole + 1;

    /// Under Qt::UserRole the kind code and the three indexes as a list.
    QVariant data(int column, int role) const override;

private:
    RecordKind m_kind;
    int m_number;
};
