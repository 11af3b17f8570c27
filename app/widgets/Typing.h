// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QWidget>

/// Lets the editor that has the keys store what is typed in it: a shortcut or a tool button leaves both
/// there.
inline void finishTyping()
{
    if (QWidget *editor = QApplication::focusWidget()) {
        editor->clearFocus();
        editor->setFocus();
    }
}
