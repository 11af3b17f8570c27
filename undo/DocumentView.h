// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

/// A change of what a list holds, as opposed to a change of one of its records.
struct StructureChange
{
    RecordRef
        record; ///< the record put in or taken out; or the record below which lists changed their lengths
    int added;  ///< 1: put in, -1: taken out, 0: lists below `record` have other lengths
    RecordRef select; ///< the record, or the group, that is to be shown afterwards
};

/// The screen, as undo commands see it. Whoever shows the record refreshes it, selects it, and follows its
/// geometry; the changes of one undo step are collapsed there.
class DocumentView
{
public:
    virtual ~DocumentView() = default;

    virtual void recordChanged(const RecordRef &record) = 0;
    virtual void structureChanged(const StructureChange &change) = 0;
};

/// The document that a command edits: its current model, and the screen to tell. Both outlive the command.
template <typename Model>
struct EditTarget
{
    Model &model;
    DocumentView &view;
};
