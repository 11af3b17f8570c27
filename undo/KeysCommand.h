// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlockKeys.h"
#include "CommandTable.h"

#include <QCoreApplication>
#include <QVector>

/// Sets any number of keys of an animation block as one command, of which a thousand take no more memory than
/// their values. A block that is gone by then is left alone.
///
/// `Command` is the class itself, `RecordType` where the block lives.
template <typename Command, typename RecordType>
class KeysCommand : public UC_Base
{
public:
    using Place = RecordType;
    using Model = typename Place::Model;

    /// `shown` are the records that the screen shows as changed, such as the bones that the keys move.
    KeysCommand(EditTarget<Model> target, const RecordIndex &index, BlockKeys keys, QVector<RecordRef> shown,
                QUndoCommand *parent = nullptr)
        : UC_Base(QCoreApplication::translate("UndoCommands", Command::undoText), parent)
        , m_target(target)
        , m_index(index)
        , m_keys(std::move(keys))
        , m_shown(std::move(shown))
    {}

    void undo() override { exchange(); }
    void redo() override { exchange(); }

private:
    void exchange()
    {
        if (!Place::find(m_target.model(), m_index))
            return;
        m_keys.exchange(*Place::find(m_target.edit(), m_index));
        for (const RecordRef &record : qAsConst(m_shown))
            m_target.view().recordChanged(record);
    }

    EditTarget<Model> m_target;
    RecordIndex m_index;
    BlockKeys m_keys;
    QVector<RecordRef> m_shown;
};
