// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// One thing that is wrong with a file.
struct Fault
{
    QString severity; ///< "error", "warning" or "note"
    QString rule;     ///< its name for programs
    QString text;
};

/// Reads a file and gives what is wrong with it.
std::vector<Fault> faultsOf(const QString &file);
