// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QVector>

class Document;

/// The records of one kind that a table shows, in the order of the file.
struct RecordGroup
{
    RecordKind kind = RecordKind::None;
    QVector<RecordIndex> records;
    /// How many of the indexes tell them apart.
    int levels = 0;
};

/// The group that a record is or belongs to: the bones of a mesh, the actions of an animation. Of records
/// that an owner has, those of all owners where they are wanted.
RecordGroup groupOf(const Document &document, const RecordRef &record, bool ofAllOwners);

/// "3", or "1.3" where the owner's number is needed, too.
QString numberText(const RecordIndex &index, int levels);
/// The record that such a text names; false when it names none of that kind.
[[nodiscard]] bool readNumber(const QString &text, int levels, RecordIndex &index);
