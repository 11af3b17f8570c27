// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector3D>

#include <vector>

class GLMesh;
struct SkinnedMesh;

/// Records of a model by their indexes; those that it does not have are passed over.
struct ModelSelection
{
    std::vector<int> surfaces;
    std::vector<int> vertices;
    std::vector<int> bones;
    std::vector<int> hotPoints;
};

/// Where the corners of the model's triangles stand in its own space, as it is posed: each vertex once. The
/// joints of a model without triangles.
std::vector<QVector3D> cornersOf(const GLMesh &model);

/// Where what is selected stands: corners of surfaces, vertices, the joint of a bone with the vertices bound
/// to it, hot points (of `mesh`, which may be null).
std::vector<QVector3D> placesOf(const GLMesh &model, const SkinnedMesh *mesh,
                                const ModelSelection &selection);
