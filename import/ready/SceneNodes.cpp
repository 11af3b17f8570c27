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
    // Whose child a node is it says itself as well, and one reader (of Half-Life's models) lists all bones as
    // children of one node but has them name their parents: where both differ, the node is right.
    const std::vector<Listed> listed = listedNodes(*scene.mRootNode);
    std::unordered_map<const aiNode *, int> numbers;
    for (size_t i = 0; i < listed.size(); ++i)
        numbers.emplace(listed[i].node, int(i));
    std::vector<std::vector<int>> children(listed.size());
    for (size_t i = 1; i < listed.size(); ++i) {
        const auto named = numbers.find(listed[i].node->mParent);
        const int parent = named != numbers.end() ? named->second : listed[i].parent;
        children[size_t(parent)].push_back(int(i));
    }
    addNodes(listed, children);
    if (m_nodes.size() < listed.size()) {
        // Some name each other in a circle.
        children.assign(listed.size(), {});
        for (size_t i = 1; i < listed.size(); ++i)
            children[size_t(listed[i].parent)].push_back(int(i));
        addNodes(listed, children);
    }
    learnNames();
}

// Neither of these by recursion: a file may hang nodes on nodes until the stack ends.
std::vector<SceneNodes::Listed> SceneNodes::listedNodes(const aiNode &root)
{
    std::vector<Listed> listed;
    std::vector<Listed> open{{&root, None}};
    while (!open.empty()) {
        const Listed next = open.back();
        open.pop_back();
        for (unsigned child = next.node->mNumChildren; child-- > 0;) {
            if (next.node->mChildren[child]) // scenes of damaged files have some that are not there
                open.push_back({next.node->mChildren[child], int(listed.size())});
        }
        listed.push_back(next);
    }
    return listed;
}

void SceneNodes::addNodes(const std::vector<Listed> &listed, const std::vector<std::vector<int>> &children)
{
    m_nodes.clear();
    std::vector<std::pair<int, int>> open{{0, None}}; // with the parent's number in the result
    while (!open.empty()) {
        const auto [number, parent] = open.back();
        open.pop_back();
        const aiNode &node = *listed[size_t(number)].node;
        const std::vector<int> &below = children[size_t(number)];
        for (auto child = below.rbegin(); child != below.rend(); ++child)
            open.emplace_back(*child, count());
        m_nodes.push_back({&node, parent, keyOf(node.mName).find(HelperMark) != std::string::npos,
                           exact(node.mTransformation)});
    }
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

Matrix4 SceneNodes::toGame(const ReadyChoices &choices)
{
    const auto s = double(choices.scale);
    if (choices.isZUp)
        return Matrix4(s, 0, 0, 0, 0, s, 0, 0, 0, 0, s, 0, 0, 0, 0, 1);
    // The scene's y is up, the game's z; the front, which looks along z there, looks along -y here.
    return Matrix4(s, 0, 0, 0, 0, 0, -s, 0, 0, s, 0, 0, 0, 0, 0, 1);
}

std::vector<Matrix4> SceneNodes::worldPlaces(const std::vector<Matrix4> &places,
                                             const std::vector<bool> &wanted, const Matrix4 &toGame) const
{
    // Once, in front of the root: what the file says of its own axes is in the root's place already.
    std::vector<Matrix4> world(m_nodes.size());
    for (size_t i = 0; i < m_nodes.size(); ++i) {
        if (wanted[i])
            world[i] = (i == 0 ? toGame : world[size_t(m_nodes[i].parent)]) * places[i];
    }
    return world;
}
