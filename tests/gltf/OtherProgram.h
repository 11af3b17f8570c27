// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfScene.h"

#include <QRegularExpression>

#include <cmath>

/// What a program for modelling makes of a file that it reads and writes again, unedited.
namespace OtherProgram {
inline QVector4D parts(const QQuaternion &q)
{
    return {q.x(), q.y(), q.z(), q.scalar()};
}

inline QQuaternion turn(const float *xyzw)
{
    return {xyzw[3], xyzw[0], xyzw[1], xyzw[2]};
}

/// The axes that it gives a joint, in the joint's own.
inline QQuaternion axesOf(const GltfScene &scene, int node)
{
    for (const GltfScene::Skin &skin : scene.skins) {
        for (const int joint : skin.joints) {
            if (joint == node)
                return QQuaternion::fromAxisAndAngle(1.0f, float(node % 3), -2.0f,
                                                     40.0f + 17.0f * float(node));
        }
    }
    return {};
}

inline void turnAxes(GltfScene &scene)
{
    const auto outer = [&scene](int node) {
        const int parent = scene.nodes[size_t(node)].parent;
        return parent >= 0 ? axesOf(scene, parent).conjugated() : QQuaternion();
    };
    for (size_t i = 0; i < scene.nodes.size(); ++i) {
        GltfScene::Node &node = scene.nodes[i];
        node.translation = outer(int(i)).rotatedVector(node.translation);
        node.rotation = outer(int(i)) * node.rotation * axesOf(scene, int(i));
    }
    for (GltfScene::Animation &animation : scene.animations) {
        for (GltfScene::Channel &channel : animation.channels) {
            std::vector<float> values = *channel.values;
            const bool turns = channel.path == GltfScene::Path::Rotation;
            for (size_t i = 0; i < values.size(); i += turns ? 4 : 3) {
                const QVector4D value =
                    turns ? parts(outer(channel.node) * turn(&values[i]) * axesOf(scene, channel.node))
                          : outer(channel.node)
                                .rotatedVector({values[i], values[i + 1], values[i + 2]})
                                .toVector4D();
                for (size_t k = 0; k < (turns ? 4 : 3); ++k)
                    values[i + k] = value[int(k)];
            }
            channel.values = std::make_shared<const std::vector<float>>(values);
        }
    }
    for (GltfScene::Skin &skin : scene.skins) {
        for (size_t i = 0; i < skin.joints.size(); ++i) {
            QMatrix4x4 back;
            back.rotate(axesOf(scene, skin.joints[i]).conjugated());
            skin.inverseBinds[i] = back * skin.inverseBinds[i];
        }
    }
}

/// Vertices of skins stand in the scene's space, each corner for itself and in another order; normals are as
/// good as 16 bits make them.
inline void splitVertices(GltfScene &scene)
{
    const QMatrix4x4 upright(1, 0, 0, 0, 0, 0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1);
    const QMatrix4x4 space = scene.skins.empty() ? QMatrix4x4() : upright;
    for (GltfScene::Skin &skin : scene.skins) {
        for (QMatrix4x4 &bind : skin.inverseBinds)
            bind = bind * space.inverted();
    }
    for (std::vector<GltfScene::Primitive> &mesh : scene.meshes) {
        for (GltfScene::Primitive &primitive : mesh) {
            GltfScene::Primitive split;
            split.material = primitive.material;
            const size_t count = primitive.indices.size();
            for (size_t i = count; i-- > 0;) {
                const quint32 index = primitive.indices[i];
                const QVector3D normal = space.mapVector(primitive.normals[index]);
                split.positions.push_back(space.map(primitive.positions[index]));
                split.normals.emplace_back(std::round(normal.x() * 8192.0f) / 8192.0f, normal.y(),
                                           std::round(normal.z() * 8192.0f) / 8192.0f);
                split.uvs.push_back(primitive.uvs[index]);
                if (!primitive.joints.empty())
                    split.joints.push_back(primitive.joints[index]);
            }
            for (size_t i = 0; i + 2 < count; i += 3) {
                for (const size_t corner : {i + 1, i + 2, i})
                    split.indices.push_back(quint32(count - 1 - corner));
            }
            primitive = split;
        }
    }
}

/// Keys at its own rate up to the last one before the end, straight between those of the file.
inline void resample(GltfScene &scene, float rate)
{
    for (GltfScene::Animation &animation : scene.animations) {
        for (GltfScene::Channel &channel : animation.channels) {
            const std::vector<float> &times = *channel.times;
            const std::vector<float> &values = *channel.values;
            const size_t width = values.size() / times.size();
            std::vector<float> ownTimes;
            std::vector<float> ownValues;
            for (int i = 0; float(i) / rate <= times.back() + 1.0e-5f; ++i) {
                const float time = float(i) / rate;
                size_t to = 0;
                while (to + 1 < times.size() && times[to] < time)
                    ++to;
                const size_t from = to > 0 ? to - 1 : 0;
                const float length = times[to] - times[from];
                const float t = length > 0.0f ? std::min(1.0f, (time - times[from]) / length) : 0.0f;
                ownTimes.push_back(time);
                for (size_t k = 0; k < width; ++k) {
                    const float a = values[from * width + k];
                    ownValues.push_back(a + t * (values[to * width + k] - a));
                }
            }
            channel.times = std::make_shared<const std::vector<float>>(ownTimes);
            channel.values = std::make_shared<const std::vector<float>>(ownValues);
        }
    }
}

/// All of it. What a file notes of animations gets lost, and so may everything else that it notes.
inline void passThrough(GltfScene &scene, float rate, bool keepsExtras = true)
{
    turnAxes(scene);
    splitVertices(scene);
    resample(scene, rate);
    for (GltfScene::Animation &animation : scene.animations) {
        animation.extras = {};
        animation.name += QStringLiteral("_Armature");
    }
    for (size_t i = 0; !keepsExtras && i < scene.nodes.size(); ++i)
        scene.nodes[i].extras = {};
    for (size_t i = 0; !keepsExtras && i < scene.materials.size(); ++i) {
        scene.materials[i].extras = {};
        scene.materials[i].name += QStringLiteral(".%1").arg(int(i), 3, 10, QLatin1Char('0'));
    }
}
} // namespace OtherProgram
