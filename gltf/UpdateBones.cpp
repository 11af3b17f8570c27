// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UpdateBones.h"

#include "ExportNames.h"
#include "GltfExtras.h"
#include "GltfPose.h"
#include "GltfSkeleton.h"
#include "GltfText.h"
#include "Polar.h"
#include "Transform.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <utility>

namespace {
/// As part of the model's size: what lies nearer is the same place.
constexpr double SamePlace = 2.0e-5;

QMatrix4x4 matrixOf(const Rigid &rigid)
{
    QMatrix4x4 matrix;
    matrix.translate(rigid.position());
    matrix.rotate(rigid.turn());
    return matrix;
}

double distance(const QMatrix4x4 &matrix, const Rigid &rigid)
{
    return double((matrix.column(3).toVector3D() - rigid.position()).length());
}
} // namespace

QMatrix4x4 fromGltfAxes()
{
    return {1, 0, 0, 0, 0, 0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1};
}

QMatrix4x4 toGltfAxes()
{
    return {1, 0, 0, 0, 0, 0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1};
}

UpdateBones::UpdateBones(const SkinnedMesh &mesh, const AnimFile &anim, const GltfScene &scene)
    : m_scene(scene)
    , m_oldCount(mesh.nodes.size())
    , m_bones(mesh.nodes.size())
    , m_boneOfNode(scene.nodes.size(), -1)
    , m_jointOfNode(scene.nodes.size())
    , m_hotPoints(mesh.hotPoints.size(), -1)
    , m_isChanged(mesh.hotPoints.size(), false)
{
    // As an export has it: block 0 at rest, where the animation is the mesh's.
    const bool fits = !anim.blocks.empty() && anim.blocks[0].nodes.size() == m_oldCount;
    const GltfSkeleton skeleton(mesh, fits ? &anim.blocks[0] : nullptr);
    for (size_t i = 0; i < m_oldCount; ++i) {
        m_bones[i].parent = skeleton.bones[i].parent;
        m_bones[i].isReached = skeleton.bones[i].isReached;
        m_bones[i].oldRest = skeleton.bones[i].rest;
    }
    m_worlds = GltfPose(scene).at(0.0f);
    for (size_t skin = 0; skin < scene.skins.size(); ++skin) {
        for (size_t i = 0; i < scene.skins[skin].joints.size(); ++i) {
            Joint &joint = m_jointOfNode[size_t(scene.skins[skin].joints[i])];
            if (joint.skin < 0)
                joint = {int(skin), int(i)};
        }
    }
    findNodes(mesh);
    measure(mesh);
    bindSkins();
    if (placeBones())
        return;
    addBones();
}

void UpdateBones::measure(const SkinnedMesh &mesh)
{
    std::optional<Box> box;
    for (const SkinnedMeshVertex &vertex : mesh.vertices) {
        if (vertex.nodeIndex < m_oldCount)
            widen(box, toFloats(m_bones[vertex.nodeIndex].oldRest.map(toDoubles(vertex.position))));
    }
    const QVector3D extent = box ? box->max - box->min : QVector3D();
    m_size = double(std::max({extent.x(), extent.y(), extent.z()}));
    if (!(m_size > 0.0) || !std::isfinite(m_size))
        m_size = 1.0;
}

void UpdateBones::findNodes(const SkinnedMesh &mesh)
{
    bool hasExtras = false;
    for (const int index : m_scene.order) {
        const GltfScene::Node &node = m_scene.nodes[size_t(index)];
        if (const auto bone = GltfExtras::read<GltfExtras::Bone>(node.extras)) {
            hasExtras = true;
            if (bone->number < 0 || size_t(bone->number) >= m_oldCount)
                continue;
            Bone &ours = m_bones[size_t(bone->number)];
            // A copy of a bone has its extras too.
            if (ours.node >= 0 && isCopyName(node.name))
                continue;
            ours.node = index;
            ours.name = node.name;
            ours.oldRest = Rigid::from(bone->restPosition, bone->restRotation);
        } else if (const auto point = GltfExtras::read<GltfExtras::HotPoint>(node.extras)) {
            if (point->number < 0 || size_t(point->number) >= m_hotPoints.size())
                continue;
            const SkinnedMeshHotPoint &ours = mesh.hotPoints[size_t(point->number)];
            m_hotPoints[size_t(point->number)] = index;
            m_isChanged[size_t(point->number)] =
                ours.nodeId != point->record.nodeId || ours.origin != point->record.origin;
        } else if (GltfExtras::read<GltfExtras::Yaw>(node.extras)) {
            m_yawNode = index;
        }
    }
    if (!hasExtras)
        findNodesByName();
    for (size_t i = 0; i < m_bones.size(); ++i) {
        if (m_bones[i].node >= 0)
            m_boneOfNode[size_t(m_bones[i].node)] = int(i);
    }
}

