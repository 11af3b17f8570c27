// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "IndexHint.h"

#include <QVector3D>

struct AnimBlock;
struct SkinnedMesh;
struct StaticMesh;

/// What the indexes of records point at, for IndexHint.
namespace IndexTargets {

/// "12: Left Upper Arm", or "12: head" by the bone's own name.
IndexTarget bone(const SkinnedMesh &mesh, int index);
/// As bone(); 255 is no parent where there are not that many bones.
IndexTarget parentBone(const SkinnedMesh &mesh, int index);
/// A vertex by its position.
IndexTarget vertex(const SkinnedMesh &mesh, int index);
IndexTarget vertex(const StaticMesh &mesh, int index);

/// A bone of an animation block, named after the mesh where that has as many bones.
IndexTarget blockBone(const AnimBlock &block, const SkinnedMesh &mesh, int index);
/// As blockBone(); 65535 is no bone.
IndexTarget actionBone(const AnimBlock &block, const SkinnedMesh &mesh, int index);
IndexTarget actionFrame(const AnimBlock &block, int index);
/// The frame that a block loops to; any beyond the last means that it does not.
IndexTarget loopFrame(const AnimBlock &block, int index);
/// What the model's own names or the reference table call an animation; one without a name may still be the
/// mod's own.
IndexTarget animation(const SkinnedMesh &mesh, int id);
/// A track of the block's tables; 65535 stands for the bone's initial position or rotation.
IndexTarget translationTrack(const AnimBlock &block, int index);
IndexTarget rotationTrack(const AnimBlock &block, int index);

/// Where entry `entry` of a surface's list of triangle indexes stands: "Triangle 4, corner 2 of 3".
QString triangleCorner(int entry);

} // namespace IndexTargets
