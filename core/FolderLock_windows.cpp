// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FolderLock.h"

#include "NativePath_windows.h"

#include <windows.h>

FolderLock::FolderLock(const QString &path, Wait wait)
    : m_path(path)
{
    // Others may look at the file and have it removed; no child process inherits the handle.
    const HANDLE file = CreateFileW(nativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return;
    OVERLAPPED from{};
    const DWORD flags = LOCKFILE_EXCLUSIVE_LOCK | (wait == Yes ? 0 : LOCKFILE_FAIL_IMMEDIATELY);
    if (LockFileEx(file, flags, 0, 1, 0, &from))
        m_file = qintptr(file);
    else
        CloseHandle(file);
}

FolderLock::~FolderLock()
{
    if (isHeld())
        CloseHandle(HANDLE(m_file));
}

void FolderLock::removeFile()
{
    if (!isHeld())
        return;
    // It goes at once, or nobody can open it until it goes with the handle.
    DeleteFileW(nativePath(m_path).c_str());
    CloseHandle(HANDLE(m_file));
    m_file = NoFile;
}
