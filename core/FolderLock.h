// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// Marks a folder as in use by this process, with a lock on a file in it. The kernel takes the lock back with
/// the process, whatever ended it, so none is ever left over by a crash or taken for that of a process which
/// got the same number.
class FolderLock
{
public:
    enum Wait { No, Yes };

    /// Locks `path`, a file that is made if need be. Without waiting, a file that is locked stays so.
    explicit FolderLock(const QString &path, Wait wait = No);
    ~FolderLock();
    FolderLock(const FolderLock &) = delete;
    FolderLock &operator=(const FolderLock &) = delete;

    bool isHeld() const { return m_file >= 0; }

private:
    int m_file = -1;
};
