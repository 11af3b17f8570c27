// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "KeypadShortcuts.h"

#include "KVOpenGLWidget.h"

#include <QAction>
#include <QKeyEvent>

#include <algorithm>

KeypadShortcuts::KeypadShortcuts(const Viewports &viewports, QObject *parent)
    : QObject(parent)
{
    for (KVOpenGLWidget *viewport : viewports)
        viewport->installEventFilter(this);
}

bool KeypadShortcuts::eventFilter(QObject *watched, QEvent *event)
{
    const bool isPress = event->type() == QEvent::KeyPress;
    auto *viewport = qobject_cast<KVOpenGLWidget *>(watched);
    if ((!isPress && event->type() != QEvent::ShortcutOverride) || !viewport)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    if ((key->modifiers() & Qt::KeypadModifier) == 0 || viewport->tools().isHandleHeld())
        return false;
    const QKeySequence keys(int(key->modifiers()) | key->key());
    const QList<QAction *> actions = viewport->actions();
    const auto action = std::find_if(actions.begin(), actions.end(), [&](const QAction *each) {
        return each->isEnabled() && each->shortcuts().contains(keys);
    });
    if (action == actions.end())
        return false;
    event->accept(); // so that no shortcut has it, and it comes as a press
    if (isPress && (!key->isAutoRepeat() || (*action)->autoRepeat()))
        (*action)->trigger();
    return true;
}
