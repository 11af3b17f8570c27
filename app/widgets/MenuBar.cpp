// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MenuBar.h"

#include <QEvent>

bool MenuBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel)
        return QMenuBar::eventFilter(watched, event);
    // The menu bar looks at all events while Alt is held; a move of the mouse makes it forget the key.
    QEvent move(QEvent::MouseMove);
    return QMenuBar::eventFilter(watched, &move);
}
