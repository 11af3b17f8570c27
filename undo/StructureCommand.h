// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

#include <QCoreApplication>

#include <algorithm>

/// Puts a record into a list, or takes one out, and back.
///
/// The record moves between the list and the command, so what happens to it without an undo step while it
/// is in the list (its frame count may change) stays with it. A position that does not exist any more is
/// left alone.
template <typename Command, typename RecordType, RecordKind Group>
class StructureCommand : public UC_Base
{
public:
    using Place = RecordType;
    using Model = typename RecordType::Model;
    using Record = typename RecordType::Record;

protected:
    StructureCommand(EditTarget<Model> target, const RecordIndex &index, Record record, QUndoCommand *parent)
        : UC_Base(QCoreApplication::translate("UndoCommands", Command::undoText), parent)
        , m_target(target)
        , m_index(index)
        , m_record(std::move(record))
    {}

    void insert()
    {
        auto *list = RecordType::list(m_target.edit(), m_index);
        if (m_held && list && position() >= 0 && size_t(position()) <= list->size()) {
            list->insert(list->begin() + position(), std::move(m_record));
            m_held = false;
            notify(1, {RecordType::kind, m_index});
        }
    }

    void remove()
    {
        auto *list = RecordType::list(m_target.edit(), m_index);
        if (m_held || !list || !Records::element(*list, position()))
            return;
        m_record = std::move((*list)[size_t(position())]);
        list->erase(list->begin() + position());
        m_held = true;
        // The one that took its place is shown: its successor, else the last, else the emptied group.
        RecordIndex next = m_index;
        next[RecordType::component] = std::min(position(), int(list->size()) - 1);
        const bool isEmpty = list->empty();
        if (isEmpty)
            next[RecordType::component] = 0;
        notify(-1, {isEmpty ? Group : RecordType::kind, next});
    }

    bool m_held = true; ///< the record is here and not in the list

private:
    int position() const { return m_index[RecordType::component]; }

    void notify(int added, const RecordRef &select)
    {
        m_target.view().structureChanged({{RecordType::kind, m_index}, added, select});
    }

    EditTarget<Model> m_target;
    RecordIndex m_index;
    Record m_record;
};

/// Puts a new record, or the copy of one, at `index`.
template <typename Command, typename RecordType, RecordKind Group>
class InsertCommand : public StructureCommand<Command, RecordType, Group>
{
    using Base = StructureCommand<Command, RecordType, Group>;

public:
    InsertCommand(EditTarget<typename Base::Model> target, const RecordIndex &index,
                  typename Base::Record record, QUndoCommand *parent = nullptr)
        : Base(target, index, std::move(record), parent)
    {}

    void undo() override { this->remove(); }
    void redo() override { this->insert(); }
};

/// Takes the record at `index` out.
template <typename Command, typename RecordType, RecordKind Group>
class RemoveCommand : public StructureCommand<Command, RecordType, Group>
{
    using Base = StructureCommand<Command, RecordType, Group>;

public:
    RemoveCommand(EditTarget<typename Base::Model> target, const RecordIndex &index,
                  QUndoCommand *parent = nullptr)
        : Base(target, index, {}, parent)
    {
        this->m_held = false;
    }

    void undo() override { this->insert(); }
    void redo() override { this->remove(); }
};
