// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SkinnedMesh.h"
#include "StaticMesh.h"

/// Which vertices of a file are those of a mesh.
struct VertexGroups
{
    static constexpr quint32 None = 0xFFFFFFFF;

    std::vector<quint32> ofMesh;    ///< of each vertex of the mesh the first one alike
    std::vector<quint32> ofFile;    ///< of each vertex of the file the first one of the mesh alike, or None
    std::vector<quint32> oneOfFile; ///< of each vertex of the file the first one that is no other
};

/// How far two places may be apart to be one, in a model of this size.
float sameDistance(double size);
/// The bone that a vertex follows; 0 in a static mesh.
inline int boneOf(const SkinnedMeshVertex &vertex)
{
    return vertex.nodeIndex;
}
inline int boneOf(const StaticMeshVertex &)
{
    return 0;
}
bool isSameUV(const QVector2D &a, const QVector2D &b);
/// A normal without a direction, for which an export has to make one up, goes with any.
bool isSameNormal(const QVector3D &a, const QVector3D &b);

/// `nearby`: see sameDistance(). Takes linear time for anything that is no malice.
template <typename Vertex>
VertexGroups groupVertices(const std::vector<Vertex> &mesh, const std::vector<Vertex> &file, float nearby);
