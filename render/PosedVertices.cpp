// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PosedVertices.h"

#include "ShaderPrograms.h"

#include <algorithm>

void poseVertices(std::vector<GLVertex> &posed, const std::vector<GLVertex> &vertices,
                  const std::vector<quint16> &indexes, const BonePalette &palette)
{
    posed.resize(vertices.size());
    for (quint16 index : indexes) {
        const float *from = vertices[index].position;
        QVector3D place(from[0], from[1], from[2]);
        const size_t bone = size_t(std::min(vertices[index].boneId, ShaderPrograms::BoneLimit - 1));
        if (bone < palette.size())
            place = palette[bone].map(place);
        for (int axis = 0; axis < 3; ++axis)
            posed[index].position[axis] = place[axis];
    }
}
