// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "RecordSelection.h"

/// What a tree calls a record or group of its document; the root is called by the file's name.
QString recordLabel(const Document &document, const RecordRef &record);
/// What a filter looks at: the label, the record's noun before its number, and the document's text.
QString searchText(const Document &document, const RecordRef &record);
/// A record by the labels that lead to it in its tree, groups without their counts.
QString recordPlace(const RecordSelection &records, RecordRef record);
/// The same for a file that is not open: by numbers alone.
QString recordPlace(RecordRef record);
