// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Skeleton.h"

#include "SkinnedMesh.h"

#include <algorithm>

void Skeleton::follow(const SkinnedMesh &mesh, size_t limit)
{
    const size_t count = std::min(mesh.nodes.size(), limit);
    m_bones.clear();
    m_taken.assign(count, false);
    if (count == 0)
        return;
    m_bones.push_back({0, NoParent});
    m_taken[0] = true;
    for (size_t i = 0; i < m_bones.size(); ++i) {
        for (const quint16 child : mesh.nodes[size_t(m_bones[i].index)].childNodes) {
            if (child >= count || m_taken[child])
                continue;
            m_taken[child] = true;
            m_bones.push_back({int(child), int(i)});
        }
    }
}
