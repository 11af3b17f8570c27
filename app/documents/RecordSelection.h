// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QString>
#include <QVector>

/// What lists the records of a document and lets the user select some of them, for those who need not know
/// that it is a tree.
class RecordSelection
{
public:
    virtual RecordRef currentRecord() const = 0;
    /// The selected records of one kind, ascending by index.
    virtual QVector<RecordIndex> selectedRecords(RecordKind kind) const = 0;
    /// All that are selected, by kind and index.
    virtual QVector<RecordRef> selectedRefs() const = 0;
    /// What a record is called in the list.
    virtual QString label(const RecordRef &record) const = 0;
    /// What the model's own names call it; empty when they do not.
    virtual QString name(const RecordRef &record) const = 0;
    /// What the list says of it more quietly, behind the label; its name is part of that.
    virtual QString note(const RecordRef &record) const = 0;
    /// All that a record holds, as rich text for a tool tip.
    virtual QString toolTip(const RecordRef &record) const = 0;

protected:
    RecordSelection() = default;
    RecordSelection(const RecordSelection &) = default;
    RecordSelection &operator=(const RecordSelection &) = default;
    ~RecordSelection() = default;
};
