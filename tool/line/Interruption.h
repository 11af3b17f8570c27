// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

/// From the first call on, Ctrl+C and the wish of the system that the program ends set this instead of ending
/// it, so that what is being written becomes whole; the second time they end it.
const std::atomic_bool &interruption();
