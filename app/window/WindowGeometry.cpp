// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WindowGeometry.h"

#include "Settings.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <QWindowStateChangeEvent>

#include <algorithm>

namespace {
/// A window that has at least this much of its top edge on a screen can be dragged.
constexpr int GraspWidth = 96;
constexpr int GraspHeight = 24;
/// What a maximised window may lack of its screen's free area: its frame, of which a resize event knows
/// nothing.
constexpr int FrameWidth = 24;
constexpr int FrameHeight = 72;
/// Beyond any desktop, and far from the end of an int.
constexpr int CoordinateLimit = 1 << 20;
/// What the frame of a window that was never shown may take; nobody knows it yet.
constexpr int NewFrameWidth = 8;
constexpr int NewFrameHeight = 40;
} // namespace

WindowGeometry::WindowGeometry(QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_burst(new QTimer(this))
    , m_normal(window->pos(), window->size())
    , m_previous(m_normal)
{
    m_burst->setSingleShot(true);
    m_burst->setInterval(0);
    window->installEventFilter(this);
}

void WindowGeometry::restore()
{
    QList<QRect> screens;
    for (const QScreen *screen : QGuiApplication::screens()) {
        if (screen == QGuiApplication::primaryScreen())
            screens.prepend(screen->availableGeometry());
        else
            screens.append(screen->availableGeometry());
    }

    const QSize size = Settings::MainWindowSize.value();
    const QSize wanted =
        size.isEmpty() ? m_window->size() : size.boundedTo({CoordinateLimit, CoordinateLimit});
    const bool hasPosition = Settings::MainWindowPos.exists();
    const QPoint stored = hasPosition ? Settings::MainWindowPos.value() : m_window->pos();
    const QPoint position(std::clamp(stored.x(), -CoordinateLimit, CoordinateLimit),
                          std::clamp(stored.y(), -CoordinateLimit, CoordinateLimit));
    QRect placed = onScreen({position, wanted}, screens);
    if (size.isEmpty() && !screens.isEmpty())
        placed.setSize(
            placed.size().boundedTo(screens.first().size() - QSize(NewFrameWidth, NewFrameHeight)));
    m_window->resize(placed.size());
    if (hasPosition)
        m_window->move(placed.topLeft());
    m_normal = m_previous = {m_window->pos(), m_window->size()};
    if (Settings::MainWindowMaximized.value())
        m_window->setWindowState(m_window->windowState() | Qt::WindowMaximized);
}

void WindowGeometry::save() const
{
    Settings::MainWindowMaximized.setValue(m_window->isMaximized());
    Settings::MainWindowSize.setValue(m_normal.size());
    Settings::MainWindowPos.setValue(m_normal.topLeft());
}

QRect WindowGeometry::onScreen(const QRect &window, const QList<QRect> &screens)
{
    if (screens.isEmpty())
        return window;
    const auto overlap = [&window](const QRect &screen) {
        const QRect common = screen.intersected(window);
        return qint64(common.width()) * common.height();
    };
    const QRect screen =
        *std::max_element(screens.begin(), screens.end(),
                          [&](const QRect &a, const QRect &b) { return overlap(a) < overlap(b); });
    const QRect sized(window.topLeft(), window.size().boundedTo(screen.size()));

    const QRect grasp(sized.topLeft(), QSize(sized.width(), GraspHeight));
    for (const QRect &candidate : screens) {
        const QRect visible = candidate.intersected(grasp);
        if (visible.width() >= GraspWidth && visible.height() >= GraspHeight)
            return sized;
    }
    return {std::clamp(sized.x(), screen.x(), screen.x() + screen.width() - sized.width()),
            std::clamp(sized.y(), screen.y(), screen.y() + screen.height() - sized.height()), sized.width(),
            sized.height()};
}

bool WindowGeometry::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_window)
        return QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Resize:
        if (isNormal() && m_window->size() != m_normal.size()) {
            rememberPrevious();
            m_normal.setSize(m_window->size());
        }
        break;
    case QEvent::Move:
        if (isNormal() && m_window->pos() != m_normal.topLeft()) {
            rememberPrevious();
            m_normal.moveTopLeft(m_window->pos());
        }
        break;
    case QEvent::WindowStateChange: {
        const auto *change = static_cast<QWindowStateChangeEvent *>(event);
        // Most window systems grow the window first and call it maximised afterwards, so that its new
        // geometry was taken for a normal one. Where they do it the other way round there is nothing to take
        // back.
        if (change->oldState() == Qt::WindowNoState && m_window->isMaximized() && fillsScreen())
            m_normal = m_previous;
        break;
    }
    case QEvent::Close:
        save();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool WindowGeometry::isNormal() const
{
    return !(m_window->windowState() & (Qt::WindowMaximized | Qt::WindowMinimized | Qt::WindowFullScreen));
}

bool WindowGeometry::fillsScreen() const
{
    const QWindow *handle = m_window->windowHandle();
    const QScreen *screen = handle ? handle->screen() : QGuiApplication::primaryScreen();
    if (!screen)
        return false;
    const QSize available = screen->availableSize();
    return m_normal.width() >= available.width() - FrameWidth &&
           m_normal.height() >= available.height() - FrameHeight;
}

/// A change of geometry may arrive as a move and a resize; both take back to what was before the first of
/// them.
void WindowGeometry::rememberPrevious()
{
    if (!m_burst->isActive())
        m_previous = m_normal;
    m_burst->start();
}
