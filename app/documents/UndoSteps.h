// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

#include <QAction>

/// Lets an action of a stack, or of a group of them, go a step only when nothing is typed that cannot be
/// stored: what is typed becomes an edit first, as a tool button or a menu leaves it in its field; what
/// cannot be one is gone back to. `document()` gives the document that it is about, maybe none.
template <typename Steps, typename DocumentOf>
void stepWithoutTyping(QAction *action, Steps &steps, void (Steps::*step)(), DocumentOf document)
{
    action->disconnect(&steps);
    QObject::connect(action, &QAction::triggered, &steps, [&steps, step, document] {
        Document *stepped = document();
        if (!stepped || !stepped->returnToTyping())
            (steps.*step)();
    });
}
