// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UndoActions.h"

#include "Icons.h"
#include "Typing.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>
#include <QUndoGroup>

namespace {
/// What is being typed becomes an edit first: a tool button leaves it in its field, where it would be lost.
void finishTypingBefore(QAction *action, QUndoGroup &group, void (QUndoGroup::*step)())
{
    action->disconnect(&group);
    QObject::connect(action, &QAction::triggered, &group, [&group, step] {
        finishTyping();
        (group.*step)();
    });
}
} // namespace

void addUndoActions(QUndoGroup &group, QMenu &menu, QToolBar &toolBar)
{
    QObject *window = toolBar.window();
    QAction *undo = group.createUndoAction(window, QCoreApplication::translate("UndoActions", "&Undo"));
    finishTypingBefore(undo, group, &QUndoGroup::undo);
    undo->setObjectName(QStringLiteral("actionUndo"));
    undo->setIcon(namedIcon(QStringLiteral("undo")));
    undo->setShortcut(QKeySequence::Undo);
    QAction *redo = group.createRedoAction(window, QCoreApplication::translate("UndoActions", "&Redo"));
    finishTypingBefore(redo, group, &QUndoGroup::redo);
    redo->setObjectName(QStringLiteral("actionRedo"));
    redo->setIcon(fileIcon(QStringLiteral(":Images/Icons/redo.png")));
    redo->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Shift+Z")), QKeySequence(QStringLiteral("Ctrl+Y"))});
    // While a dialog that blocks nothing is in front, too.
    for (QAction *action : {undo, redo})
        action->setShortcutContext(Qt::ApplicationShortcut);
    menu.insertActions(menu.actions().value(0), {undo, redo});
    toolBar.addActions({undo, redo});
}
