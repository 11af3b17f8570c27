// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Rigid.h"

#include <QVector2D>

#include <functional>
#include <vector>

class GltfTextures;
class GltfWriter;
class ImportMessages;
struct SkinnedMesh;
struct StaticMesh;

/// A vertex where it stands in the file.
struct GltfVertex
{
    Rigid::Vector position;
    Rigid::Vector normal;
    int joint = -1; ///< in the skin's list; -1: there is no skin
};

/// Adds the surfaces as one mesh called `name`: a primitive with vertices and a material of its own for each
/// that has triangles. `place` gives a vertex by its number. Triangles become counter-clockwise on their
/// front; those that name vertices which are not there are left out, with a warning. Returns the mesh's
/// index, or -1 when there is no triangle.
int addSurfaces(GltfWriter &writer, const SkinnedMesh &mesh, const QString &name,
                const std::function<GltfVertex(size_t)> &place, GltfTextures &textures,
                ImportMessages &messages);
int addSurfaces(GltfWriter &writer, const StaticMesh &mesh, const QString &name,
                const std::function<GltfVertex(size_t)> &place, GltfTextures &textures,
                ImportMessages &messages);
