// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentView.h"

#include <QVector>

/// By kind, then by index.
bool isBefore(const RecordRef &a, const RecordRef &b);
/// Renumbers the records that stand in the list, or below a record of the list, that a change is about.
void shift(QVector<RecordRef> &records, const StructureChange &change);
