// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

#include <windows.h>

/// Asks the program of this window whether the session may end, and lets it go on then.
inline void endSession(const QWidget &window)
{
    const auto handle = HWND(window.winId());
    SendMessageW(handle, WM_QUERYENDSESSION, 0, 0);
    SendMessageW(handle, WM_ENDSESSION, FALSE, 0);
}
/// The toolkit tells of it; there are no signals.
inline const QVector<int> SignalsOfTheEnd;
