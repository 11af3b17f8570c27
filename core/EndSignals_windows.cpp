// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EndSignals.h"

#include <QSocketNotifier>

// The end of a session comes as a message to the windows, which the toolkit takes.
EndSignals::EndSignals(std::function<void(int)> asked)
    : m_asked(std::move(asked))
{}

EndSignals::~EndSignals() = default;

bool EndSignals::areAsking()
{
    return false;
}
