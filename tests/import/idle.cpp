// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include <chrono>
#include <cstdlib>
#include <thread>

/// Stands for a worker that gives no answer: it ends by itself, with the status in KORVANE_IDLE_STATUS, or
/// hangs when there is none.
int main()
{
    const char *status = std::getenv("KORVANE_IDLE_STATUS");
    if (!status)
        std::this_thread::sleep_for(std::chrono::seconds(100));
    return status ? std::atoi(status) : 0;
}
