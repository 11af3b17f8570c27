// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UndoActions.h"

#include "DocumentFiles.h"
#include "Icons.h"
#include "UndoSteps.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>
#include <QUndoGroup>

void addUndoActions(QUndoGroup &group, const DocumentFiles &files, QMenu &menu, QToolBar &toolBar)
{
    QObject *window = toolBar.window();
    QAction *undo = group.createUndoAction(window, QCoreApplication::translate("UndoActions", "&Undo"));
    const auto current = [&files] { return files.current(); };
    stepWithoutTyping(undo, group, &QUndoGroup::undo, current);
    undo->setObjectName(QStringLiteral("actionUndo"));
    undo->setIcon(namedIcon(QStringLiteral("undo")));
    undo->setShortcut(QKeySequence::Undo);
    QAction *redo = group.createRedoAction(window, QCoreApplication::translate("UndoActions", "&Redo"));
    stepWithoutTyping(redo, group, &QUndoGroup::redo, current);
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