// Where a program was not told to write extras, or cannot, the names of an export are left.
void UpdateBones::findNodesByName()
{
    static const QRegularExpression pattern(QStringLiteral("^(bone|hotpoint)_(\\d{1,5})\\b"));
    for (const int index : m_scene.order) {
        const QString &name = m_scene.nodes[size_t(index)].name;
        const QRegularExpressionMatch match = pattern.match(name);
        if (m_jointOfNode[size_t(index)].skin < 0 || isCopyName(name))
            continue;
        const size_t number = match.captured(2).toUInt();
        if (name == QLatin1String("yaw")) {
            m_yawNode = index;
        } else if (match.captured(1) == QLatin1String("hotpoint") && number < m_hotPoints.size()) {
            m_hotPoints[number] = index;
        } else if (match.captured(1) == QLatin1String("bone") && number < m_oldCount) {
            m_bones[number].node = index;
            m_bones[number].name = name;
        }
    }
}

// A skin says where its joints are in its own space. Of the ways to the scene's space that programs have, the
// one counts which brings the bones to where they were: none, the armature's node, or what the nodes say.
void UpdateBones::bindSkins()
{
    const QMatrix4x4 upright = fromGltfAxes();
    m_skinSpace.resize(m_scene.skins.size());
    for (size_t skin = 0; skin < m_scene.skins.size(); ++skin) {
        const GltfScene::Skin &each = m_scene.skins[skin];
        std::vector<QMatrix4x4> ways;
        for (size_t i = 0; i < each.joints.size() && ways.empty(); ++i) {
            if (m_boneOfNode[size_t(each.joints[i])] < 0)
                continue;
            ways.push_back(m_worlds[size_t(each.joints[i])] * each.inverseBinds[i]);
            int top = each.joints[i];
            while (m_scene.nodes[size_t(top)].parent >= 0 && m_jointOfNode[size_t(top)].skin >= 0)
                top = m_scene.nodes[size_t(top)].parent;
            ways.push_back(m_worlds[size_t(top)]);
        }
        ways.emplace_back();
        double best = -1.0;
        for (const QMatrix4x4 &way : ways) {
            std::vector<double> distances{0.0};
            for (size_t i = 0; i < each.joints.size(); ++i) {
                const int bone = m_boneOfNode[size_t(each.joints[i])];
                if (bone >= 0)
                    distances.push_back(distance(upright * way * each.inverseBinds[i].inverted(),
                                                 m_bones[size_t(bone)].oldRest));
            }
            const auto middle = distances.begin() + std::ptrdiff_t(distances.size() / 2);
            std::nth_element(distances.begin(), middle, distances.end());
            if (best < 0.0 || *middle < best - SamePlace * m_size) {
                best = *middle;
                m_skinSpace[skin] = way;
            }
        }
    }
}

/// Where a node is in the bound pose, in the scene's space.
QMatrix4x4 UpdateBones::bound(int node) const
{
    const Joint &joint = m_jointOfNode[size_t(node)];
    if (joint.skin < 0)
        return m_worlds[size_t(node)];
    const GltfScene::Skin &skin = m_scene.skins[size_t(joint.skin)];
    return m_skinSpace[size_t(joint.skin)] * skin.inverseBinds[size_t(joint.index)].inverted();
}

/// Returns true on failure.
bool UpdateBones::placeBones()
{
    int found = 0;
    for (Bone &bone : m_bones) {
        bone.rest = bone.oldRest;
        if (bone.node < 0)
            continue;
        ++found;
        const QMatrix4x4 node = bound(bone.node);
        bone.isMoved = distance(fromGltfAxes() * node, bone.oldRest) > SamePlace * m_size;
        double scale = 0.0;
        const Rigid rest = rigidPart(fromGltfAxes() * node, scale);
        if (bone.isMoved)
            bone.rest.translation = rest.translation;
        bool isInvertible = false;
        bone.toBone = node.inverted(&isInvertible) * toGltfAxes() * matrixOf(bone.rest);
        if (!isInvertible || scale == 0.0) {
            m_error = Gltf::tr("The bone '%1' has no size in the file.").arg(bone.name);
            return true;
        }
    }
    if (found == 0)
        m_error = Gltf::tr("None of its bones is one of the model that is open.");
    return found == 0;
}

