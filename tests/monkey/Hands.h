// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Dice.h"

#include <QtWidgets>

/// Mouse and keyboard, by way of the windows, as the window system delivers them.
namespace Hands {
/// What can be seen and used below `arena`, in the order of its making.
template <typename Widget = QWidget>
QVector<Widget *> usable(QWidget *arena)
{
    QVector<Widget *> found;
    for (Widget *each : arena->findChildren<Widget *>()) {
        const QWidget *widget = each;
        if (widget->isVisible() && widget->isEnabled() && !widget->visibleRegion().isEmpty())
            found.append(each);
    }
    return found;
}

/// A widget's class and name; that of the nearest owner with a name when it has none.
QString nameOf(const QWidget *widget);
QString textOf(const QPoint &point);
/// A point in the part of the widget that can be seen; often its middle.
QPoint pointIn(const QWidget *widget, Dice &dice);

void click(QWidget *widget, const QPoint &at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers,
           bool twice);
/// Presses in the widget, moves by way of `points`, and lets go.
void drag(QWidget *widget, const QVector<QPoint> &points, Qt::MouseButton button,
          Qt::KeyboardModifiers modifiers);
void turnWheel(QWidget *widget, const QPoint &at, int delta, Qt::KeyboardModifiers modifiers);
/// To whatever has the focus in the arena's window.
void pressKey(QWidget *arena, int key, Qt::KeyboardModifiers modifiers);
void typeText(QWidget *arena, const QString &text);
} // namespace Hands
