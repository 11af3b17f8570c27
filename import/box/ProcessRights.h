// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// What a process gives up under Windows, for good: it keeps reading, and writing into one folder. Each
// returns true when the system does not offer it.

/// Takes all privileges from this process, but that of passing through folders, and lowers its integrity,
/// which leaves it to write only to what is labelled for that: `folder`, with what is in it now and later.
[[nodiscard]] bool restrictToken(const std::wstring &folder);

/// Lets this process start no other one, by a job within that which it is in (since Windows 8).
[[nodiscard]] bool refuseProcesses();

/// Keeps this process from loading libraries that one of low integrity may have made, and those that are
/// meant for all programs of a desktop (since Windows 8 and 10).
[[nodiscard]] bool refuseForeignLibraries();
