// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Confinement.h"

#include <sys/resource.h>

#ifdef __linux__
#include <csignal>
#include <sys/prctl.h>
#endif

namespace {
/// Sanitizers reserve terabytes of address space for themselves.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool HasMemoryLimit = false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
constexpr bool HasMemoryLimit = false;
#else
constexpr bool HasMemoryLimit = true;
#endif
#else
constexpr bool HasMemoryLimit = true;
#endif

#ifdef __linux__
void endWithParent()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
}
#else
void endWithParent() {} // no other kernel offers it
#endif
} // namespace

void confine(int memoryLimitMiB)
{
    const rlim_t limit = rlim_t(memoryLimitMiB) * 1024 * 1024;
    const rlimit memory{limit, limit};
    if (HasMemoryLimit && memoryLimitMiB > 0)
        setrlimit(RLIMIT_AS, &memory);
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    endWithParent();
}
