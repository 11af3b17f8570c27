// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <sys/resource.h>

#include <csignal>

/// While this lives a file can grow to `bytes` bytes only, as on a disk that fills up.
class FullDisk
{
public:
    explicit FullDisk(qint64 bytes)
    {
        m_oldAction = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limit{rlim_t(bytes), m_old.rlim_max};
        m_set = setrlimit(RLIMIT_FSIZE, &limit) == 0;
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_old);
        std::signal(SIGXFSZ, m_oldAction);
    }
    bool isSet() const { return m_set; }
    static constexpr bool IsPossible = true;

private:
    rlimit m_old{};
    void (*m_oldAction)(int) = nullptr;
    bool m_set = false;
};
