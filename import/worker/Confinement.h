// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// Takes care that this process harms nobody, and that it does not outlive the editor: what it can do by
/// itself, beside what the editor does from outside (ProcessBounds.h). No limit below 1.
void confine(int memoryLimitMiB);
