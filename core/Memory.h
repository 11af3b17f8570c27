// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>

#include <new>

/// Does work that may take more memory than there is. Gives the reason why it was not done, for the user;
/// empty when it was.
template <typename Work>
[[nodiscard]] QString withinMemory(const Work &work)
{
    try {
        work();
        return {};
    } catch (const std::bad_alloc &) {
        return QCoreApplication::translate("Memory", "There is not enough memory.");
    }
}
