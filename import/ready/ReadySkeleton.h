// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ExtraBones.h"

/// The nodes of a scene that become bones. Bone 0 is the root of all others; a parent's number is lower than
/// its children's.
class ReadySkeleton
{
public:
    /// The view poses no more, see PoseEvaluator and the shader's palette.
    static constexpr int BoneLimit = 128;

    /// `shows` marks the nodes that skins name or that bear meshes without one; `skinned` the former alone.
    ReadySkeleton(const SceneNodes &nodes, std::vector<bool> skinned, const std::vector<bool> &shows,
                  const std::vector<bool> &moved);

    /// Those that nodes of the source are, then the extra ones.
    int count() const { return sourceCount() + (m_extras ? m_extras->count() : 0); }
    int sourceCount() const { return int(m_bones.size()); }
    /// Of a bone of the source.
    int node(int bone) const { return m_bones[size_t(bone)].node; }
    /// SceneNodes::None of bone 0.
    int parent(int bone) const;
    /// The bone that what hangs on the node goes with: its own or the nearest above it, else bone 0.
    int boneOf(int node) const { return m_boneOf[size_t(node)]; }
    /// The bone of a vertex, an extra one perhaps.
    int boneOf(const SceneParts::Part &part, unsigned vertex) const;
    /// Marks the nodes on whose places the bones' depend.
    const std::vector<bool> &wanted() const { return m_wanted; }

    /// Leaves out leaves that neither `bears` (vertices) nor `moved` marks, from the last to the first, until
    /// there are no more bones than can be posed.
    void dropLeaves(const std::vector<bool> &bears, const std::vector<bool> &moved);
    /// Makes bones one with their parents whose own movement is of no account, those that move least first,
    /// in the same way. `movements` is by bone, in parts of the model's size.
    void mergeStill(const std::vector<double> &movements);

    /// Appends bones, once all that are left out are; null takes them away.
    void setExtras(std::unique_ptr<ExtraBones> extras);

    /// Where the bones stand when the nodes stand in `world`. A bone that is flattened, and so has no
    /// rotation of its own, keeps that of `pose` to its parent, and so do the signs of quaternions.
    void pose(const std::vector<Matrix4> &world, SkeletonPose &pose) const;

private:
    struct Bone
    {
        int node;
        int parent;
    };

    void build(const std::vector<bool> &isBone);
    std::vector<bool> boneNodes() const;

    const SceneNodes &m_nodes;
    std::vector<Bone> m_bones;
    std::vector<int> m_boneOf; ///< by node
    std::vector<bool> m_wanted;
    std::unique_ptr<ExtraBones> m_extras;
};
