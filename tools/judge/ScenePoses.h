// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PosesFile.h"

enum class SceneVertices {
    Whole,   ///< moved by all their bones
    OneBone, ///< moved by the strongest of their bones alone, which cannot stretch, as in the game
    Joints   ///< the origins of the nodes
};

/// Poses the scene that the library reads of a file, by the textbook: every node has a position, a rotation
/// and a scale, of its channel at the time (positions and scales in a straight line from key to key,
/// rotations on the great circle) or of its own matrix; a vertex is the sum of its weights times bone times
/// offset matrix, and a mesh without bones goes with its node. Double precision; z is up. It knows nothing of
/// the importer.
///
/// The clips are sampled with the rates and frame counts of those of `plan`, taken by their order; without
/// one 30 times a second. Returns why it failed.
QString writeScenePoses(const QString &source, const QString &target, const std::vector<PosesClip> &plan,
                        SceneVertices vertices);
