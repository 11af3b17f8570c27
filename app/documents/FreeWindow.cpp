// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FreeWindow.h"

#include <QApplication>

#include <utility>

FreeWindow::FreeWindow()
{
    m_retry.setInterval(50);
    QObject::connect(&m_retry, &QTimer::timeout, &m_retry, [this] { look(); });
}

void FreeWindow::wait(std::function<void()> then)
{
    m_then = std::move(then);
    look();
}

void FreeWindow::forget()
{
    m_retry.stop();
    m_then = {};
}

void FreeWindow::look()
{
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() ||
        QGuiApplication::mouseButtons() != Qt::NoButton)
        return m_retry.start();
    m_retry.stop();
    std::exchange(m_then, {})();
}
