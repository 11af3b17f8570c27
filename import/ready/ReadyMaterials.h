// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneReading.h"

#include <vector>

/// A surface's reference to its material.
struct ReadyMaterial
{
    unsigned material; ///< of the scene
    QString path;      ///< as surfaces name it
};

/// One for each material that `used` marks, in their order, under their names as far as a model and a
/// material file can hold these. Their textures become .png files, those that are none in `folder`, and stand
/// in the source's list in the order of the materials; a path of a material without one ends in "_white".
std::vector<ReadyMaterial> readyMaterials(const SceneSource &source, const std::vector<bool> &used,
                                          const QString &folder);
