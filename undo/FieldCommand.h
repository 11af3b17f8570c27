// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

#include <QCoreApplication>

/// A field of a record by its member pointer.
template <auto Pointer>
struct Member
{
    template <typename Record>
    static auto get(const Record &record)
    {
        return record.*Pointer;
    }

    template <typename Record, typename Value>
    static void set(Record &record, Value value)
    {
        record.*Pointer = std::move(value);
    }
};

/// A whole record, where the record is nothing but one value: an index of a list, a key of a track.
struct Itself
{
    template <typename Record>
    static Record get(const Record &record)
    {
        return record;
    }

    template <typename Record>
    static void set(Record &record, const Record &value)
    {
        record = value;
    }
};

/// Sets one field of one record.
///
/// `Command` is the class itself: it gives the undo text (`undoText`). `RecordType` is one of Records: where
/// the record lives. `FieldType` reads and writes the field. A record that does not exist any more is left
/// alone: counts may change without an undo step.
template <typename Command, typename RecordType, typename FieldType>
class FieldCommand : public UC_Base
{
public:
    using Place = RecordType;
    using Field = FieldType;
    using Model = typename Place::Model;
    using Record = typename Place::Record;
    using Value = decltype(Field::get(std::declval<const Record &>()));

    FieldCommand(EditTarget<Model> target, const RecordIndex &index, Value value,
                 QUndoCommand *parent = nullptr)
        : UC_Base(QCoreApplication::translate("UndoCommands", Command::undoText), parent)
        , m_target(target)
        , m_index(index)
        , m_new(std::move(value))
    {
        if (const auto *record = Place::find(target.model(), index))
            m_old = Field::get(*record);
    }

    void undo() override { apply(m_old); }
    void redo() override { apply(m_new); }

private:
    void apply(const Value &value)
    {
        if (auto *record = Place::find(m_target.edit(), m_index)) {
            Field::set(*record, value);
            m_target.view().recordChanged({Place::kind, m_index});
        }
    }

    EditTarget<Model> m_target;
    RecordIndex m_index;
    Value m_old{};
    Value m_new;
};
