// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QRect>

class QTimer;
class QWidget;

/// Remembers where a window stood and how large it was while it was neither maximised, minimised nor full
/// screen, so that a window closed maximised comes back with its normal geometry. Watches the window's
/// events; saves on close.
class WindowGeometry : public QObject
{
    Q_OBJECT

public:
    /// Starts with the window's designed size. The window owns the watcher.
    explicit WindowGeometry(QWidget *window);

    /// Applies what is stored, brought back onto a screen if need be. The window need not be visible.
    void restore();
    void save() const;

    QSize normalSize() const { return m_normal.size(); }
    QPoint normalPosition() const { return m_normal.topLeft(); }

    /// The nearest place for a window of that position and size at which its title bar can be grasped, no
    /// larger than its screen. `screens` are the areas free for windows, the primary one first.
    static QRect onScreen(const QRect &window, const QList<QRect> &screens);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isNormal() const;
    bool fillsScreen() const;
    void rememberPrevious();

    QWidget *m_window;
    QTimer *m_burst; ///< runs while the events of one change of geometry arrive
    QRect m_normal;  ///< position with the window's frame, size without, as QWidget takes them
    QRect m_previous;
};
