// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>
#include <optional>

class CommandLine;

/// Where a verb that changes files writes them: nowhere, as long as nothing is said, into the files
/// themselves, into another one, or into a folder.
class TargetFiles
{
public:
    /// -o, --in-place and --force.
    static void addOptions(CommandLine &line);

    /// Takes what was said. Gives the exit code where that is wrong usage.
    [[nodiscard]] std::optional<int> read(const CommandLine &line, const QStringList &files);

    /// Lets `change` have each file and what it is written to, which may be empty; of several it names each.
    /// Nothing is replaced unasked. Gives the exit code.
    int forEach(const std::function<int(const QString &file, const QString &target)> &change) const;

private:
    QStringList m_files;
    QString m_output;
    bool m_isInPlace = false;
    bool m_isFolder = false;
    bool m_replaces = false;
};
