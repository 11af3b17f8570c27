// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

class CommandLine;
struct ModelNames;
class QString;

/// The options of `import` that bring a file back over the model that it was exported from.
void addUpdateOptions(CommandLine &line);
/// The file of the names of a mesh that is written there; empty when there are none, neither of this one nor
/// of one that was there.
QString namesFileFor(const ModelNames &names, const QString &mesh);
/// Writes the file of a model's names and says which. Returns true on failure.
[[nodiscard]] bool writeNames(const ModelNames &names, const QString &path);
/// Refuses what of the other options means nothing with them, and them without `--update`; gives the exit
/// code then.
[[nodiscard]] std::optional<int> checkUpdateOptions(const CommandLine &line);
/// Does that, for the operand of a line that has `--update`. Returns the exit code.
int updateFromFile(const CommandLine &line, int timeLimit);
