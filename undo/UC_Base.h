// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QUndoCommand>

/// The base of every command. Commands never merge: two edits of a field are two undo steps.
class UC_Base : public QUndoCommand
{
public:
    explicit UC_Base(const QString &text, QUndoCommand *parent = nullptr);
    ~UC_Base() override;
};
