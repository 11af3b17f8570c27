// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfPose.h"
#include "GltfReader.h"
#include "ImportMessages.h"
#include "OddRig.h"
#include "Playback.h"
#include "PosedMesh.h"
#include "StaticMesh.h"
#include "UpdateAccount.h"
#include "UpdateBones.h"

#include <functional>

/// Hip, spine and arm, each with two triangles; of the clips one walks and turns, the other one nods. All
/// numbers are such as rigs have.
inline SkinnedMesh rig()
{
    SkinnedMesh mesh;
    mesh.version = 2;
    mesh.nodes.resize(3);
    mesh.nodes[0].childNodes = {1};
    mesh.nodes[1].childNodes = {2};
    mesh.nodes[1].parentNode = 0;
    mesh.nodes[2].parentNode = 1;
    mesh.nodes[2].bbMax = {9.0f, 9.0f, 9.0f};
    mesh.bbMax = {77.0f, 0.0f, 0.0f};
    mesh.hotPoints = {{{1.0f, 2.0f, 3.0f}, 5, 2, 7, 8}};
    mesh.surfaces = {{QStringLiteral("materials/mat_rig/skin"), {}},
                     {QStringLiteral("materials/mat_rig/cloth"), {}}};
    for (int i = 0; i < 12; ++i) {
        const auto at = float(i % 4);
        mesh.vertices.push_back({{10.0f * at, float(i * i % 7), 20.0f - 3.0f * at},
                                 {0.05f * float(i), 0.3f + 0.01f * float(i)},
                                 QVector3D(1.0f, at, -1.0f).normalized(),
                                 quint16(i / 4)});
    }
    for (const int first : {0, 4, 8}) {
        std::vector<quint16> &triangles = mesh.surfaces[first == 4 ? 1 : 0].triangleIndexes;
        for (const int corner : {0, 1, 2, 2, 1, 3})
            triangles.push_back(quint16(first + corner));
    }
    return mesh;
}

inline AnimFile clips()
{
    AnimFile anim;
    anim.version = 2;
    AnimBlock walk = blockOf(12, 3, 9);
    walk.speed = 30.0f;
    for (size_t i = 0; i < 3; ++i) {
        walk.nodes[i].initialPosition = {0.0f, 5.0f, 60.0f};
        walk.nodes[i].initialRotation = about({0.3f, 1.0f, float(i)}, 20.0f);
    }
    walk.setTranslationCount(1);
    walk.setRotationCount(2);
    for (int frame = 0; frame < 9; ++frame) {
        walk.translations.at(0, frame) = {float(frame), -2.0f * float(frame % 3), 61.5f};
        walk.rotations.at(0, frame) = about({0.0f, 1.0f, 0.2f}, 9.0f * float(frame));
        walk.rotations.at(1, frame) = about({1.0f, 0.0f, 0.0f}, -25.0f + 4.0f * float(frame));
        walk.frames[size_t(frame)].yawOffset = 0.2f * float(frame);
    }
    walk.nodes[0].translationIndex = 0;
    walk.nodes[1].rotationIndex = walk.nodes[2].rotationIndex = 0;
    walk.actions = {{2, 26, 1, {1.0f, 2.0f, 3.0f}, {}}};
    walk.loopFrame = 3;
    AnimBlock nod = walk;
    nod.animId = 40;
    nod.nodes[1].rotationIndex = 1;
    nod.nodes[0].rotationIndex = 0;
    for (AnimFrame &frame : nod.frames)
        frame = {};
    anim.blocks = {walk, nod};
    return anim;
}

inline int nodeNamed(const GltfScene &scene, const QString &name)
{
    for (size_t i = 0; i < scene.nodes.size(); ++i) {
        if (scene.nodes[i].name == name)
            return int(i);
    }
    return -1;
}

/// What is left of a line's kind and text, to be looked for.
inline QStringList told(const UpdateAccount &account)
{
    static const char *const kinds[] = {"changed ", "new ", "missing ", "note "};
    QStringList lines;
    for (const UpdateLine &line : account.lines)
        lines += QLatin1String(kinds[line.kind]) + line.text;
    return lines;
}

inline void setKeys(GltfScene::Channel &channel, const std::function<void(std::vector<float> &)> &change)
{
    std::vector<float> values = *channel.values;
    change(values);
    channel.values = std::make_shared<const std::vector<float>>(values);
}

/// Plays a clip `factor` times as long, and later by `shift` seconds.
inline void setTimes(GltfScene::Animation &clip, float factor, float shift)
{
    for (GltfScene::Channel &channel : clip.channels) {
        std::vector<float> times = *channel.times;
        for (float &time : times)
            time = factor * time + shift;
        channel.times = std::make_shared<const std::vector<float>>(times);
    }
}

/// How far any vertex of a clip, skinned by the book, is from the nearest one of the model in its block.
inline float distance(const GltfScene &scene, size_t clip, const SkinnedMesh &mesh, const AnimFile &anim,
                      int block)
{
    GltfPose pose(scene);
    pose.setAnimation(&scene.animations[clip]);
    Playback state;
    state.mesh = &mesh;
    state.anim = &anim;
    state.blockIndex = block;
    state.playState = PlayState::Paused;
    float worst = 0.0f;
    float start = 0.0f;
    for (const GltfScene::Channel &channel : scene.animations[clip].channels)
        start = std::min(start, channel.times->front());
    for (int frame = 0; frame < anim.blocks[size_t(block)].frameCount(); ++frame) {
        state.time = float(frame) / anim.blocks[size_t(block)].speed;
        const StaticMesh shown = posedMesh(mesh, state);
        const std::vector<QMatrix4x4> &worlds = pose.at(start + state.time);
        for (const GltfScene::Node &node : scene.nodes) {
            if (node.mesh < 0 || node.skin < 0)
                continue;
            const GltfScene::Skin &skin = scene.skins[size_t(node.skin)];
            for (const GltfScene::Primitive &primitive : scene.meshes[size_t(node.mesh)]) {
                for (const quint32 i : primitive.indices) {
                    const auto joint = size_t(primitive.joints[i]);
                    const QVector3D at = fromGltfAxes() * worlds[size_t(skin.joints[joint])] *
                                         skin.inverseBinds[joint] * primitive.positions[i];
                    float nearest = 1.0e9f;
                    for (const StaticMeshVertex &vertex : shown.vertices)
                        nearest = std::min(nearest, (vertex.position - at).length());
                    worst = std::max(worst, nearest);
                }
            }
        }
    }
    return worst;
}

inline QByteArray exported(const SkinnedMesh &mesh, const AnimFile &anim)
{
    ImportMessages messages;
    return exportGltf(mesh, &anim, allBlocks(anim), named("rig"), messages).glb();
}

inline GltfScene read(const QByteArray &glb)
{
    GltfScene scene;
    QString reason;
    if (readGltf(
            glb, [](const QString &) { return QByteArray(); }, scene, reason))
        qFatal("%s", qPrintable(reason));
    return scene;
}
