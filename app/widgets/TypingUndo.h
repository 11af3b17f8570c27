// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractSpinBox>
#include <QKeyEvent>
#include <QLineEdit>

/// Whether an event asks a text field for Ctrl+Z or redo while it has no typing of its own to take back: for
/// an event filter, which then leaves the keys to the document.
inline bool isUndoOfDocument(const QObject *editor, const QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *line = qobject_cast<const QLineEdit *>(editor);
    if (!line && qobject_cast<const QAbstractSpinBox *>(editor))
        line = editor->findChild<QLineEdit *>();
    const auto *key = static_cast<const QKeyEvent *>(event);
    return line && ((key->matches(QKeySequence::Undo) && !line->isUndoAvailable()) ||
                    (key->matches(QKeySequence::Redo) && !line->isRedoAvailable()));
}
