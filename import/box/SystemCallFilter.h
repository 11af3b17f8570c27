// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// Has the kernel refuse this thread, and what it starts, what the reading of files has no need of: the
/// network, other programs and processes, files' modes and owners, the settings of the system. By Linux'
/// seccomp; it cannot be taken back. Returns true when the system does not offer it.
[[nodiscard]] bool refuseSystemCalls();
