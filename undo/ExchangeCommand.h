// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

#include <QCoreApplication>

#include <utility>

/// Exchanges what belongs together in a record, such as a list and all numbers that count in it, with another
/// state of it that the command holds: undo is exact, whatever the edit was.
///
/// `RecordType`: whose lists change. `HeldState` tells by `fits(model, index)` whether it can take the place
/// of what is there, and does so by `exchange(model, index)`. A record that is gone by then, or one whose
/// lists were changed without an undo step, is left alone.
template <typename Command, typename RecordType, typename HeldState>
class ExchangeCommand : public UC_Base
{
public:
    using Place = RecordType;
    using Model = typename Place::Model;
    using State = HeldState;

    /// `index` names the record, `before` and `after` what is to be shown of it when it is as it was, and
    /// when it is as `state` has it.
    ExchangeCommand(EditTarget<Model> target, const RecordIndex &index, State state, const RecordRef &before,
                    const RecordRef &after, QUndoCommand *parent = nullptr)
        : UC_Base(QCoreApplication::translate("UndoCommands", Command::undoText), parent)
        , m_target(target)
        , m_index(index)
        , m_held(std::move(state))
        , m_before(before)
        , m_after(after)
    {}

    void undo() override { exchange(false, m_before); }
    void redo() override { exchange(true, m_after); }

private:
    void exchange(bool isDone, const RecordRef &select)
    {
        if (m_isDone == isDone || !m_held.fits(m_target.model(), m_index))
            return;
        m_held.exchange(m_target.edit(), m_index);
        m_isDone = isDone;
        m_target.view().structureChanged({{Place::kind, m_index}, 0, select});
    }

    EditTarget<Model> m_target;
    RecordIndex m_index;
    State m_held;
    RecordRef m_before;
    RecordRef m_after;
    bool m_isDone = false;
};
