// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

/// The screen, as undo commands see it. Whoever shows the record refreshes it, selects it, and follows its
/// geometry; the changes of one undo step are collapsed there.
class DocumentView
{
public:
    virtual ~DocumentView() = default;

    virtual void recordChanged(const RecordRef &record) = 0;
};

/// The document that a command edits: its current model, and the screen to tell. Both outlive the command.
template <typename Model>
struct EditTarget
{
    Model &model;
    DocumentView &view;
};
