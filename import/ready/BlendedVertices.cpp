// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BlendedVertices.h"

BlendedVertices::BlendedVertices(const SceneParts &parts)
{
    for (const SceneParts::Part &part : parts.parts()) {
        const auto firstMover = quint32(m_movers.size());
        for (const SceneParts::Mover &mover : part.movers)
            m_movers.push_back({mover.node, mover.bone ? exact(mover.bone->mOffsetMatrix) : Matrix4()});
        std::vector<std::vector<Share>> shares(part.mesh->mNumVertices);
        SceneParts::eachWeight(part, [&](unsigned v, size_t mover, double weight) {
            shares[v].push_back({firstMover + quint32(mover), weight});
        });
        for (unsigned v = 0; v < part.mesh->mNumVertices; ++v) {
            m_vertices.push_back({exact(part.mesh->mVertices[v]), quint32(m_shares.size())});
            m_shares.insert(m_shares.end(), shares[v].begin(), shares[v].end());
        }
    }
}

void BlendedVertices::markNodes(quint32 vertex, std::vector<bool> &marks) const
{
    for (quint32 s = m_vertices[vertex].firstShare; s < sharesEnd(vertex); ++s)
        marks[size_t(m_movers[m_shares[s].mover].node)] = true;
}

BlendedVertices::Movers BlendedVertices::movers(const std::vector<Matrix4> &world) const
{
    Movers places;
    places.reserve(m_movers.size());
    for (const Mover &mover : m_movers)
        places.push_back(world[size_t(mover.node)] * mover.offset);
    return places;
}

Vector3 BlendedVertices::place(const Movers &movers, quint32 vertex) const
{
    Vector3 sum;
    for (quint32 s = m_vertices[vertex].firstShare; s < sharesEnd(vertex); ++s)
        sum += movers[m_shares[s].mover] * m_vertices[vertex].inMesh * m_shares[s].weight;
    return sum;
}

Matrix3 BlendedVertices::surroundings(const Movers &movers, quint32 vertex) const
{
    Matrix3 sum(0, 0, 0, 0, 0, 0, 0, 0, 0);
    for (quint32 s = m_vertices[vertex].firstShare; s < sharesEnd(vertex); ++s)
        addScaled(sum, Matrix3(movers[m_shares[s].mover]), m_shares[s].weight);
    return sum;
}

Matrix3 BlendedVertices::toRest(const Movers &movers, quint32 vertex) const
{
    Matrix3 undone = surroundings(movers, vertex);
    if (!turnOf(Matrix4(undone)))
        return {0, 0, 0, 0, 0, 0, 0, 0, 0};
    return undone.Inverse();
}
