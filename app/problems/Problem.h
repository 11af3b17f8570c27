// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentKind.h"
#include "ModRule.h"
#include "Records.h"

#include <optional>

/// One thing that is wrong, with an open document or with a file of the mod.
struct Problem
{
    RuleWords rule{};
    QString text{};
    RecordRef place{};    ///< of no kind where it is about the whole file
    qint64 notListed = 0; ///< in a line that closes a list: how many more there are
    bool isRepairable = false;
    std::optional<DocumentType> document{}; ///< that it is about, if that is open
    Rule documentRule{};                    ///< then
    QString path{};                         ///< of the file; empty where it has none
    QString name{};                         ///< below the mod's folder; empty outside of it
    bool isSilenced = false;
    QString why{}; ///< where the mod says that
};
