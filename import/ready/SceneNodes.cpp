// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneNodes.h"

#include <utility>

namespace {
/// In the names of nodes that stand for one step each of the way to another node's place.
constexpr const char *HelperMark = "_$AssimpFbx$_";

std::string keyOf(const aiString &name)
{
    return {name.data, name.length};
}
} // namespace

SceneNodes::SceneNodes(const aiScene &scene)
{
    // Not by recursion: a file may hang nodes on nodes until the stack ends.
    std::vector<std::pair<const aiNode *, int>> open{{scene.mRootNode, None}};
    while (!open.empty()) {
        const auto [node, parent] = open.back();
        open.pop_back();
        const int index = count();
        m_nodes.push_back({node, parent, keyOf(node->mName).find(HelperMark) != std::string::npos,
                           exact(node->mTransformation)});
        for (unsigned child = node->mNumChildren; child-- > 0;) {
            if (node->mChildren[child]) // scenes of damaged files have some that are not there
                open.emplace_back(node->mChildren[child], index);
        }
    }
    learnNames();
}

void SceneNodes::learnNames()
{
    // A helper bears what the node bears that it helps, so that of two chains of one name the right one is
    // found as well.
    std::vector<bool> bears(m_nodes.size());
    for (size_t i = m_nodes.size(); i-- > 0;) {
        bears[i] = bears[i] || m_nodes[i].source->mNumMeshes > 0;
        const int parent = m_nodes[i].parent;
        if (bears[i] && parent != None && m_nodes[size_t(parent)].isHelper)
            bears[size_t(parent)] = true;
    }
    for (size_t i = 0; i < m_nodes.size(); ++i) {
        const auto [known, isNew] = m_byName.emplace(keyOf(m_nodes[i].source->mName), int(i));
        if (!isNew && bears[size_t(known->second)] && !bears[i])
            known->second = int(i);
    }
}

int SceneNodes::find(const aiString &name) const
{
    const auto found = m_byName.find(keyOf(name));
    return found != m_byName.end() ? found->second : None;
}

std::vector<bool> SceneNodes::carriers(std::vector<bool> marks) const
{
    for (size_t i = m_nodes.size(); i-- > 1;) {
        if (marks[i])
            marks[size_t(m_nodes[i].parent)] = true;
    }
    return marks;
}

std::vector<bool> SceneNodes::below(std::vector<bool> marks) const
{
    for (size_t i = 1; i < m_nodes.size(); ++i) {
        if (marks[size_t(m_nodes[i].parent)])
            marks[i] = true;
    }
    return marks;
}

std::vector<Matrix4> SceneNodes::restPlaces() const
{
    std::vector<Matrix4> places;
    places.reserve(m_nodes.size());
    for (const Node &node : m_nodes)
        places.push_back(node.rest);
    return places;
}

std::vector<Matrix4> SceneNodes::worldPlaces(const std::vector<Matrix4> &places,
                                             const std::vector<bool> &wanted, double scale) const
{
    // The scene's y is up, the game's z; the front, which looks along z there, looks along -y here. Once, in
    // front of the root: what the file says of its own axes is in the root's place already.
    const Matrix4 toGame(scale, 0, 0, 0, 0, 0, -scale, 0, 0, scale, 0, 0, 0, 0, 0, 1);
    std::vector<Matrix4> world(m_nodes.size());
    for (size_t i = 0; i < m_nodes.size(); ++i) {
        if (wanted[i])
            world[i] = (i == 0 ? toGame : world[size_t(m_nodes[i].parent)]) * places[i];
    }
    return world;
}
