// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QIcon>
#include <QString>
#include <QVector>

/// How one kind of record or group stands in its document's tree: the trees of all three documents are
/// rows of one table.
struct RecordRow
{
    /// The position of a record that is one of a list: its index.
    static constexpr int FromIndex = -1;

    RecordKind kind;
    RecordKind parent;  ///< None for a root
    int position;       ///< among the parent's children, or FromIndex
    int component;      ///< with FromIndex: which of the indexes counts the list
    RecordKind counted; ///< a group's: the kind whose number its label gives
    const char *label;  ///< with %1 for the group's count or the record's text (or number)
    const char *icon;
    bool meshData;    ///< left out of the tree while mesh data (in an animation: animation data) is hidden
    const char *noun; ///< what the records of a list are called in a filter; empty for what is in none
};

/// The row of a kind; null for None.
const RecordRow *recordRow(RecordKind kind);
/// The rows whose parent is `kind`, by position.
const QVector<const RecordRow *> &childRows(RecordKind kind);
/// Whether records of the kind stand somewhere below the root.
bool belongsTo(RecordKind kind, RecordKind root);
QIcon recordIcon(RecordKind kind);

/// The positions that lead from the top of the tree to a record's item.
QVector<int> indexPath(const RecordRef &record);
