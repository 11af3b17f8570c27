// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CursorKeeper.h"

#include <QCursor>
#include <QWidget>

#include <utility>

namespace {
Qt::CursorShape shapeOf(ViewCursor cursor)
{
    switch (cursor) {
    case ViewCursor::ClosedHand:
        return Qt::ClosedHandCursor;
    case ViewCursor::Captured:
        return Qt::BlankCursor;
    case ViewCursor::Arrow:
        break;
    }
    return Qt::ArrowCursor;
}
} // namespace

CursorKeeper::CursorKeeper(QWidget &view)
    : m_view(view)
{}

QPoint CursorKeeper::centre() const
{
    return {m_view.width() / 2, m_view.height() / 2};
}

void CursorKeeper::recentre()
{
    QCursor::setPos(m_view.mapToGlobal(centre()));
}

void CursorKeeper::show(ViewCursor cursor)
{
    const ViewCursor before = std::exchange(m_shown, cursor);
    if (before == cursor)
        return;
    if (before == ViewCursor::Captured)
        QCursor::setPos(m_saved);
    if (cursor == ViewCursor::Captured) {
        m_saved = QCursor::pos();
        recentre();
    }
    m_view.setCursor(shapeOf(cursor));
}

void CursorKeeper::moved(const QPoint &pixel)
{
    if (m_shown == ViewCursor::Captured && pixel != centre())
        recentre();
}
