// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"
#include "ImportSteps.h"

/// The options of an import that arrives ready for the game.
namespace ReadyOptions {
void add(CommandLine &line);
/// Puts what they say into `choices`. Gives the exit code when that cannot be, which standard error then
/// tells.
[[nodiscard]] std::optional<int> read(const CommandLine &line, ImportChoices &choices);
/// The same for what the file has to be looked at for, in `seconds` at most.
[[nodiscard]] std::optional<int> lookUp(const CommandLine &line, int seconds, ImportChoices &choices);
} // namespace ReadyOptions
