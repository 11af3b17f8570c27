// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldRow.h"
#include "IndexHint.h"

/// What the indexes of records point at, for IndexHint.
namespace IndexTargets {

/// A vertex by its position.
IndexTarget vertex(const SkinnedMesh &mesh, int index);
IndexTarget vertex(const StaticMesh &mesh, int index);

/// A bone of an animation block, named after the mesh where that has as many bones.
IndexTarget blockBone(const AnimBlock &block, const SkinnedMesh &mesh, int index);
IndexTarget actionFrame(const AnimBlock &block, int index);
/// The frame that a block loops to; any beyond the last means that it does not.
IndexTarget loopFrame(const AnimBlock &block, int index);
/// What a number stands for that has this name: it may have none and still be the mod's own. `question` is
/// one of Question; without one there is nothing to tell.
IndexTarget named(QLatin1String question, const QString &name, double number);
/// The bone that a number of a record stands for, "12: Left Upper Arm", or "12: head" by its own name. `mesh`
/// names the bones of animations; null where there is none.
IndexTarget boneOf(Naming naming, const SkinnedMesh &model, const RecordIndex &index, const SkinnedMesh *mesh,
                   int number);
IndexTarget boneOf(Naming naming, const AnimFile &model, const RecordIndex &index, const SkinnedMesh *mesh,
                   int number);
/// The same where not all selected records have the number, or mean the same by it.
IndexTarget differing(const IndexTarget &shown);
/// A track of the block's tables; 65535 stands for the bone's initial position or rotation.
IndexTarget translationTrack(const AnimBlock &block, int index);
IndexTarget rotationTrack(const AnimBlock &block, int index);

/// Where entry `entry` of a surface's list of triangle indexes stands: "Triangle 4, corner 2 of 3".
QString triangleCorner(int entry);

} // namespace IndexTargets
