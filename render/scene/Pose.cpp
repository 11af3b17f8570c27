// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Pose.h"

#include "AnimFile.h"
#include "SkinnedMesh.h"

#include <algorithm>

namespace {
constexpr float DegreesPerRadian = 57.29578f;

QQuaternion toQuaternion(const QVector4D &xyzw)
{
    return {xyzw.w(), xyzw.x(), xyzw.y(), xyzw.z()};
}

/// Translate x rotate; bones have no scale of their own. The zero quaternion gives no rotation.
QMatrix4x4 boneMatrix(const QVector3D &position, const QQuaternion &rotation)
{
    const QMatrix3x3 r = rotation.normalized().toRotationMatrix();
    return QMatrix4x4(r(0, 0), r(0, 1), r(0, 2), position.x(), //
                      r(1, 0), r(1, 1), r(1, 2), position.y(), //
                      r(2, 0), r(2, 1), r(2, 2), position.z(), //
                      0.0f, 0.0f, 0.0f, 1.0f);
}

QMatrix4x4 initialMatrix(const AnimNode &node)
{
    return boneMatrix(node.initialPosition, toQuaternion(node.initialRotation));
}

QMatrix4x4 animatedMatrix(const AnimBlock &block, const AnimNode &node, const FrameChoice &at)
{
    QVector3D position = node.initialPosition;
    const int translation = node.translationIndex;
    if (block.translations.contains(translation, at.next)) {
        const QVector3D &from = block.translations.at(translation, at.frame);
        position = (block.translations.at(translation, at.next) - from) * at.t + from;
    }

    QQuaternion turn = toQuaternion(node.initialRotation);
    const int rotation = node.rotationIndex;
    if (block.rotations.contains(rotation, at.next)) {
        turn = QQuaternion::slerp(toQuaternion(block.rotations.at(rotation, at.frame)),
                                  toQuaternion(block.rotations.at(rotation, at.next)), at.t);
    }
    return boneMatrix(position, turn);
}

QQuaternion yawOf(const AnimFrame &frame)
{
    return QQuaternion::fromEulerAngles(0.0f, 0.0f, -frame.yawOffset * DegreesPerRadian);
}
} // namespace

// Walking every child list backwards and posing each bone once leaves every bone as the last of its visits
// in list order would, in linear time: a plain recursion takes one visit per path, which is exponential in
// a mesh that names children twice, and as deep as the longest chain.
template <typename Take>
void PoseEvaluator::walk(const SkinnedMesh &mesh, size_t bones, Take take)
{
    if (bones == 0)
        return;
    m_visited.resize(bones, 0);
    m_path.reserve(bones);
    if (++m_walk == 0) {
        std::fill(m_visited.begin(), m_visited.end(), 0);
        m_walk = 1;
    }

    const auto enter = [&](size_t bone) {
        m_visited[bone] = m_walk;
        m_path.push_back({quint32(bone), quint32(mesh.nodes[bone].childNodes.size())});
    };
    m_path.clear();
    take(size_t(0), NoParent);
    enter(0);
    while (!m_path.empty()) {
        Visit &visit = m_path.back();
        if (visit.childrenLeft == 0) {
            m_path.pop_back();
            continue;
        }
        const size_t child = mesh.nodes[visit.bone].childNodes[--visit.childrenLeft];
        if (child >= bones || m_visited[child] == m_walk)
            continue;
        take(child, int(visit.bone));
        enter(child);
    }
}

template <typename LocalMatrix>
void PoseEvaluator::compose(BonePalette &palette, const SkinnedMesh &mesh, const AnimBlock &block,
                            LocalMatrix local)
{
    const size_t bones = std::min({mesh.nodes.size(), block.nodes.size(), palette.size()});
    walk(mesh, bones, [&](size_t bone, int parent) {
        palette[bone] = parent == NoParent ? local(block.nodes[bone])
                                           : palette[size_t(parent)] * local(block.nodes[bone]);
    });
}

int PoseEvaluator::evaluateAnimatedPose(BonePalette &palette, const SkinnedMesh &mesh, const AnimBlock &block,
                                        Playback &state, QQuaternion &yaw)
{
    if (block.frameCount() < 2) {
        evaluateInitialPose(palette, mesh, block);
        return NoFrame;
    }
    const FrameChoice at = chooseFrame(block, state.playState, state.forceLoop, state.time);
    yaw =
        QQuaternion::nlerp(yawOf(block.frames[size_t(at.frame)]), yawOf(block.frames[size_t(at.next)]), at.t);
    compose(palette, mesh, block, [&](const AnimNode &node) { return animatedMatrix(block, node, at); });
    return at.frame;
}

void PoseEvaluator::evaluateInitialPose(BonePalette &palette, const SkinnedMesh &mesh, const AnimBlock &block)
{
    compose(palette, mesh, block, [](const AnimNode &node) { return initialMatrix(node); });
}

std::vector<int> PoseEvaluator::parents(const SkinnedMesh &mesh)
{
    std::vector<int> found(mesh.nodes.size(), NotReached);
    walk(mesh, mesh.nodes.size(), [&](size_t bone, int parent) { found[bone] = parent; });
    return found;
}
