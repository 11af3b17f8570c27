// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReferenceIds.h"

ReferenceIds ReferenceIds::load()
{
    ReferenceIds ids;
    for (const ReferenceKind kind : referenceKinds) {
        ReferenceTable table;
        const QString path = referencePath(kind);
        const QString builtIn = builtInReferencePath(kind);
        if (table.read(path) && (path == builtIn || table.read(builtIn)))
            continue;
        for (const ReferenceRow &row : table.rows)
            ids.insert(kind, row.number);
    }
    return ids;
}
