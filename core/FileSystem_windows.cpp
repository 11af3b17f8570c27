// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileSystem.h"

#include "FileNames.h"
#include "NativePath_windows.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <windows.h>

#include <restartmanager.h>

#include <io.h>
#include <vector>

namespace {
constexpr int Patience = 1000; // milliseconds
constexpr int Pause = 50;
constexpr DWORD BlockBytes = 64 * 1024;

bool isHeldOpen(const std::wstring &path)
{
    // Who lets it be deleted does not let it be replaced, either.
    const HANDLE file =
        CreateFileW(path.c_str(), DELETE, 0, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
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
/// "knight.new.anim" beside "knight.anim".
QString freeName(const QString &path)
{
    const QFileInfo parts(path);
    const QString suffix = parts.suffix().isEmpty() ? QString() : QLatin1Char('.') + parts.suffix();
    QString name;
    for (int number = 1; name.isEmpty() || QFileInfo::exists(name); ++number)
        name = QStringLiteral("%1/%2.new%3%4")
                   .arg(parts.path(), parts.completeBaseName(),
                        number == 1 ? QString() : QString::number(number), suffix);
    return name;
}

/// By the handle: a file that waits to replace another lets nobody open it. Returns whether all was copied.
bool copyBytes(QFileDevice &written, const QString &path)
{
    const auto from = HANDLE(_get_osfhandle(written.handle()));
    QFile to(path);
    if (from == INVALID_HANDLE_VALUE || SetFilePointer(from, 0, nullptr, FILE_BEGIN) != 0 ||
        !to.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        return false;
    std::vector<char> block(BlockBytes);
    DWORD size = 0;
    bool isWhole = true;
    while (isWhole && (isWhole = ReadFile(from, block.data(), BlockBytes, &size, nullptr)) && size > 0)
        isWhole = to.write(block.data(), qint64(size)) == qint64(size);
    if (isWhole && FileSystem::flush(to).isEmpty())
        return true;
    to.remove();
    return false;
}
} // namespace

QString FileSystem::comparable(const QString &path)
{
    // Letter by letter, as the system does: the double s of a sharp s is not the same there.
    QString folded = QDir::cleanPath(QDir::fromNativeSeparators(path));
    for (QChar &letter : folded)
        letter = letter.toUpper();
    return folded;
}

std::optional<FileSystem::FileState> FileSystem::stateOf(const QString &path)
{
    const QFileInfo file(path);
    if (!file.isFile())
        return {};
    return FileState{file.size(), file.lastModified().toMSecsSinceEpoch()};
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

std::optional<FileSystem::KeptBeside> FileSystem::keepBeside(QFileDevice &written, const QString &target)
{
    const std::wstring native = nativePath(target);
    // Many files may be held at once, as by the game: one wait does for all.
    static QElapsedTimer lastWait;
    const bool waits = !lastWait.isValid() || lastWait.elapsed() > 10 * Patience;
    int waited = 0;
    for (; isHeldOpen(native) && waits && waited < Patience; waited += Pause)
        Sleep(Pause);
    if (!isHeldOpen(native))
        return {};
    lastWait.start();
    KeptBeside kept{freeName(target), programsWith(target)};
    return copyBytes(written, kept.path) ? std::optional(kept) : std::nullopt;
}
