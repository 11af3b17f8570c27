// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class QSocketNotifier;

/// Lets the program end in its own way when the system asks it to: on POSIX by SIGTERM, SIGHUP (unless that
/// is ignored, as under nohup) and SIGINT. A program that is not done after 1.8 seconds is ended by the
/// system. Elsewhere the toolkit tells, see QGuiApplication::commitDataRequest(). One at a time; for the GUI
/// thread.
class EndSignals
{
public:
    /// `asked` gets the signal's number, in the event loop, be it that of a dialog; once.
    explicit EndSignals(std::function<void(int)> asked);
    ~EndSignals();
    EndSignals(const EndSignals &) = delete;
    EndSignals &operator=(const EndSignals &) = delete;
    /// Whether the program was asked to end: there is no time for questions.
    static bool areAsking();

private:
    std::function<void(int)> m_asked;
    std::unique_ptr<QSocketNotifier> m_notifier;
};
