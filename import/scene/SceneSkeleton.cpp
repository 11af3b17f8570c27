// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneSkeleton.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>

namespace {
constexpr quint8 NoParent = 255;
/// Child lists hold 16-bit indexes.
constexpr int BoneLimit = 65536;

std::string key(const aiString &name)
{
    return {name.data, name.length};
}

/// Scenes of damaged files have children that are null.
std::vector<const aiNode *> childrenOf(const aiNode &node)
{
    std::vector<const aiNode *> children(node.mChildren, node.mChildren + node.mNumChildren);
    children.erase(std::remove(children.begin(), children.end(), nullptr), children.end());
    return children;
}

/// Depth first, in the order of the children.
const aiNode *firstNamed(const aiNode &node, const std::set<std::string> &names)
{
    if (names.count(key(node.mName)) != 0)
        return &node;
    for (const aiNode *child : childrenOf(node)) {
        if (const aiNode *found = firstNamed(*child, names))
            return found;
    }
    return nullptr;
}
} // namespace

SceneSkeleton::SceneSkeleton(const SceneSource &source)
    : m_source(source)
{
    std::set<std::string> boneNames;
    for (unsigned i = 0; i < source.scene->mNumMeshes; ++i) {
        const aiMesh &mesh = *source.scene->mMeshes[i];
        for (unsigned b = 0; b < mesh.mNumBones; ++b)
            boneNames.insert(key(mesh.mBones[b]->mName));
    }
    const aiNode *sceneRoot = source.scene->mRootNode;
    m_root = firstNamed(*sceneRoot, boneNames);
    if (!m_root)
        return;
    while (m_root->mParent && m_root->mParent != sceneRoot)
        m_root = m_root->mParent;
    qCDebug(importLog, "Found rootnode named %s", m_root->mName.C_Str());
    int counter = 0;
    collect(*m_root, counter);
    if (counter > BoneLimit) {
        source.messages.addError(
            QCoreApplication::translate("Import", "%1 has %2 bones. A model can hold no more than %3.")
                .arg(source.modelPath, QString::number(counter), QString::number(BoneLimit)));
    } else if (counter > NoParent) {
        source.messages.addWarning(
            QCoreApplication::translate(
                "Import", "%1 has %2 bones. The parents of those whose parent is bone %3 or beyond cannot be "
                          "stored; their place in the child lists is kept.")
                .arg(source.modelPath, QString::number(counter), QString::number(NoParent)));
    }
}

void SceneSkeleton::collect(const aiNode &node, int &counter)
{
    // A second node of one name takes an index too, so that indexes stay positions in the list of bones.
    const int index = counter++;
    if (m_nodes.emplace(key(node.mName), Node{index, node.mTransformation}).second) {
        aiVector3D scaling;
        aiQuaternion rotation;
        aiVector3D position;
        node.mTransformation.Decompose(scaling, rotation, position);
        qCDebug(importLog, "Added %s to nodemap with index %d  x: %g y: %g z: %g Rx: %g Ry: %g Rz: %g Rw: %g",
                node.mName.C_Str(), index, double(position.x), double(position.y), double(position.z),
                double(rotation.x), double(rotation.y), double(rotation.z), double(rotation.w));
    } else {
        m_source.messages.addError(
            QCoreApplication::translate("Import", "Node %1 already exists.").arg(text(node.mName)));
    }
    for (const aiNode *child : childrenOf(node))
        collect(*child, counter);
}

void SceneSkeleton::addBones(SkinnedMesh &mesh) const
{
    if (m_root)
        append(*m_root, mesh);
    if (!mesh.nodes.empty())
        return;
    m_source.messages.addInfo(
        QCoreApplication::translate("Import", "%1 has no bones. Creating a default bone.")
            .arg(m_source.modelPath));
    mesh.nodes.emplace_back();
}

void SceneSkeleton::append(const aiNode &node, SkinnedMesh &mesh) const
{
    const size_t index = mesh.nodes.size();
    const Node *parent = &node != m_root ? find(node.mParent->mName) : nullptr;
    mesh.nodes.emplace_back().parentNode =
        parent && parent->index < NoParent ? quint8(parent->index) : NoParent;
    for (const aiNode *child : childrenOf(node)) {
        mesh.nodes[index].childNodes.push_back(quint16(mesh.nodes.size()));
        append(*child, mesh);
    }
}

void SceneSkeleton::bindVertices(SkinnedMesh &mesh) const
{
    std::vector<bool> isBound(mesh.vertices.size());
    size_t firstVertex = 0;
    for (unsigned i = 0; i < m_source.scene->mNumMeshes; ++i) {
        const aiMesh &part = *m_source.scene->mMeshes[i];
        for (unsigned b = 0; b < part.mNumBones; ++b) {
            const aiBone &bone = *part.mBones[b];
            const Node *node = find(bone.mName);
            const int nodeIndex = node ? node->index : 0;
            for (unsigned w = 0; w < bone.mNumWeights; ++w) {
                const aiVertexWeight &weight = bone.mWeights[w];
                const size_t index = firstVertex + weight.mVertexId;
                if (!(weight.mWeight > 0.5f) || index >= mesh.vertices.size())
                    continue;
                SkinnedMeshVertex &vertex = mesh.vertices[index];
                if (vertex.nodeIndex != 0) {
                    qCDebug(
                        importLog,
                        "===ERROR=== Assigning Vert %zu to bone %s, nodeID %d but was previously assigned "
                        "to nodeID %d",
                        index, bone.mName.C_Str(), nodeIndex, int(vertex.nodeIndex));
                }
                vertex.nodeIndex = quint16(nodeIndex);
                isBound[index] = true;
            }
        }
        firstVertex += part.mNumVertices;
    }
    // Without a skeleton the default bone has them all.
    if (!m_root)
        return;
    const auto unbound = std::count(isBound.begin(), isBound.end(), false);
    if (unbound > 0) {
        m_source.messages.addWarning(
            QCoreApplication::translate("Import", "%1 %2 vertices are not assigned to a bone")
                .arg(m_source.modelPath, QString::number(unbound)));
    }
}

const aiNode *SceneSkeleton::sceneNode(const SceneSource &source, const aiString &name)
{
    return firstNamed(*source.scene->mRootNode, {key(name)});
}

const SceneSkeleton::Node *SceneSkeleton::find(const aiString &name) const
{
    const auto found = m_nodes.find(key(name));
    return found != m_nodes.end() ? &found->second : nullptr;
}
