// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Background.h"
#include "CommandTable.h"

#include <QCoreApplication>

#include <utility>

/// Lets a model become another one as a whole. The command holds the one that is not in the document at the
/// moment. Its text has a place for the name of where the new one comes from. `RecordType`: the root of the
/// model.
template <typename Command, typename RecordType>
class ReplaceCommand : public UC_Base
{
public:
    using Place = RecordType;
    using Model = typename Place::Model;

    ReplaceCommand(EditTarget<Model> target, Model model, const QString &source,
                   QUndoCommand *parent = nullptr)
        : UC_Base(QCoreApplication::translate("UndoCommands", Command::undoText).arg(source), parent)
        , m_target(target)
        , m_model(std::move(model))
    {
        m_model.bytesBehind = target.model().bytesBehind; // they are the file's
    }

    ~ReplaceCommand() override { Background::discard(std::move(m_model)); }

    void undo() override { exchange(); }
    void redo() override { exchange(); }

private:
    void exchange()
    {
        std::swap(m_target.edit(), m_model);
        m_target.view().structureChanged({{Place::kind, {}}, 0, {}});
    }

    EditTarget<Model> m_target;
    Model m_model;
};
