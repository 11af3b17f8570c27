// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UndoActions.h"

#include "Icons.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>
#include <QUndoGroup>

void addUndoActions(const QUndoGroup &group, QMenu &menu, QToolBar &toolBar)
{
    QObject *window = toolBar.window();
    QAction *undo = group.createUndoAction(window, QCoreApplication::translate("UndoActions", "&Undo"));
    undo->setObjectName(QStringLiteral("actionUndo"));
    undo->setIcon(namedIcon(QStringLiteral("undo")));
    undo->setShortcut(QKeySequence::Undo);
    QAction *redo = group.createRedoAction(window, QCoreApplication::translate("UndoActions", "&Redo"));
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
