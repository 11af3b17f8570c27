// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReadyChoices.h"
#include "SceneMath.h"

#include <assimp/scene.h>

#include <string>
#include <unordered_map>
#include <vector>

/// The nodes of a scene in a list, parents before their children and children in their order.
class SceneNodes
{
public:
    static constexpr int None = -1;

    struct Node
    {
        const aiNode *source;
        int parent;    ///< None of the root
        bool isHelper; ///< made by the reader of FBX files to hold a part of another node's place
        Matrix4 rest;  ///< relative to the parent; the identity where the source's is no number
    };

    explicit SceneNodes(const aiScene &scene);

    int count() const { return int(m_nodes.size()); }
    const Node &operator[](int node) const { return m_nodes[size_t(node)]; }

    /// The node that bones of skins and channels of animations mean by this name: of several the first that
    /// bears no mesh, since programs name an object and the bone that moves it alike. None without one.
    int find(const aiString &name) const;

    /// For each node whether it, or any below it, is marked.
    std::vector<bool> carriers(std::vector<bool> marks) const;
    /// For each node whether it, or any above it, is marked.
    std::vector<bool> below(std::vector<bool> marks) const;

    /// Where the nodes stand at rest, relative to their parents.
    std::vector<Matrix4> restPlaces() const;
    /// Turns the scene upright, into game units.
    static Matrix4 toGame(const ReadyChoices &choices);
    /// Where those stand in the model's space, to which `toGame` leads from the scene's, that `wanted` marks
    /// with all above them. `places` are relative to the parents.
    std::vector<Matrix4> worldPlaces(const std::vector<Matrix4> &places, const std::vector<bool> &wanted,
                                     const Matrix4 &toGame) const;

private:
    struct Listed
    {
        const aiNode *node;
        int parent; ///< whose child it is listed as
    };

    static std::vector<Listed> listedNodes(const aiNode &root);
    void addNodes(const std::vector<Listed> &listed, const std::vector<std::vector<int>> &children);
    void learnNames();

    std::vector<Node> m_nodes;
    std::unordered_map<std::string, int> m_byName;
};
