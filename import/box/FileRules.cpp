// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FileRules.h"

#include <QFile>

#ifdef __linux__

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

namespace {
// Of the kernel's interface (its documentation, "Landlock: unprivileged access control"); the headers of many
// a system are older than its kernel. The numbers are the same on all processors.
constexpr long CreateRuleset = 444;
constexpr long AddRule = 445;
constexpr long RestrictSelf = 446;
constexpr int RuleOfPath = 1;
constexpr unsigned VersionOnly = 1;

using Rights = unsigned long long;
constexpr Rights WriteFile = 1 << 1;
constexpr Rights ReadFile = 1 << 2;
constexpr Rights ReadFolder = 1 << 3;
constexpr Rights RemoveFolder = 1 << 4;
constexpr Rights RemoveFile = 1 << 5;
constexpr Rights MakeFolder = 1 << 7;
constexpr Rights MakeFile = 1 << 8;
constexpr Rights Truncate = 1 << 14;
constexpr Rights OfFiles = WriteFile | ReadFile | Truncate;
constexpr Rights Reading = ReadFile | ReadFolder;
constexpr Rights Changing =
    Reading | WriteFile | RemoveFolder | RemoveFile | MakeFolder | MakeFile | Truncate;

struct Ruleset
{
    uint64_t files;
    uint64_t net;    ///< since version 4: to bind, to connect
    uint64_t scopes; ///< since version 6: abstract sockets, signals
};

struct [[gnu::packed]] PathRule
{
    uint64_t allowed;
    int32_t file;
};

/// All that a version knows of.
Rights rightsOf(long version)
{
    constexpr int first = 13; // rights of version 1
    return (Rights(1) << (first + (version >= 2) + (version >= 3) + (version >= 5))) - 1;
}
} // namespace

FileRules::FileRules()
{
    const long version = syscall(CreateRuleset, nullptr, 0, VersionOnly);
    if (version < 1)
        return;
    m_handled = rightsOf(version);
    const Ruleset all{m_handled, 3, 3};
    const size_t size = version >= 6   ? sizeof all
                        : version >= 4 ? offsetof(Ruleset, scopes)
                                       : sizeof all.files;
    m_rules = int(syscall(CreateRuleset, &all, size, 0));
}

FileRules::~FileRules()
{
    if (m_rules >= 0)
        close(m_rules);
}

void FileRules::allow(const QString &path, unsigned long long rights)
{
    const int file = open(QFile::encodeName(path).constData(), O_PATH | O_CLOEXEC);
    struct stat facts
    {};
    if (file >= 0 && fstat(file, &facts) == 0) {
        const PathRule rule{rights & m_handled & (S_ISDIR(facts.st_mode) ? ~Rights(0) : OfFiles), file};
        syscall(AddRule, m_rules, RuleOfPath, &rule, 0);
    }
    if (file >= 0)
        close(file);
}

void FileRules::allowReading(const QString &path)
{
    allow(path, Reading);
}

void FileRules::allowChanging(const QString &folder)
{
    allow(folder, Changing);
}

bool FileRules::enforce()
{
    return m_rules < 0 || syscall(RestrictSelf, m_rules, 0) != 0;
}

#else

FileRules::FileRules() = default;
FileRules::~FileRules() = default;

void FileRules::allowReading(const QString &) {}

void FileRules::allowChanging(const QString &) {}

bool FileRules::enforce()
{
    return true;
}

#endif
