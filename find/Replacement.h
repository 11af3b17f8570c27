// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordWords.h"

/// Other values for a field of some records, all of which fit.
struct Replacement
{
    QVector<FieldChange> changes;
    int differing = 0;  ///< records whose value is another one then
    QString reason;     ///< why one cannot be; empty when all can
    RecordRef refusing; ///< the record that it is about; none where it is about none
};

/// What becomes of records when the field that `word` stands for gets `text`: a value, a name or an
/// expression, where i is a record's place among those that are replaced, from `place` on. `mesh`, which may
/// be null, has the bones.
Replacement replacementOf(const RecordValues &values, const std::vector<RecordRef> &records,
                          const QString &word, const QString &text, int place, const SkinnedMesh *mesh);
