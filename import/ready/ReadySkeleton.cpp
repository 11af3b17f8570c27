// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ReadySkeleton.h"

#include <algorithm>
#include <numeric>

namespace {
/// Of the model's size.
constexpr double MovementOfNoAccount = 0.01;
constexpr double NoMovement = 1e-5; // what is left of single precision
} // namespace

ReadySkeleton::ReadySkeleton(const SceneNodes &nodes, std::vector<bool> skinned,
                             const std::vector<bool> &shows, const std::vector<bool> &moved)
    : m_nodes(nodes)
{
    // What a clip moves is a bone if anything that is seen hangs on it. Where a helper moves, the node that
    // it helps does: that one has the whole place, and its name is the one that people know.
    const size_t count = size_t(nodes.count());
    const std::vector<bool> carries = nodes.carriers(shows);
    std::vector<bool> isBone = std::move(skinned);
    std::vector<bool> helped(count);
    for (size_t i = 0; i < count; ++i) {
        const int parent = nodes[int(i)].parent;
        if (parent != SceneNodes::None && nodes[parent].isHelper)
            helped[i] = helped[size_t(parent)] || moved[size_t(parent)];
        if ((moved[i] || helped[i]) && carries[i])
            isBone[i] = true;
        if (nodes[int(i)].isHelper)
            isBone[i] = false;
    }
    if (std::find(isBone.begin(), isBone.end(), true) == isBone.end()) {
        m_wanted.assign(count, false);
        m_boneOf.assign(count, 0);
        return;
    }
    // A mesh with no bone above it must not go with a bone that moves, so what has it and all bones below it
    // is to be the root.
    std::vector<bool> hangs = nodes.below(isBone);
    std::vector<bool> ends = isBone;
    for (size_t i = 0; i < count; ++i) {
        if (shows[i] && !hangs[i])
            ends[i] = true;
    }
    // The common ancestor is the last node that has all ends below it. All between it and the bones are
    // bones, too: a node that turns must turn what hangs on it in its own space.
    std::vector<int> below(count);
    for (size_t i = count; i-- > 0;) {
        below[i] += ends[i] ? 1 : 0;
        if (i > 0)
            below[size_t(nodes[int(i)].parent)] += below[i];
    }
    int root = 0;
    for (size_t i = 0; i < count; ++i) {
        if (below[i] == below[0])
            root = int(i);
    }
    while (root != 0 && nodes[root].isHelper)
        root = nodes[root].parent;
    const std::vector<bool> above = nodes.carriers(isBone);
    std::vector<bool> isInside(count);
    isInside[size_t(root)] = true;
    isInside = nodes.below(isInside);
    for (size_t i = 0; i < count; ++i)
        isBone[i] = isInside[i] && above[i] && !nodes[int(i)].isHelper;
    isBone[size_t(root)] = true;
    build(isBone);
}

std::vector<bool> ReadySkeleton::boneNodes() const
{
    std::vector<bool> isBone(size_t(m_nodes.count()));
    for (const Bone &bone : m_bones)
        isBone[size_t(bone.node)] = true;
    return isBone;
}

void ReadySkeleton::build(const std::vector<bool> &isBone)
{
    m_bones.clear();
    m_boneOf.assign(size_t(m_nodes.count()), SceneNodes::None);
    for (int i = 0; i < m_nodes.count(); ++i) {
        const int above =
            m_nodes[i].parent == SceneNodes::None ? SceneNodes::None : m_boneOf[size_t(m_nodes[i].parent)];
        m_boneOf[size_t(i)] = above;
        if (isBone[size_t(i)]) {
            m_boneOf[size_t(i)] = count();
            m_bones.push_back({i, above});
        }
    }
    std::replace(m_boneOf.begin(), m_boneOf.end(), SceneNodes::None, 0);
    m_wanted = m_nodes.carriers(isBone);
}

void ReadySkeleton::setExtras(std::unique_ptr<ExtraBones> extras)
{
    m_extras = std::move(extras);
    if (!m_extras)
        return;
    m_extras->markNodes(m_wanted);
    m_wanted = m_nodes.carriers(m_wanted);
}

int ReadySkeleton::parent(int bone) const
{
    return bone < sourceCount() ? m_bones[size_t(bone)].parent : m_extras->parent(bone - sourceCount());
}

int ReadySkeleton::boneOf(const SceneParts::Part &part, unsigned vertex) const
{
    const int extra = m_extras ? m_extras->find(part.first + vertex) : -1;
    return extra >= 0 ? sourceCount() + extra : boneOf(part.mover(vertex).node);
}

void ReadySkeleton::dropLeaves(const std::vector<bool> &bears, const std::vector<bool> &moved)
{
    if (count() <= BoneLimit)
        return;
    std::vector<bool> isBone = boneNodes();
    std::vector<bool> hasChild(m_bones.size());
    int left = count();
    for (size_t b = m_bones.size(); b-- > 1;) {
        const auto at = size_t(m_bones[b].node);
        if (left > BoneLimit && !hasChild[b] && !bears[at] && !moved[at]) {
            isBone[at] = false;
            --left;
        } else {
            hasChild[size_t(m_bones[b].parent)] = true;
        }
    }
    build(isBone);
}

void ReadySkeleton::mergeStill(const std::vector<double> &movements)
{
    std::vector<size_t> order(m_bones.size() - 1);
    std::iota(order.rbegin(), order.rend(), size_t(1));
    std::stable_sort(order.begin(), order.end(), [&movements](size_t a, size_t b) {
        return std::max(movements[a], NoMovement) < std::max(movements[b], NoMovement);
    });
    std::vector<bool> isBone = boneNodes();
    int left = count();
    for (const size_t bone : order) {
        if (left <= BoneLimit || movements[bone] > MovementOfNoAccount)
            break;
        isBone[size_t(m_bones[bone].node)] = false;
        --left;
    }
    build(isBone);
}

void ReadySkeleton::pose(const std::vector<Matrix4> &world, SkeletonPose &pose) const
{
    pose.resize(size_t(count()));
    for (size_t b = 0; b < m_bones.size(); ++b) {
        const Matrix4 &place = world[size_t(m_bones[b].node)];
        const RigidFrame parent = b == 0 ? RigidFrame() : pose.world[size_t(m_bones[b].parent)];
        if (const std::optional<Turn> turn = turnOf(place))
            pose.turn(b, parent, *turn);
        pose.settle(b, parent, originOf(place));
        pose.sizes[b] = {Vector3(place.a1, place.b1, place.c1).Length(),
                         Vector3(place.a2, place.b2, place.c2).Length(),
                         Vector3(place.a3, place.b3, place.c3).Length()};
    }
    if (m_extras)
        m_extras->pose(world, pose);
}
