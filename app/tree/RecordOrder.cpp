// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RecordOrder.h"

#include "RecordTable.h"

#include <algorithm>
#include <tuple>

namespace {
bool standsBelow(RecordKind kind, RecordKind owner)
{
    while (kind != owner && kind != RecordKind::None)
        kind = recordRow(kind)->parent;
    return kind == owner;
}
} // namespace

bool isBefore(const RecordRef &a, const RecordRef &b)
{
    return std::tie(a.kind, a.index) < std::tie(b.kind, b.index);
}

void shift(QVector<RecordRef> &records, const StructureChange &change)
{
    const auto component = size_t(recordRow(change.record.kind)->component);
    const RecordIndex &at = change.record.index;
    const auto isInList = [&](const RecordRef &record) {
        return standsBelow(record.kind, change.record.kind) &&
               std::equal(at.begin(), at.begin() + component, record.index.begin()) &&
               record.index[component] >= at[component];
    };
    const auto isTakenOut = [&](const RecordRef &record) {
        return change.added < 0 && isInList(record) && record.index[component] == at[component];
    };
    records.erase(std::remove_if(records.begin(), records.end(), isTakenOut), records.end());
    for (RecordRef &record : records) {
        if (isInList(record))
            record.index[component] += change.added;
    }
}
