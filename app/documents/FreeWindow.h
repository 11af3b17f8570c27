// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>

#include <functional>

/// What was read in another thread takes the place of what is open as soon as nothing is open, or held, that
/// may be about the latter: a dialog, a menu, a drag.
class FreeWindow
{
public:
    FreeWindow();

    /// Calls `then`, soon or when the window is free, unless forget() or another call comes first.
    void wait(std::function<void()> then);
    void forget();
    bool isWaited() const { return m_retry.isActive(); }

private:
    void look();

    std::function<void()> m_then;
    bool m_isFree = false; ///< at the last look
    QTimer m_retry;
};
