// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// Where files that models and materials name are looked for: below the game's folder or archive, then below
/// the mod's. The game's wins over the mod's.
class FileSearch
{
public:
    /// An empty folder is not searched.
    FileSearch(const QString &gamePath, const QString &outputDir);

    /// Where a file named relative to the folders may be, one path for each of them: in the case in which it
    /// stands there, and as it is named where nothing does.
    QStringList candidates(const QString &relativePath) const;
    /// The first of these that is a file; empty when none is.
    QString find(const QString &relativePath) const;
    /// How folder or archive spell what was found, where that is in another case than it is named; else
    /// empty. The game does not mind, other systems do.
    QString otherCase(const QString &relativePath) const;

private:
    QStringList m_folders;
};
