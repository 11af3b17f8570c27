// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReferenceIds.h"

#include "ReferenceTables.h"

ReferenceIds ReferenceIds::load()
{
    ReferenceIds ids;
    for (const ReferenceKind kind : referenceKinds) {
        for (const ReferenceRow &row : ReferenceTables::shared().table(kind).rows) {
            // An id of another look, such as 007, names no number.
            if (row.id == QString::number(row.number))
                ids.insert(kind, row.number);
        }
    }
    return ids;
}
