// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelJson.h"
#include "Records.h"

#include <limits>

/// A field that two models have with other values.
struct FieldDifference
{
    QString field; ///< its key in JSON
    QString mine;
    QString theirs; ///< both as JSON, or what there is to say of many numbers
    /// It goes with its whole record only: its length is other records' length, too.
    bool isBound = false;
};

/// A record that differs between two models.
struct RecordDifference
{
    enum class State { Changed, OnlyMine, OnlyTheirs };

    State state = State::Changed;
    QString name; ///< such as "hot point 3", "block 2 (id 1000)"; the kind for the model itself
    RecordRef mine;
    RecordRef theirs; ///< where it is in either model; of no kind where it is not, with the place for it
    std::vector<FieldDifference> fields;
    /// How far apart the keys of two tracks are at most: in model units, or degrees for rotations.
    double distance = 0.0;
    /// Like a field that is bound.
    bool isBound = false;
    std::vector<RecordDifference> children; ///< of a model and a block
};

namespace ModelComparison {
/// What differs between two models of one kind, in the order of the lists: blocks are matched by their id
/// and, where several have one, by their order among these; everything else by number. The first entry is the
/// model itself when fields of its own differ. Empty when all fields have the same bits.
///
/// Behind the first `mostTold` of a list's records that differ, the others are only named by where they are:
/// they have no name, no texts, and not all of their fields and children.
template <typename Model>
std::vector<RecordDifference> compare(const Model &mine, const Model &theirs,
                                      size_t mostTold = std::numeric_limits<size_t>::max());
} // namespace ModelComparison
