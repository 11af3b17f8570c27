// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneReading.h"
#include "SkinnedMesh.h"

#include <map>
#include <string>

/// The scene nodes that become bones: the tree of the first node that a mesh names as a bone.
class SceneSkeleton
{
public:
    struct Node
    {
        int index = 0;
        aiMatrix4x4 transform; ///< relative to the parent
    };

    /// Finds the skeleton; adds an error for every name that occurs twice in it.
    explicit SceneSkeleton(const SceneSource &source);

    /// Appends the bones to `mesh`; a single neutral one, with a word about it, when there is no skeleton.
    void addBones(SkinnedMesh &mesh) const;
    /// Binds every vertex to the bone with the last weight above one half; the others stay at bone 0.
    void bindVertices(SkinnedMesh &mesh) const;

    /// The first node of that name in the whole scene, depth first; null for none.
    static const aiNode *sceneNode(const SceneSource &source, const aiString &name);

    /// The node that became a bone, by its name; none when there is no such.
    const Node *find(const aiString &name) const;

private:
    void collect(const aiNode &node, int &counter);
    void append(const aiNode &node, SkinnedMesh &mesh) const;

    const SceneSource &m_source;
    const aiNode *m_root = nullptr;
    std::map<std::string, Node> m_nodes;
};
