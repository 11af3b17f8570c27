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

    bool isHeld() const { return m_file != NoFile; }
    /// Gives the lock up and takes its file away, so that the folder can go. Nobody else gets the lock of
    /// this file.
    void removeFile();

private:
    static constexpr qintptr NoFile = -1;
    qintptr m_file = NoFile; ///< a descriptor, or a handle
    QString m_path;
};
