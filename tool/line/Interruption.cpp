// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Interruption.h"

#include <csignal>

namespace {
std::atomic_bool isInterrupted{false};
static_assert(std::atomic_bool::is_always_lock_free, "a handler may touch nothing else");

extern "C" void onInterruption(int signal)
{
    isInterrupted = true;
    std::signal(signal, SIG_DFL);
}
} // namespace

const std::atomic_bool &interruption()
{
    static const bool isListening = [] {
        std::signal(SIGINT, onInterruption);
        std::signal(SIGTERM, onInterruption);
        return true;
    }();
    (void)isListening;
    return isInterrupted;
}
