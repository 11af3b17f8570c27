// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "GltfExport.h"
#include "SkinnedMesh.h"

#include <QQuaternion>

inline QVector4D about(const QVector3D &axis, float degrees, float length = 1.0f)
{
    return QQuaternion::fromAxisAndAngle(axis, degrees).toVector4D() * length;
}

inline AnimBlock blockOf(int id, int bones, int frames)
{
    AnimBlock block;
    block.animId = id;
    block.speed = 15.0f;
    block.nodes.resize(size_t(bones));
    block.setFrameCount(frames);
    return block;
}

/// Five bones: 3 hangs on 0 and on 1, whose child it is in a pose; nothing reaches 4. Two surfaces share
/// vertices.
inline SkinnedMesh oddMesh()
{
    SkinnedMesh mesh;
    mesh.version = 2;
    mesh.bbMax = {1.0f, 2.0f, 3.0f};
    mesh.unknownB = -7;
    mesh.nodes.resize(5);
    mesh.nodes[0].childNodes = {3, 2, 1};
    mesh.nodes[1].childNodes = {3, 0, 99};
    mesh.nodes[2].damageScale = 10.0f;
    mesh.hotPoints = {{{1.0f, 2.0f, 3.0f}, 5, 3, 0xFFFF, 64}, {{4.0f, 5.0f, 6.0f}, 0, 77, 1, 2}};
    for (int i = 0; i < 7; ++i) {
        const auto at = float(i);
        mesh.vertices.push_back({{at, at * at, 1.0f - at},
                                 {0.25f * at, 0.1f * at},
                                 QVector3D(1.0f, at, 0.5f),
                                 quint16(i < 5 ? i : 3)});
    }
    mesh.vertices[5].normal = {};
    mesh.surfaces = {{QStringLiteral("materials/m/first"), {4, 0, 1, 6, 5, 3}},
                     {QStringLiteral("materials/m/empty"), {}},
                     {QStringLiteral("materials/m/other"), {5, 1, 2, 0, 1, 90, 3}}};
    return mesh;
}

/// What the format leaves to files: tracks that bones share, quaternions of any length and sign, offsets of
/// yaw, speeds that are none, blocks of one frame and of fewer bones.
inline AnimFile oddAnim()
{
    AnimFile anim;
    anim.version = 2;
    AnimBlock walk = blockOf(12, 5, 4);
    for (size_t i = 0; i < walk.nodes.size(); ++i) {
        walk.nodes[i].initialPosition = {10.0f * float(i), 1.0f, -2.0f};
        walk.nodes[i].initialRotation = about({1.0f, float(i), 0.0f}, 40.0f, 0.5f);
    }
    walk.setTranslationCount(1);
    walk.setRotationCount(2);
    for (int frame = 0; frame < 4; ++frame) {
        walk.translations.at(0, frame) = {0.1f * float(frame), -3.0f, 1.0f / 3.0f};
        walk.rotations.at(0, frame) =
            about({0.0f, 0.0f, 1.0f}, 50.0f * float(frame), frame % 2 ? -2.0f : 1.0f);
        walk.rotations.at(1, frame) = {};
        walk.frames[size_t(frame)].yawOffset = 2.5f * float(frame);
    }
    walk.nodes[0].translationIndex = walk.nodes[1].translationIndex = 0;
    walk.nodes[1].rotationIndex = walk.nodes[3].rotationIndex = 0;
    walk.nodes[2].rotationIndex = 1;
    walk.actions = {{2, 26, 1, {1.0f, 2.0f, 3.0f}, {}}};

    AnimBlock slow = blockOf(12, 5, 3); // the same id, the same rest, nothing that turns
    slow.speed = 0.25f;
    slow.nodes = walk.nodes;
    for (AnimNode &node : slow.nodes)
        node.translationIndex = node.rotationIndex = 0xFFFF;

    AnimBlock pose = walk; // one frame: its tracks and its yaw do not show
    pose.animId = -3;
    pose.setFrameCount(1);
    pose.nodes[2].initialPosition = {};

    AnimBlock fewer = slow;
    fewer.animId = 40;
    fewer.nodes.resize(3);
    fewer.nodes[1].initialRotation = about({0.0f, 1.0f, 0.0f}, 90.0f);
    anim.blocks = {walk, slow, pose, fewer};
    return anim;
}

inline GltfSource named(const QString &name)
{
    GltfSource source;
    source.name = name;
    return source;
}
