// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SurfaceMiddles.h"

#include "GLMesh.h"
#include "PosedVertices.h"
#include "Transform.h"

#include <map>
#include <utility>

void SurfaceMiddles::update(const GLMesh &model)
{
    if (std::exchange(m_revision, model.revision()) == model.revision())
        return;
    m_parts.assign(size_t(model.surfaceCount()), {});
    const std::vector<GLVertex> &vertices = model.vertices().vertices;
    for (int surface = 0; surface < model.surfaceCount(); ++surface) {
        std::map<int, std::pair<QVector3D, int>> sums; // by bone
        for (const quint16 index : model.indexes(surface)) {
            const GLVertex &vertex = vertices[index];
            auto &[sum, count] = sums[vertex.boneId];
            sum += {vertex.position[0], vertex.position[1], vertex.position[2]};
            ++count;
        }
        const auto corners = float(model.indexes(surface).size());
        for (const auto &[bone, sum] : sums)
            m_parts[size_t(surface)].push_back(
                {bone, sum.first / float(sum.second), float(sum.second) / corners});
    }
}

QVector3D SurfaceMiddles::middle(const GLMesh &model, int surface) const
{
    QVector3D middle;
    for (const Part &part : m_parts[size_t(surface)]) {
        const GLVertex corner{{part.middle.x(), part.middle.y(), part.middle.z()}, {}, {}, part.bone};
        middle += part.share * posedPlace(corner, model.palette);
    }
    return isFinite(middle) ? middle : QVector3D();
}
