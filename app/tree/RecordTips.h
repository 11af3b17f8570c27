// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

/// All fields of a record with their names, values and what these are called, as rich text; empty for what
/// has no fields.
QString recordToolTip(const Document &document, const RecordRef &record);
