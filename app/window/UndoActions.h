// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class DocumentFiles;
class QMenu;
class QToolBar;
class QUndoGroup;

/// Adds undo and redo of the group's active stack, with the keys that people expect, to the top of a menu and
/// to a tool bar. The stack is that of the current document of `files`.
void addUndoActions(QUndoGroup &group, const DocumentFiles &files, QMenu &menu, QToolBar &toolBar);
