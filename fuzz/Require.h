// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

namespace Fuzz {
inline void require(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "broken: %s\n", what);
    std::abort();
}
} // namespace Fuzz
