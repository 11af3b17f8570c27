// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TitleBars.h"

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <windows.h>

#include <dwmapi.h>

namespace {
// DWMWA_USE_IMMERSIVE_DARK_MODE, and the number that it had before version 2004 of Windows 10.
constexpr DWORD DarkMode = 20;
constexpr DWORD EarlyDarkMode = 19;

class TitleBarPainter : public QObject
{
public:
    explicit TitleBarPainter(QObject *parent)
        : QObject(parent)
    {
        qApp->installEventFilter(this);
    }

    void show(bool dark)
    {
        m_dark = dark;
        for (const QWidget *window : QApplication::topLevelWidgets())
            paint(*window);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show || event->type() == QEvent::WinIdChange) {
            if (const auto *window = qobject_cast<const QWidget *>(watched); window && window->isWindow())
                paint(*window);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void paint(const QWidget &window) const
    {
        if (!window.internalWinId())
            return; // is painted when it is shown
        const auto handle = HWND(window.internalWinId());
        const BOOL dark = m_dark;
        if (FAILED(DwmSetWindowAttribute(handle, DarkMode, &dark, sizeof dark)))
            DwmSetWindowAttribute(handle, EarlyDarkMode, &dark, sizeof dark);
    }

    bool m_dark = false;
};
} // namespace

void showTitleBars(bool dark)
{
    static QPointer<TitleBarPainter> painter;
    if (!painter)
        painter = new TitleBarPainter(qApp);
    painter->show(dark);
}
