// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

/// A change of what a list holds, as opposed to a change of one of its records.
struct StructureChange
{
    /// The record put in or taken out, or the one below which lists changed their lengths.
    RecordRef record;
    /// 1: put in, -1: taken out, 0: lists below `record` have other lengths; of the root, all is new.
    int added;
    /// The record, or the group, that is to be shown afterwards; none when what is shown stays.
    RecordRef select;
};

/// The screen, as undo commands see it. Whoever shows the record refreshes it, selects it, and follows its
/// geometry; the changes of one undo step are collapsed there.
class DocumentView
{
public:
    virtual ~DocumentView() = default;

    /// Comes before each change of the model: who reads it in another thread is done with it afterwards.
    virtual void aboutToChange() = 0;
    virtual void recordChanged(const RecordRef &record) = 0;
    virtual void structureChanged(const StructureChange &change) = 0;
};

/// The document that a command edits: its current model, and the screen to tell. Both outlive the command.
template <typename Model>
class EditTarget
{
public:
    EditTarget(Model &model, DocumentView &view)
        : m_model(model)
        , m_view(view)
    {}

    const Model &model() const { return m_model; }
    /// The model, to be changed now.
    Model &edit() const
    {
        m_view.aboutToChange();
        return m_model;
    }
    DocumentView &view() const { return m_view; }

private:
    Model &m_model;
    DocumentView &m_view;
};
