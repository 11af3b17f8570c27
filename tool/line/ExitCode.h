// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

/// How a run ends.
enum ExitCode : int {
    Fine = 0,
    Failed = 1,        ///< something could not be read or done, or the check found an error
    WrongUsage = 2,    ///< nothing was done
    NoScreen = 3,      ///< nothing could be drawn
    Interrupted = 130, ///< as shells say it of Ctrl+C
};
