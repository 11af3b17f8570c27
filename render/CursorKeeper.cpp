// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CursorKeeper.h"

#include <QCursor>
#include <QGuiApplication>
#include <QWidget>

#include <utility>

namespace {
constexpr int MostAway = 32; // pixels

Qt::CursorShape shapeOf(ViewCursor cursor)
{
    switch (cursor) {
    case ViewCursor::OpenHand:
        return Qt::OpenHandCursor;
    case ViewCursor::Cross:
        return Qt::CrossCursor;
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

CursorKeeper::CursorKeeper(QWidget &view, Put put)
    : m_view(view)
    , m_put(std::move(put))
{}

// Wayland lets nobody move the cursor, and does not always know where it is.
QPoint CursorKeeper::putCursor(const QPoint &place)
{
    if (!QGuiApplication::platformName().startsWith(QLatin1String("wayland")))
        QCursor::setPos(place);
    return QCursor::pos();
}

QPoint CursorKeeper::centre() const
{
    return {m_view.width() / 2, m_view.height() / 2};
}

void CursorKeeper::recentre(const QPoint &from)
{
    m_last = from;
    if (!m_canMove)
        return;
    const QPoint place = m_view.mapFromGlobal(m_put(m_view.mapToGlobal(centre())));
    // The hand may have moved it on meanwhile.
    const int away = (place - centre()).manhattanLength();
    m_canMove = away == 0 || (away <= MostAway && away < (from - centre()).manhattanLength());
    if (m_canMove)
        m_last = place;
}

void CursorKeeper::show(ViewCursor cursor)
{
    const ViewCursor before = std::exchange(m_shown, cursor);
    if (before == cursor)
        return;
    if (before == ViewCursor::Captured && m_canMove)
        m_put(m_saved);
    if (cursor == ViewCursor::Captured) {
        m_saved = QCursor::pos();
        m_canMove = true;
        recentre(m_last);
    }
    m_view.setCursor(shapeOf(cursor));
}

QPoint CursorKeeper::follow(const QPoint &pixel)
{
    const QPoint step = pixel - m_last;
    m_last = pixel;
    if (m_shown == ViewCursor::Captured && pixel != centre())
        recentre(pixel);
    return step;
}
