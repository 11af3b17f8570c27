// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentView.h"
#include "Finding.h"

class QUndoStack;

/// Repairs what a rule has found at these places, which validate() or repairablePlaces() has called
/// repairable in the model as it stands, as one undo step. Returns how many places were repaired; with none
/// there is no step.
int repair(Rule rule, std::vector<RecordRef> places, EditTarget<SkinnedMesh> target, QUndoStack &stack);
int repair(Rule rule, const std::vector<RecordRef> &places, EditTarget<AnimFile> target, QUndoStack &stack);
int repair(Rule rule, const std::vector<RecordRef> &places, EditTarget<StaticMesh> target, QUndoStack &stack);
