// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileSystem.h"

#include "FileNames.h"
#include "NativePath_windows.h"

#include <QFileDevice>
#include <QFileInfo>

#include <windows.h>

#include <restartmanager.h>

#include <io.h>
#include <vector>

namespace {
constexpr int Patience = 1000; // milliseconds
constexpr int Pause = 50;

bool isHeldOpen(const std::wstring &path)
{
    const HANDLE file =
        CreateFileW(path.c_str(), DELETE, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE)
        return GetLastError() == ERROR_SHARING_VIOLATION;
    CloseHandle(file);
    return false;
}

/// By the titles that the system has for them.
QStringList programsWith(const QString &path)
{
    DWORD session = 0;
    wchar_t key[CCH_RM_SESSION_KEY + 1] = {};
    if (RmStartSession(&session, 0, key) != ERROR_SUCCESS)
        return {};
    const std::wstring native = QDir::toNativeSeparators(path).toStdWString();
    const wchar_t *files[] = {native.c_str()};
    QStringList names;
    UINT needed = 0;
    UINT count = 16;
    std::vector<RM_PROCESS_INFO> programs(count);
    DWORD reasons = 0;
    if (RmRegisterResources(session, 1, files, 0, nullptr, 0, nullptr) == ERROR_SUCCESS &&
        RmGetList(session, &needed, &count, programs.data(), &reasons) == ERROR_SUCCESS) {
        for (UINT i = 0; i < count; ++i)
            names += QString::fromWCharArray(programs[i].strAppName);
    }
    RmEndSession(session);
    names.removeAll({});
    names.removeDuplicates();
    return names;
}
} // namespace

QString FileSystem::comparable(const QString &path)
{
    return QDir::cleanPath(QDir::fromNativeSeparators(path)).toCaseFolded();
}

bool FileSystem::isOwn(const QFileInfo &)
{
    return true; // every user has a folder of his own for what is temporary
}

bool FileSystem::isDevice(const QFileInfo &file)
{
    return FileNames::isDevice(file.fileName());
}

QString FileSystem::flush(QFileDevice &file)
{
    const auto handle = HANDLE(_get_osfhandle(file.handle()));
    if (handle == INVALID_HANDLE_VALUE || FlushFileBuffers(handle))
        return {};
    const DWORD error = GetLastError();
    const bool isLoss = error == ERROR_DISK_FULL || error == ERROR_HANDLE_DISK_FULL ||
                        error == ERROR_WRITE_FAULT || error == ERROR_IO_DEVICE ||
                        error == ERROR_FILE_TOO_LARGE;
    return isLoss ? qt_error_string(int(error)) : QString();
}

std::optional<QStringList> FileSystem::holders(const QString &path)
{
    const std::wstring native = nativePath(path);
    for (int waited = 0; isHeldOpen(native); waited += Pause) {
        if (waited >= Patience)
            return programsWith(path);
        Sleep(Pause);
    }
    return {};
}
