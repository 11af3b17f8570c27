// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

class DocumentFiles;
class QIcon;
class QUndoGroup;
class QUndoView;

/// Lets the view show the group's active stack, with this icon at the step that was saved. It goes nowhere
/// while something is typed for the current document that cannot be stored.
///
/// The view as it comes sets the stack from within the selection's change, which resets the selection: what
/// it does next reads freed memory. Here the stack follows when the change is over.
void showHistory(QUndoView &view, QUndoGroup &group, const DocumentFiles &files, const QIcon &savedIcon);
