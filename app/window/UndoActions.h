// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class QMenu;
class QToolBar;
class QUndoGroup;

/// Adds undo and redo of the group's active stack, with the keys that people expect, to the top of a menu and
/// to a tool bar.
void addUndoActions(QUndoGroup &group, QMenu &menu, QToolBar &toolBar);
