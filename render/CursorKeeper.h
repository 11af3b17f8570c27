// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ViewTool.h"

#include <QPoint>

class QWidget;

/// Shows the cursor that a view's tools want, and keeps a captured one in the middle of the view.
class CursorKeeper
{
public:
    explicit CursorKeeper(QWidget &view);

    /// A cursor that is no longer captured goes back to where it was.
    void show(ViewCursor cursor);
    /// The mouse has moved to this pixel.
    void moved(const QPoint &pixel);

private:
    QPoint centre() const;
    void recentre();

    QWidget &m_view;
    ViewCursor m_shown = ViewCursor::Arrow;
    QPoint m_saved; ///< where the mouse was captured, on the screen
};
