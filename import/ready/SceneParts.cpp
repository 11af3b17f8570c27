// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneParts.h"

#include <algorithm>

namespace {
/// Calls look(node, mesh number) for every mesh that every node bears.
template <typename Look>
void eachStandingMesh(const aiScene &scene, const SceneNodes &nodes, Look look)
{
    for (int i = 0; i < nodes.count(); ++i) {
        const aiNode &node = *nodes[i].source;
        for (unsigned m = 0; m < node.mNumMeshes; ++m) {
            if (node.mMeshes[m] < scene.mNumMeshes)
                look(i, node.mMeshes[m]);
        }
    }
}

void bindToSkin(SceneParts::Part &part, const SceneNodes &nodes, const std::vector<Matrix4> &world)
{
    const aiMesh &mesh = *part.mesh;
    part.moverOf.assign(mesh.mNumVertices, 0);
    std::vector<float> greatest(mesh.mNumVertices, 0.0f);
    for (unsigned b = 0; b < mesh.mNumBones; ++b) {
        const aiBone &bone = *mesh.mBones[b];
        const int node = nodes.find(bone.mName);
        if (node == SceneNodes::None)
            continue;
        const auto mover = quint32(part.movers.size());
        part.movers.push_back({node, world[size_t(node)] * exact(bone.mOffsetMatrix), &bone});
        for (unsigned w = 0; w < bone.mNumWeights; ++w) {
            // The game knows one bone a vertex: the one that moves it most. Of equals it is the one further
            // up, so that a seam between two bones does not run in a zigzag.
            const aiVertexWeight &weight = bone.mWeights[w];
            if (weight.mVertexId >= mesh.mNumVertices || !(weight.mWeight > 0.0f))
                continue;
            float &most = greatest[weight.mVertexId];
            quint32 &chosen = part.moverOf[weight.mVertexId];
            if (weight.mWeight > most || (weight.mWeight == most && node < part.movers[chosen].node)) {
                most = weight.mWeight;
                chosen = mover;
            }
        }
    }
}
} // namespace

SceneParts::SceneParts(const aiScene &scene, const SceneNodes &nodes, const std::vector<Matrix4> &world)
{
    std::vector<bool> isThere(scene.mNumMeshes);
    quint32 vertices = 0;
    eachStandingMesh(scene, nodes, [&](int node, unsigned number) {
        const aiMesh &mesh = *scene.mMeshes[number];
        if (mesh.HasBones() && isThere[number])
            return;
        isThere[number] = true;
        Part part{&mesh, number, {{node, world[size_t(node)], nullptr}}, {}, vertices};
        vertices += mesh.mNumVertices;
        if (mesh.HasBones())
            bindToSkin(part, nodes, world);
        m_parts.push_back(std::move(part));
    });
}

std::vector<bool> SceneParts::skinNodes(const aiScene &scene, const SceneNodes &nodes)
{
    std::vector<bool> marks(size_t(nodes.count()));
    for (unsigned m = 0; m < scene.mNumMeshes; ++m) {
        const aiMesh &mesh = *scene.mMeshes[m];
        for (unsigned b = 0; b < mesh.mNumBones; ++b) {
            const int node = nodes.find(mesh.mBones[b]->mName);
            if (node != SceneNodes::None)
                marks[size_t(node)] = true;
        }
    }
    return marks;
}

std::vector<bool> SceneParts::bareNodes(const aiScene &scene, const SceneNodes &nodes)
{
    std::vector<bool> marks(size_t(nodes.count()));
    eachStandingMesh(scene, nodes, [&](int node, unsigned number) {
        if (!scene.mMeshes[number]->HasBones())
            marks[size_t(node)] = true;
    });
    return marks;
}

std::vector<bool> SceneParts::movers(const SceneNodes &nodes) const
{
    std::vector<bool> marks(size_t(nodes.count()));
    for (const Part &part : m_parts) {
        if (part.moverOf.empty())
            marks[size_t(part.movers.front().node)] = true;
        for (const quint32 mover : part.moverOf)
            marks[size_t(part.movers[mover].node)] = true;
    }
    return marks;
}

qint64 SceneParts::unbound() const
{
    qint64 count = 0;
    for (const Part &part : m_parts)
        count += std::count(part.moverOf.begin(), part.moverOf.end(), 0u);
    return count;
}
