// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MeshSource.h"

/// The meshes that every viewport has beside its model. Front faces are clockwise, as the game's are.
namespace FixedMeshes {
/// How often the ground's texture repeats across it.
constexpr float GroundTiling = 25.0f;

/// Stands in for a model until one is opened: no vertices, a red texture.
MeshSource placeholder();
/// 5000 by 5000 units of model x-y plane around the origin, facing up.
MeshSource ground();
/// A red square from -1 to 1 in the x-y plane, facing +z.
MeshSource redQuad();
/// Three arrows of length 24 along x, y and z in red, green and blue; one surface each.
MeshSource axisGizmo();
/// The green wire sphere; empty when its resource cannot be read.
MeshSource wireSphere();
} // namespace FixedMeshes
