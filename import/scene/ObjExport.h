// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportMessages.h"
#include "StaticMesh.h"

#include <QStringList>

#include <vector>

/// Writes `mesh` to `objPath` as a Wavefront OBJ file, with an .mtl file beside it: one material for each of
/// the distinct `textures` (file paths, of which the file names are written) and one for all surfaces
/// without. `textureOfSurface` holds an index into `textures` for each surface, -1 for none. Triangles whose
/// indexes point at no vertex are left out.
void exportObj(const StaticMesh &mesh, const QStringList &textures,
               const std::vector<qint32> &textureOfSurface, const QString &objPath, ImportMessages &messages);
