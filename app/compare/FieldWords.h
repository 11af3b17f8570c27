// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelComparison.h"

#include <QPair>

/// What differs, in the words of the property pages.
namespace FieldWords {
/// What a field of a record is called, whose key in JSON is `key`.
QString title(RecordKind kind, const QString &key);
/// Both values as the pages show them; as they stand where that would be one text for both.
QPair<QString, QString> values(RecordKind kind, const FieldDifference &difference);
} // namespace FieldWords
