// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WriteGuard.h"

#include <QFile>

#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
std::string root; // set once, before there are threads that write
std::atomic<int> refused{0};

bool isBelow(const std::string &path, const std::string &folder)
{
    return path.compare(0, folder.size(), folder) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

/// Whether a path may be written. Sets errno when it may not.
bool mayWrite(const char *path)
{
    if (root.empty() || !path)
        return true;
    std::error_code failed;
    const std::filesystem::path whole = std::filesystem::absolute(path, failed);
    // The last name may be a link that is to be replaced or removed itself: its folder counts.
    const std::string folder = std::filesystem::weakly_canonical(whole.parent_path(), failed).string();
    const std::string target = std::filesystem::weakly_canonical(whole, failed).string();
    const bool isPrivate = isBelow(folder, root) && isBelow(target, root);
    // Devices (the display's, the null device) and what a process says of itself.
    if (isPrivate || target == root || isBelow(target, "/dev") || isBelow(target, "/proc"))
        return true;
    ++refused;
    errno = EACCES;
    return false;
}

bool writes(int flags)
{
    return (flags & O_ACCMODE) != O_RDONLY || (flags & (O_CREAT | O_TRUNC)) != 0;
}

int guardedOpen(int folder, const char *path, int flags, mode_t mode)
{
    if (writes(flags) && !mayWrite(path))
        return -1;
    return int(syscall(SYS_openat, folder, path, flags, mode));
}
} // namespace

void WriteGuard::confineTo(const QString &folder)
{
    root = QFile::encodeName(folder).toStdString();
}

int WriteGuard::refusals()
{
    return refused;
}

// The executable's functions come before the C library's in every library that it loads.
#define MODE_ARGUMENT(flags)                                                                                 \
    mode_t mode = 0;                                                                                         \
    if (((flags) & (O_CREAT | __O_TMPFILE)) != 0) {                                                          \
        va_list arguments;                                                                                   \
        va_start(arguments, flags);                                                                          \
        mode = va_arg(arguments, mode_t);                                                                    \
        va_end(arguments);                                                                                   \
    }

extern "C" {
int open(const char *path, int flags, ...)
{
    MODE_ARGUMENT(flags)
    return guardedOpen(AT_FDCWD, path, flags, mode);
}

int open64(const char *path, int flags, ...)
{
    MODE_ARGUMENT(flags)
    return guardedOpen(AT_FDCWD, path, flags, mode);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    if (!mayWrite(from) || !mayWrite(to))
        return -1;
    return int(syscall(SYS_renameat2, fromFolder, from, toFolder, to, flags));
}

int rename(const char *from, const char *to) noexcept
{
    return renameat2(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return mayWrite(to) ? int(syscall(SYS_linkat, fromFolder, from, toFolder, to, flags)) : -1;
}

int link(const char *from, const char *to) noexcept
{
    return linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}

int symlink(const char *target, const char *path) noexcept
{
    return mayWrite(path) ? int(syscall(SYS_symlinkat, target, AT_FDCWD, path)) : -1;
}

int unlink(const char *path) noexcept
{
    return mayWrite(path) ? int(syscall(SYS_unlinkat, AT_FDCWD, path, 0)) : -1;
}

int mkdir(const char *path, mode_t mode) noexcept
{
    return mayWrite(path) ? int(syscall(SYS_mkdirat, AT_FDCWD, path, mode)) : -1;
}

int rmdir(const char *path) noexcept
{
    return mayWrite(path) ? int(syscall(SYS_unlinkat, AT_FDCWD, path, AT_REMOVEDIR)) : -1;
}

int truncate64(const char *path, off64_t length) noexcept
{
    return mayWrite(path) ? int(syscall(SYS_truncate, path, length)) : -1;
}
} // extern "C"
