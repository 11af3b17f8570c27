// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FreeWindow.h"

#include <QApplication>

#include <utility>

FreeWindow::FreeWindow()
{
    QObject::connect(&m_retry, &QTimer::timeout, &m_retry, [this] { look(); });
}

void FreeWindow::wait(std::function<void()> then)
{
    m_then = std::move(then);
    m_isFree = false;
    look();
}

void FreeWindow::forget()
{
    m_retry.stop();
    m_then = {};
}

void FreeWindow::look()
{
    constexpr int RetryMs = 50;
    const bool isBusy = QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
                        QGuiApplication::mouseButtons() != Qt::NoButton;
    const bool wasFree = std::exchange(m_isFree, !isBusy);
    // A dialog that is gone may not have returned yet to who asked: it has by the next turn of the event
    // loop.
    if (isBusy || !wasFree)
        return m_retry.start(isBusy ? RetryMs : 0);
    m_retry.stop();
    std::exchange(m_then, {})();
}
