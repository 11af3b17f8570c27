// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

#include <csignal>

/// Ends the session of a program with this window, as a terminal that closes.
inline void endSession(const QWidget &)
{
    raise(SIGHUP);
    raise(SIGTERM);
}
/// What is handed on of it.
inline const QVector<int> SignalsOfTheEnd{SIGHUP};
