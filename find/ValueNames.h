// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordWords.h"

/// The numbers behind names: of bones, of what the reference tables list, of what a field chooses from.
/// Belongs to the main thread.
namespace ValueNames {

/// Whether what a word stands for has names at all.
bool hasNames(const WordMeaning &meaning);
/// All names that such a value may have, for completion; `mesh` has the bones and may be null.
QStringList namesOf(const WordMeaning &meaning, const SkinnedMesh *mesh);
/// The numbers that are called so, ascending: in any case, and where none is called just so, or where a part
/// is wanted, those in whose name all of its words are.
std::vector<double> numbersCalled(const WordMeaning &meaning, const QString &name, bool isPart,
                                  const SkinnedMesh *mesh);
/// The bones that are called or numbered so, and all that hang from them.
std::vector<double> bonesBelow(const QString &name, const SkinnedMesh *mesh);

} // namespace ValueNames
