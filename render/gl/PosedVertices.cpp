// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PosedVertices.h"

#include "ShaderPrograms.h"

#include <algorithm>

QVector3D posedPlace(const GLVertex &vertex, const BonePalette &palette)
{
    const QVector3D place(vertex.position[0], vertex.position[1], vertex.position[2]);
    const size_t bone = size_t(std::min(vertex.boneId, ShaderPrograms::BoneLimit - 1));
    return bone < palette.size() ? palette[bone].map(place) : place;
}

void poseVertices(std::vector<GLVertex> &posed, const std::vector<GLVertex> &vertices,
                  const std::vector<quint16> &indexes, const BonePalette &palette)
{
    posed.resize(vertices.size());
    for (quint16 index : indexes) {
        const QVector3D place = posedPlace(vertices[index], palette);
        for (int axis = 0; axis < 3; ++axis)
            posed[index].position[axis] = place[axis];
    }
}
