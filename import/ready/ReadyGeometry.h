// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReadySkeleton.h"
#include "SceneParts.h"
#include "SceneReading.h"

struct SkinnedMesh;
struct StaticMesh;

/// Marks the materials that triangles have. Complains of what a mesh refers to that is not there.
std::vector<bool> usedMaterials(const SceneSource &source, const SceneParts &parts);

/// Makes vertices and triangles of the parts, in the spaces of their bones as those stand in `rest`, and the
/// boxes of bones and mesh. `surfaceOf` names the surface of each used material. Returns true, after an error
/// line, when there are more vertices than the file can hold.
[[nodiscard]] bool addGeometry(const SceneSource &source, const SceneParts &parts,
                               const std::vector<size_t> &surfaceOf, const ReadySkeleton &skeleton,
                               const SkeletonPose &rest, SkinnedMesh &mesh);

/// The same for a rigid model. Vertices that several bones move are where these have them at rest.
[[nodiscard]] bool addGeometry(const SceneSource &source, const SceneParts &parts,
                               const std::vector<size_t> &surfaceOf, StaticMesh &mesh);
