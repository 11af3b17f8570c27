// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

struct SkinnedMesh;

/// The bones that a pose reaches from bone 0 through the child lists: each once, whatever the lists say, and
/// after its parent. Keeps its memory.
class Skeleton
{
public:
    static constexpr int NoParent = -1;

    struct Bone
    {
        int index;  ///< in the mesh
        int parent; ///< in bones(), or NoParent
    };

    /// Takes the lists as they are now. Bones from `limit` on do not count.
    void follow(const SkinnedMesh &mesh, size_t limit);

    const std::vector<Bone> &bones() const { return m_bones; }

private:
    std::vector<Bone> m_bones;
    std::vector<bool> m_taken;
};
