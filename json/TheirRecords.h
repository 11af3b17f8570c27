// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelComparison.h"

/// Lets `mine` have what `theirs` has in a difference that ModelComparison gave for the two: one of its
/// fields, or, with no field named, the record whole: the model's own fields, a record that is missing or
/// that is too many. Names of bones stay. Returns false when it is bound and nothing was done.
template <typename Model>
bool takeTheirs(Model &mine, const Model &theirs, const RecordDifference &difference,
                const QString &field = {});
