// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentView.h"

#include <QVector>

#include <algorithm>

/// By kind, then by index.
bool isBefore(const RecordRef &a, const RecordRef &b);
/// Sorts records, which mostly come in their order: then that is all that is looked for.
template <typename Record, typename IsBefore>
void sortInOrder(QVector<Record> &records, IsBefore isBefore)
{
    if (!std::is_sorted(records.cbegin(), records.cend(), isBefore))
        std::sort(records.begin(), records.end(), isBefore);
}
/// Renumbers the records that stand in the list, or below a record of the list, that a change is about.
void shift(QVector<RecordRef> &records, const StructureChange &change);
