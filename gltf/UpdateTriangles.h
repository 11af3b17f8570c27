// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

/// What an update did to the triangles and vertices of a mesh.
struct TriangleChanges
{
    int moved = 0;   ///< vertices that kept their numbers and have other values
    int added = 0;   ///< vertices
    int removed = 0; ///< vertices
    int newTriangles = 0;
    int lostTriangles = 0;
    std::vector<bool> touchedBones; ///< whose vertices are not what they were

    bool any() const { return moved + added + removed + newTriangles + lostTriangles > 0; }
};

/// The triangles of a file, as they shall be in a mesh.
template <typename Vertex>
struct FileTriangles
{
    std::vector<Vertex> vertices;
    std::vector<std::vector<quint32>> surfaces; ///< of each the corners, three a triangle, clockwise in front
};

/// Gives a mesh the triangles of a file. Triangles that are those of the mesh keep their numbers, their
/// corners and the bits of their vertices; one whose corners only moved keeps its numbers. What is left over
/// on one side is taken out, or put behind. Triangles that no file can carry (a corner named twice or
/// nowhere) stay. `size` is the model's: places within a small part of it are the same. Returns true when the
/// mesh would have more vertices than the format can number; it is to be thrown away then.
template <typename Mesh, typename Vertex>
[[nodiscard]] bool updateTriangles(Mesh &mesh, const FileTriangles<Vertex> &file, double size,
                                   TriangleChanges &changes);
