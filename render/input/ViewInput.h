// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QSize>
#include <Qt>

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

/// What mouse and keyboard just did over a view, recorded for its tools. Pixels count from the view's upper
/// left corner. An event fills in what it knows; the chain adds what came of the press before.
struct ViewInput
{
    static ViewInput of(const QMouseEvent &event, const QSize &viewSize);
    static ViewInput of(const QWheelEvent &event, const QSize &viewSize);
    static ViewInput of(const QKeyEvent &event, const QSize &viewSize);

    QPoint centre() const { return {size.width() / 2, size.height() / 2}; }
    bool isDrag() const { return travel >= dragDistance; }

    QPoint position;
    QPoint step; ///< pixels that the mouse has moved since the event before, beside what it was put back
    QSize size;  ///< of the view
    Qt::MouseButton button = Qt::NoButton;
    Qt::MouseButtons buttons; ///< held, with the one that was pressed and without the one that was released
    Qt::KeyboardModifiers modifiers;
    QPoint wheelTurn; ///< eighths of a degree
    int key = 0;
    bool autoRepeat = false;
    int dragDistance = 10; ///< pixels, from which on a press is no click any more

    // Of the press before.
    QPoint pressPosition;
    int travel = 0;         ///< pixels that the hand has moved since
    bool mouseHeld = false; ///< a tool's cursor says that the mouse is its own
};
