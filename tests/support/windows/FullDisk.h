// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

/// Windows knows no limit of how far a file may grow.
class FullDisk
{
public:
    explicit FullDisk(qint64) {}
    bool isSet() const { return false; }
    static constexpr bool IsPossible = false;
};
