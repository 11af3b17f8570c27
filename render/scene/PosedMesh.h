// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Pose.h"

struct StaticMesh;

/// A skinned mesh as the static one that it looks like in a pose, turned by `yaw`: the same surfaces, and the
/// vertices where the palette has them. A vertex whose bone is not in the palette stays where it is stored.
StaticMesh posedMesh(const SkinnedMesh &mesh, const BonePalette &palette, const QQuaternion &yaw);

/// The same as the playback shows it; without an animation that fits it every bone stands in the middle.
StaticMesh posedMesh(const SkinnedMesh &mesh, Playback state);
