// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewInput.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyleHints>
#include <QWheelEvent>

#include <algorithm>

ViewInput ViewInput::of(const QMouseEvent &event, const QSize &viewSize)
{
    ViewInput input;
    input.position = event.pos();
    input.size = viewSize;
    input.button = event.button();
    input.buttons = event.buttons();
    input.modifiers = event.modifiers();
    input.dragDistance = std::max(1, QGuiApplication::styleHints()->startDragDistance());
    return input;
}

ViewInput ViewInput::of(const QWheelEvent &event, const QSize &viewSize)
{
    ViewInput input;
    input.position = event.position().toPoint();
    input.size = viewSize;
    input.buttons = event.buttons();
    input.modifiers = event.modifiers();
    input.wheelTurn = event.angleDelta();
    return input;
}

ViewInput ViewInput::of(const QKeyEvent &event, const QSize &viewSize)
{
    ViewInput input;
    input.size = viewSize;
    input.modifiers = event.modifiers();
    input.key = event.key();
    input.autoRepeat = event.isAutoRepeat();
    return input;
}
