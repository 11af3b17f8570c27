// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Condition.h"

#include <atomic>

/// The records of a model that meet a condition, by kind and then in the order of the file. `root` is the
/// model's own kind. Ends early, without a result, when `cancelled` says so.
std::vector<RecordRef> findRecords(const Condition &condition, const RecordValues &values, RecordKind root,
                                   const std::atomic_bool *cancelled = nullptr);

/// "block 3 action 5": a record by the words that the command line names it by.
QString recordPath(const RecordRef &record);
