// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReferenceTable.h"

#include <QSet>

/// The numbers that the reference tables have a name for.
class ReferenceIds
{
public:
    /// Those of the tables that the program has; see ReferenceTables.
    static ReferenceIds load();

    void insert(ReferenceKind kind, int id) { m_ids[size_t(kind)].insert(id); }
    /// Whether the table has such a row. A table without any is not there: it knows every number.
    bool knows(ReferenceKind kind, int id) const
    {
        const QSet<int> &ids = m_ids[size_t(kind)];
        return ids.isEmpty() || ids.contains(id);
    }

private:
    std::array<QSet<int>, referenceKinds.size()> m_ids;
};
