// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneNodes.h"

/// The meshes of a scene where they stand: each as often as nodes bear it. One with a skin stands where its
/// bones are, whichever nodes bear it, so it is there once.
class SceneParts
{
public:
    /// What moves some vertices of a part, and how it puts them into the model's space at rest.
    struct Mover
    {
        int node;
        Matrix4 place;
        const aiBone *bone; ///< null for the node that bears the mesh
    };

    struct Part
    {
        const aiMesh *mesh;
        unsigned number;              ///< of the mesh in the scene
        std::vector<Mover> movers;    ///< the node that bears the mesh, then the bones of its skin
        std::vector<quint32> moverOf; ///< by vertex; empty without a skin
        quint32 first;                ///< of its vertices, by their number among those of all parts

        /// What moves a vertex most.
        const Mover &mover(unsigned vertex) const { return movers[moverOf.empty() ? 0 : moverOf[vertex]]; }
    };

    /// `world` holds where the nodes stand at rest.
    SceneParts(const aiScene &scene, const SceneNodes &nodes, const std::vector<Matrix4> &world);

    const std::vector<Part> &parts() const { return m_parts; }

    /// Marks the nodes that skins name.
    static std::vector<bool> skinNodes(const aiScene &scene, const SceneNodes &nodes);
    /// Marks the nodes that bear a mesh without a skin.
    static std::vector<bool> bareNodes(const aiScene &scene, const SceneNodes &nodes);
    /// Marks the nodes that move vertices.
    std::vector<bool> movers(const SceneNodes &nodes) const;
    /// Calls look(node, place) for every vertex: the node that moves it, and where it is at rest.
    template <typename Look>
    void eachRestPlace(Look look) const
    {
        for (const Part &part : m_parts) {
            for (unsigned v = 0; v < part.mesh->mNumVertices; ++v) {
                const Mover &mover = part.mover(v);
                look(mover.node, mover.place * exact(part.mesh->mVertices[v]));
            }
        }
    }
    /// Calls look(vertex, number of a mover, weight) for whatever moves vertices; the weights of each vertex
    /// add up to 1.
    template <typename Look>
    static void eachWeight(const Part &part, Look look)
    {
        const unsigned vertices = part.mesh->mNumVertices;
        std::vector<double> sums(vertices);
        const auto each = [&part, vertices](auto see) {
            for (size_t m = 1; m < part.movers.size(); ++m) {
                const aiBone &bone = *part.movers[m].bone;
                for (unsigned w = 0; w < bone.mNumWeights; ++w) {
                    const aiVertexWeight &weight = bone.mWeights[w];
                    if (weight.mVertexId < vertices && weight.mWeight > 0.0f)
                        see(weight.mVertexId, m, double(weight.mWeight));
                }
            }
        };
        each([&sums](unsigned v, size_t, double weight) { sums[v] += weight; });
        each([&](unsigned v, size_t mover, double weight) { look(v, mover, weight / sums[v]); });
        for (unsigned v = 0; v < vertices; ++v) {
            if (!(sums[v] > 0.0))
                look(v, size_t(0), 1.0);
        }
    }

    /// How many vertices of skins no bone moves.
    qint64 unbound() const;

private:
    std::vector<Part> m_parts;
};