/// For each node whether vertices hang on it or on a joint below it.
std::vector<bool> UpdateBones::carriers() const
{
    std::vector<bool> carries(m_scene.nodes.size(), false);
    // Many nodes may show a mesh, which is looked through once.
    std::vector<std::vector<int>> jointsOfMesh(m_scene.meshes.size());
    for (size_t i = 0; i < jointsOfMesh.size(); ++i) {
        std::vector<int> &joints = jointsOfMesh[i];
        for (const GltfScene::Primitive &primitive : m_scene.meshes[i])
            joints.insert(joints.end(), primitive.joints.begin(), primitive.joints.end());
        std::sort(joints.begin(), joints.end());
        joints.erase(std::unique(joints.begin(), joints.end()), joints.end());
    }
    QSet<QPair<int, int>> seen; // meshes with skins
    for (const int index : m_scene.order) {
        const GltfScene::Node &node = m_scene.nodes[size_t(index)];
        if (node.mesh < 0)
            continue;
        if (node.skin < 0) {
            carries[size_t(index)] = true;
            continue;
        }
        if (seen.contains({node.mesh, node.skin}))
            continue;
        seen.insert({node.mesh, node.skin});
        const GltfScene::Skin &skin = m_scene.skins[size_t(node.skin)];
        for (const int joint : jointsOfMesh[size_t(node.mesh)]) {
            if (joint >= 0)
                carries[size_t(skin.joints[size_t(joint)])] = true;
        }
    }
    for (auto node = m_scene.order.rbegin(); node != m_scene.order.rend(); ++node) {
        const int parent = m_scene.nodes[size_t(*node)].parent;
        if (parent >= 0 && carries[size_t(*node)])
            carries[size_t(parent)] = true;
    }
    return carries;
}

// A rig has joints for the hand that moves it; the game needs those that vertices hang on.
void UpdateBones::addBones()
{
    // Vertices without a weight get this one from a program that cannot do without.
    const QLatin1String neutral("neutral_bone");
    const std::vector<bool> carries = carriers();
    for (const int index : m_scene.order) {
        const GltfScene::Node &node = m_scene.nodes[size_t(index)];
        const bool isHotPoint = std::find(m_hotPoints.begin(), m_hotPoints.end(), index) != m_hotPoints.end();
        if (m_jointOfNode[size_t(index)].skin < 0 || m_boneOfNode[size_t(index)] >= 0 || isHotPoint ||
            index == m_yawNode || node.name == neutral)
            continue;
        if (!carries[size_t(index)]) {
            m_leftOut += node.name;
            continue;
        }
        Bone bone;
        bone.node = index;
        bone.name = node.name;
        bone.parent = std::max(0, boneOf(index));
        double scale = 0.0;
        bone.rest = bone.oldRest = rigidPart(fromGltfAxes() * bound(index), scale);
        bool isInvertible = false;
        bone.toBone = bound(index).inverted(&isInvertible) * toGltfAxes() * matrixOf(bone.rest);
        if (!isInvertible || scale == 0.0) {
            m_leftOut += node.name;
            continue;
        }
        m_boneOfNode[size_t(index)] = int(m_bones.size());
        m_bones.push_back(bone);
    }
}

int UpdateBones::boneOf(int node) const
{
    while (node >= 0 && m_boneOfNode[size_t(node)] < 0)
        node = m_scene.nodes[size_t(node)].parent;
    return node < 0 ? -1 : m_boneOfNode[size_t(node)];
}

double UpdateBones::yawAt(const QMatrix4x4 &world) const
{
    double scale = 0.0;
    // At rest it turns nothing, whatever its axes are.
    const Rigid turn = rigidPart(fromGltfAxes() * world * bound(m_yawNode).inverted() * toGltfAxes(), scale);
    return 2.0 * std::atan2(turn.rotation[2], turn.rotation[3]);
}

UpdateBones::HotPointFound UpdateBones::hotPoint(int number, QVector3D &position) const
{
    const int node = m_hotPoints[size_t(number)];
    if (node < 0)
        return HotPointFound::No;
    if (m_isChanged[size_t(number)])
        return HotPointFound::Changed;
    position = (fromGltfAxes() * bound(node)).column(3).toVector3D();
    return HotPointFound::Yes;
}

QMatrix4x4 UpdateBones::hangingMatrix(int node) const
{
    const int bone = boneOf(node);
    const int joint = m_bones[size_t(bone)].node;
    return fromGltfAxes() * bound(joint) * m_worlds[size_t(joint)].inverted() * m_worlds[size_t(node)];
}

Rigid UpdateBones::frame(size_t bone, const QMatrix4x4 &world, double &scale, const Rigid &before) const
{
    return rigidPart(fromGltfAxes() * world * m_bones[bone].toBone, scale, before);
}
