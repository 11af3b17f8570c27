// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewTool.h"

#include <QPoint>

#include <functional>

class QWidget;

/// Shows the cursor that a view's tools want, and keeps a captured one in the middle of the view, where the
/// window system lets a program move the cursor.
class CursorKeeper
{
public:
    /// Puts the cursor to a place on the screen; returns where it is then.
    using Put = std::function<QPoint(const QPoint &place)>;

    explicit CursorKeeper(QWidget &view, Put put = putCursor);

    /// Follow the mouse before: a captured one starts there. One that is no longer captured goes back to
    /// where it was.
    void show(ViewCursor cursor);
    /// The mouse has come to this pixel. Returns how far the hand has moved it there.
    QPoint follow(const QPoint &pixel);

private:
    static QPoint putCursor(const QPoint &place);
    QPoint centre() const;
    void recentre(const QPoint &from);

    QWidget &m_view;
    Put m_put;
    ViewCursor m_shown = ViewCursor::Arrow;
    bool m_canMove = true; ///< as far as is known of this capture
    QPoint m_last;         ///< where the mouse is, in the view
    QPoint m_saved;        ///< where the mouse was captured, on the screen
};
