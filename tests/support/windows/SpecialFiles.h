// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>

#include <windows.h>

namespace SpecialFiles {
/// What the system says of a file whose folder is not there.
inline QString noFolder()
{
    return qt_error_string(ERROR_PATH_NOT_FOUND);
}

/// Lines as a file that is written as text has them.
inline QByteArray asText(QByteArray lines)
{
    return lines.replace('\n', "\r\n");
}

/// Whether a file that a program holds open can be replaced.
constexpr bool HeldOnesAreReplaced = false;

/// The path of a device: pipes have no place among the files here.
inline QString pipe(const QString &)
{
    return QStringLiteral("NUL");
}

/// Makes a symbolic link, where a user may: not here.
inline bool link(const QString &, const QString &)
{
    return false;
}

/// Calls `look` while a folder has a file whose name is no text: all names are.
template <typename Look>
void withNameWithoutText(const QString &, const Look &)
{}

/// Says of a folder that it was changed `seconds` ago.
inline bool makeOld(const QString &folder, int seconds)
{
    const std::wstring path = QDir::toNativeSeparators(folder).toStdWString();
    const HANDLE handle = CreateFileW(path.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                      nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    ULARGE_INTEGER ticks{{time.dwLowDateTime, time.dwHighDateTime}};
    ticks.QuadPart -= ULONGLONG(seconds) * 10000000;
    time = {ticks.LowPart, ticks.HighPart};
    const bool isSet = SetFileTime(handle, &time, &time, &time);
    CloseHandle(handle);
    return isSet;
}
} // namespace SpecialFiles
