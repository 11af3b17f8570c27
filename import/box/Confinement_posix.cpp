// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Confinement.h"

#include "FileRules.h"
#include "SystemCallFilter.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLibraryInfo>

#include <sys/resource.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>

#ifdef __linux__
#include <sys/prctl.h>
#endif

#if defined(__SANITIZE_ADDRESS__)
#define KORVANE_SANITIZED
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KORVANE_SANITIZED
#endif
#endif

#ifdef KORVANE_SANITIZED
/// The search for leaks stops a process from outside, which a confined one lets nobody do.
extern "C" int __lsan_is_turned_off() // NOLINT(bugprone-reserved-identifier)
{
    return 1;
}
#endif

namespace {
#ifdef KORVANE_SANITIZED
constexpr bool IsSanitized = true; // which reserves terabytes of address space for itself
#else
constexpr bool IsSanitized = false;
#endif
constexpr rlim_t MostOpenFiles = 256;

#ifdef __linux__
void endWithParent()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
}
#else
void endWithParent() {} // no other kernel offers it
#endif

void limit(decltype(RLIMIT_AS) resource, qint64 most)
{
    rlimit now{};
    // Nobody may have more than what is the most already.
    if (getrlimit(resource, &now) == 0 && now.rlim_max > rlim_t(most)) {
        now.rlim_cur = now.rlim_max = rlim_t(most);
        setrlimit(resource, &now);
    }
}

/// Whether a folder is so large a part of the disk that a model in it says nothing about what lies beside.
bool isCommon(const QString &folder, const QString &ownFolder)
{
    const QString inFolder = folder == QLatin1String("/") ? folder : folder + QLatin1Char('/');
    return (QDir(QDir::homePath()).canonicalPath() + QLatin1Char('/')).startsWith(inFolder) ||
           QDir(ownFolder).canonicalPath().startsWith(inFolder);
}

void allowModel(const QString &modelPath, const QString &ownFolder, FileRules &rules)
{
    const QDir folder = QFileInfo(modelPath).dir();
    rules.allowReading(modelPath);
    if (!isCommon(folder.canonicalPath(), ownFolder)) {
        rules.allowReading(folder.path());
        return;
    }
    // Just what lies there openly.
    const QFileInfoList files = folder.entryInfoList(QDir::Files | QDir::NoSymLinks);
    for (const QFileInfo &file : files)
        rules.allowReading(file.filePath());
    const QFileInfo textures(folder, QStringLiteral("textures"));
    if (!textures.isSymLink())
        rules.allowReading(textures.filePath());
}

/// Of the system's own, which are loaded when something needs them.
void allowLibraries(FileRules &rules)
{
    for (const char *path : {"/usr", "/lib", "/lib64", "/etc/ld.so.cache", "/etc/localtime", "/dev/urandom"})
        rules.allowReading(QString::fromLatin1(path));
    rules.allowReading(QLibraryInfo::location(QLibraryInfo::LibrariesPath));
    const QStringList plugins = QCoreApplication::libraryPaths();
    for (const QString &folder : plugins)
        rules.allowReading(folder);
    if (IsSanitized)
        rules.allowReading(QStringLiteral("/proc/self"));
#ifdef KORVANE_COUNTS
    rules.allowChanging(QStringLiteral(KORVANE_COUNTS));
#endif
}
} // namespace

void closeInherited()
{
#ifdef SYS_close_range
    syscall(SYS_close_range, STDERR_FILENO + 1, ~0U, 0);
#endif
}

QStringList confine(const Confinement &kept)
{
    if (!IsSanitized && kept.memoryMiB > 0)
        limit(RLIMIT_AS, qint64(kept.memoryMiB) << 20);
    if (kept.seconds > 0)
        limit(RLIMIT_CPU, kept.seconds);
    limit(RLIMIT_FSIZE, MostBytesOfFile);
    limit(RLIMIT_NOFILE, MostOpenFiles);
    limit(RLIMIT_CORE, 0);
    // What is too long then fails to be written, which is told.
    std::signal(SIGXFSZ, SIG_IGN);
    endWithParent();

    QStringList lacking;
    FileRules rules;
    allowLibraries(rules);
    if (!kept.modelPath.isEmpty())
        allowModel(kept.modelPath, kept.ownFolder, rules);
    for (const QString &file : kept.files)
        rules.allowReading(file);
    rules.allowChanging(kept.ownFolder);
    if (rules.enforce())
        lacking += QStringLiteral("Landlock");
    if (refuseSystemCalls())
        lacking += QStringLiteral("seccomp");
    return lacking;
}
