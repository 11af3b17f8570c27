// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

#include <memory>

class FolderLock;

/// A folder for temporary files that goes with this object. What is left by a process that was killed goes
/// with a removeAbandoned() of a later one.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();

    bool isValid() const;
    QString path() const { return m_folder.path(); }
    /// Whether there is more in it than what it is for, or so many files that nobody counts them.
    bool holdsMoreThan(qint64 bytes) const;

    /// Removes the folders of this user's processes that have ended.
    static void removeAbandoned();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<FolderLock> m_lock;
};
