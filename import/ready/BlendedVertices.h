// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneParts.h"

/// All vertices of the parts of a scene with all that moves them there, each by its weight, to be asked where
/// the source has them.
class BlendedVertices
{
public:
    /// Where movers take what they move from the space of its mesh to.
    using Movers = std::vector<Matrix4>;

    explicit BlendedVertices(const SceneParts &parts);

    quint32 count() const { return quint32(m_vertices.size()); }
    /// Marks the nodes that move the vertex.
    void markNodes(quint32 vertex, std::vector<bool> &marks) const;

    /// When the nodes stand in `world`.
    Movers movers(const std::vector<Matrix4> &world) const;
    Vector3 place(const Movers &movers, quint32 vertex) const;
    /// What becomes of the surroundings of a vertex: how they are turned and stretched.
    Matrix3 surroundings(const Movers &movers, quint32 vertex) const;
    /// What undoes that. All zero where it flattens.
    Matrix3 toRest(const Movers &movers, quint32 vertex) const;

private:
    struct Mover
    {
        int node;
        Matrix4 offset; ///< takes the mesh into the node's space
    };
    struct Share
    {
        quint32 mover;
        double weight;
    };
    struct Vertex
    {
        Vector3 inMesh;
        quint32 firstShare; ///< to the next vertex's
    };

    quint32 sharesEnd(quint32 vertex) const
    {
        return vertex + 1 < count() ? m_vertices[vertex + 1].firstShare : quint32(m_shares.size());
    }

    std::vector<Mover> m_movers;
    std::vector<Vertex> m_vertices;
    std::vector<Share> m_shares; ///< by vertex
};
