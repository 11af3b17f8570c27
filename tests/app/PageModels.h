// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SampleModels.h"

/// Odd models for the property pages, with floats that no ordinary editor could show and indexes that point
/// nowhere.
namespace PageModels {
using namespace SampleModels;

/// Another odd float with every call.
inline float odd()
{
    static size_t next = 0;
    return oddFloats[next++ % oddFloats.size()];
}
inline QVector2D odd2()
{
    return {odd(), odd()};
}
inline QVector3D odd3()
{
    return {odd(), odd(), odd()};
}
inline QVector4D odd4()
{
    return {odd(), odd(), odd(), odd()};
}

/// Every float odd, every index out of range.
inline SkinnedMesh oddMesh()
{
    SkinnedMesh mesh = plainMesh();
    mesh.bbMin = odd3();
    mesh.bbMax = odd3();
    mesh.headTrackStart = 200;
    mesh.headTrackFactor = -128;
    for (SkinnedMeshNode &node : mesh.nodes)
        node = {{65535, 9}, odd3(), odd3(), 77, -1, 200, odd(), std::numeric_limits<qint32>::min()};
    mesh.hotPoints = {{odd3(), -1, 65535, 65535, 65535}, {odd3(), 5, 400, 0, 1}};
    mesh.surfaces = {
        {QStringLiteral("m\u00e4t\u00ff/") + QString(40000, QLatin1Char('x')), {65534, 7, 0, 1}}};
    for (SkinnedMeshVertex &vertex : mesh.vertices)
        vertex = {odd3(), odd2(), odd3(), 65535};
    return mesh;
}

inline AnimFile oddAnim()
{
    AnimFile file = plainAnim();
    for (AnimBlock &block : file.blocks) {
        block.animId = std::numeric_limits<qint32>::min();
        block.frameScale = odd();
        block.speed = odd();
        block.blendEnd = 65535;
        for (AnimNode &node : block.nodes)
            node = {odd3(), odd4(), 7, 65535};
        for (AnimFrame &frame : block.frames)
            frame.yawOffset = odd();
        for (int track = 0; track < 2; ++track) {
            for (int frame = 0; frame < block.frameCount(); ++frame) {
                block.translations.at(track, frame) = odd3();
                block.rotations.at(track, frame) = odd4();
            }
        }
        for (AnimAction &action : block.actions)
            action = {999, 65535, 70, odd3(), {odd(), odd(), odd(), odd(), odd(), odd(), odd(), odd()}};
        block.actions[0].eventType = 35;
    }
    return file;
}

inline StaticMesh oddStatic()
{
    StaticMesh mesh = plainStatic();
    mesh.bbMin = odd3();
    mesh.surfaces = {{QString(), {65535, 9, 2}}};
    for (StaticMeshVertex &vertex : mesh.vertices)
        vertex = {odd3(), odd2(), odd3()};
    return mesh;
}

} // namespace PageModels
