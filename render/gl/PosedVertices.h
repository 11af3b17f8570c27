// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MeshSource.h"
#include "Pose.h"

/// Where a pose puts a vertex, as the program on the graphics card takes it: a vertex of a bone without a
/// matrix stays.
QVector3D posedPlace(const GLVertex &vertex, const BonePalette &palette);

/// Brings the vertices that `indexes` names to where the pose of `palette` puts them. `posed` gets the size
/// of `vertices`; only the positions named are written.
void poseVertices(std::vector<GLVertex> &posed, const std::vector<GLVertex> &vertices,
                  const std::vector<quint16> &indexes, const BonePalette &palette);
