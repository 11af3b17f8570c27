// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfPose.h"

#include <algorithm>

namespace {
QQuaternion quaternionOf(const QVector4D &xyzw)
{
    return {xyzw.w(), xyzw.x(), xyzw.y(), xyzw.z()};
}

QVector4D valueAt(const GltfScene::Channel &channel, size_t index)
{
    const size_t width = channel.path == GltfScene::Path::Rotation ? 4 : 3;
    const float *from = channel.values->data() + index * width;
    return {from[0], from[1], from[2], width == 4 ? from[3] : 0.0f};
}

QVector4D sample(const GltfScene::Channel &channel, float seconds)
{
    const std::vector<float> &times = *channel.times;
    const bool isSpline = channel.interpolation == GltfScene::Interpolation::CubicSpline;
    const auto key = [&](size_t index) { return valueAt(channel, isSpline ? 3 * index + 1 : index); };
    const auto after = std::upper_bound(times.begin(), times.end(), seconds);
    if (after == times.begin())
        return key(0);
    const size_t from = size_t(after - times.begin()) - 1;
    if (after == times.end() || channel.interpolation == GltfScene::Interpolation::Step)
        return key(from);
    const float length = times[from + 1] - times[from];
    const float t = (seconds - times[from]) / length; // two keys of one time are never neighbours here
    if (isSpline) {
        const float t2 = t * t;
        const float t3 = t2 * t;
        return (2.0f * t3 - 3.0f * t2 + 1.0f) * key(from) +
               length * (t3 - 2.0f * t2 + t) * valueAt(channel, 3 * from + 2) +
               (3.0f * t2 - 2.0f * t3) * key(from + 1) +
               length * (t3 - t2) * valueAt(channel, 3 * (from + 1));
    }
    if (channel.path == GltfScene::Path::Rotation) {
        const QQuaternion turn = QQuaternion::slerp(quaternionOf(key(from)), quaternionOf(key(from + 1)), t);
        return {turn.x(), turn.y(), turn.z(), turn.scalar()};
    }
    return key(from) + t * (key(from + 1) - key(from));
}
} // namespace

GltfPose::GltfPose(const GltfScene &scene)
    : m_scene(scene)
    , m_channels(scene.nodes.size())
    , m_worlds(scene.nodes.size())
{}

void GltfPose::setAnimation(const GltfScene::Animation *animation)
{
    m_channels.assign(m_scene.nodes.size(), {});
    if (!animation)
        return;
    for (const GltfScene::Channel &channel : animation->channels)
        m_channels[size_t(channel.node)][size_t(channel.path)] = &channel;
}

const std::vector<QMatrix4x4> &GltfPose::at(float seconds)
{
    for (const int index : m_scene.order) {
        const GltfScene::Node &node = m_scene.nodes[size_t(index)];
        const auto &[moves, turns, scales] = m_channels[size_t(index)];
        QMatrix4x4 local;
        if (node.hasMatrix && !moves && !turns && !scales) {
            local = node.matrix;
        } else {
            local.translate(moves ? sample(*moves, seconds).toVector3D() : node.translation);
            local.rotate(turns ? quaternionOf(sample(*turns, seconds)).normalized() : node.rotation);
            local.scale(scales ? sample(*scales, seconds).toVector3D() : node.scale);
        }
        m_worlds[size_t(index)] = node.parent >= 0 ? m_worlds[size_t(node.parent)] * local : local;
    }
    return m_worlds;
}
