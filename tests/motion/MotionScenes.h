// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BinaryFileWriter.h"
#include "BoneRig.h"
#include "KeyBlend.h"
#include "MotionCommand.h"
#include "Pose.h"
#include "ReferenceIds.h"
#include "SampleModels.h"
#include "TestSupport.h"
#include "Validation.h"

/// Skeletons and animations that are told by a few numbers, and how they are compared.
namespace MotionScenes {
using namespace Motion;
inline const std::atomic_bool going{false};

inline constexpr float Step = 0.1f; ///< radians of yaw a frame

inline QVector4D turnAbout(const QVector3D &axis, double degrees)
{
    return QQuaternion::fromAxisAndAngle(axis, float(degrees)).toVector4D();
}

/// One bone that moves along x by 1 a frame, turns about z by 10 degrees a frame, in so many frames.
inline AnimBlock lineBlock(int frames, quint16 loopFrame = None)
{
    AnimBlock block;
    block.nodes.resize(1);
    block.nodes[0].translationIndex = block.nodes[0].rotationIndex = 0;
    block.frames.resize(static_cast<size_t>(frames));
    block.translations = {1, frames};
    block.rotations = {1, frames};
    for (int frame = 0; frame < frames; ++frame) {
        block.frames[size_t(frame)].yawOffset = Step * float(frame);
        block.translations.at(0, frame) = {float(frame), 10.0f, -0.0f};
        // Every other quaternion is the other one of its rotation.
        block.rotations.at(0, frame) = turnAbout({0, 0, 1}, 10.0 * frame) * (frame % 2 == 0 ? 1.0f : -1.0f);
    }
    block.speed = 10;
    block.loopFrame = loopFrame;
    block.blendLength = 5;
    block.blendEnd = quint16(std::max(frames - 1, 0));
    for (const int frame : {0, 1, frames - 1, frames + 3}) {
        block.actions.push_back({});
        block.actions.back().frame = quint16(std::max(frame, 0));
    }
    return block;
}

inline QVector<int> actionFrames(const AnimBlock &block)
{
    QVector<int> frames;
    for (const AnimAction &action : block.actions)
        frames.append(action.frame);
    return frames;
}

inline double degreesBetween(const QVector4D &a, const QVector4D &b)
{
    return angleBetween(Turn::of(a), Turn::of(b)) * 180 / M_PI;
}

/// Where bones stand at a frame, the yaw of the whole model included, as the view has it.
inline std::vector<QMatrix4x4> posed(const SkinnedMesh &mesh, const AnimBlock &block, int frame)
{
    PoseEvaluator evaluator;
    BonePalette palette(mesh.nodes.size());
    Playback state;
    state.playState = PlayState::Paused;
    state.time = float(frame) / playRate(block.speed);
    QQuaternion yaw;
    evaluator.evaluateAnimatedPose(palette, mesh, block, state, yaw);
    QMatrix4x4 turn;
    turn.rotate(yaw);
    for (QMatrix4x4 &matrix : palette)
        matrix = turn * matrix;
    return palette;
}

inline double difference(const QMatrix4x4 &a, const QMatrix4x4 &b)
{
    double most = 0;
    for (int i = 0; i < 16; ++i)
        most = std::max(most, std::abs(double(a.constData()[i]) - double(b.constData()[i])));
    return most;
}

/// What a mirror in the plane x = 0 makes of a bone's matrix, the bone's own axes mirrored too.
inline QMatrix4x4 inMirror(const QMatrix4x4 &matrix)
{
    QMatrix4x4 mirror;
    mirror.scale(-1, 1, 1);
    return mirror * matrix * mirror;
}

/// A trunk, two arms that begin mirrored with axes of their own, a forearm on each, and a tail in the middle
/// with nothing to tell the sides.
inline SkinnedMesh body()
{
    SkinnedMesh mesh;
    mesh.nodes.resize(6);
    mesh.nodes[0].childNodes = {1, 2, 5};
    mesh.nodes[1].childNodes = {3};
    mesh.nodes[2].childNodes = {4};
    mesh.nodes[0].symbolFlags = qint8(0xC0);
    mesh.nodes[1].symbolFlags = 0x42;
    mesh.nodes[2].symbolFlags = 0x46;
    mesh.nodes[3].symbolFlags = qint8(0x82);
    mesh.nodes[4].symbolFlags = qint8(0x86);
    return mesh;
}

inline AnimBlock bodyBlock(int frames)
{
    AnimBlock block;
    block.nodes.resize(6);
    block.nodes[0].initialPosition = {0, 0, 50};
    block.nodes[1].initialPosition = {20, 0, 30};
    block.nodes[2].initialPosition = {-20, 0, 30};
    block.nodes[1].initialRotation = turnAbout({0, 1, 0}, 90);
    block.nodes[2].initialRotation = turnAbout({1, 0, 0}, 40); // other axes than a mirror would give
    // Both forearms stand 30 units further out: (50, 0, 80) and (-50, 0, 80).
    block.nodes[3].initialPosition = {0, 0, 30};
    const QVector3D outwards =
        QQuaternion::fromAxisAndAngle(QVector3D(1, 0, 0), -40).rotatedVector({-30, 0, 0});
    block.nodes[4].initialPosition = outwards;
    block.nodes[4].initialRotation = turnAbout({0, 0, 1}, 70);
    block.nodes[5].initialPosition = {0, 10, 0};
    block.frames.resize(static_cast<size_t>(frames));
    block.translations = {2, frames};
    block.rotations = {2, frames};
    block.nodes[0].translationIndex = 0;
    block.nodes[0].rotationIndex = 0;
    block.nodes[1].rotationIndex = 1;
    block.nodes[3].rotationIndex = 1; // shared
    block.nodes[3].translationIndex = 1;
    block.loopFrame = 0;
    block.speed = 10;
    for (int frame = 0; frame < frames; ++frame) {
        const float part = float(frame) / float(frames);
        block.frames[size_t(frame)].yawOffset = 0.3f * part;
        block.translations.at(0, frame) = {5 * part, 3, 50 + 4 * part};
        block.translations.at(1, frame) = {2 * part, -part, 30 + part};
        block.rotations.at(0, frame) = (QQuaternion::fromAxisAndAngle({0, 0, 1}, 200 * part) *
                                        QQuaternion::fromAxisAndAngle({1, 0, 0}, 30 * part))
                                           .toVector4D();
        block.rotations.at(1, frame) = turnAbout({0.6f, 0, 0.8f}, 80 * part);
    }
    block.actions.resize(2);
    block.actions[0].node = 3;
    block.actions[0].offset = {1, 2, 3};
    block.actions[1].offset = {4, 5, 6};
    return block;
}

/// Every command with numbers that fit any animation that moves.
inline const std::vector<std::pair<const char *, Command>> &allCommands()
{
    static const std::vector<std::pair<const char *, Command>> all{
        {"twice the frames", Resample{200, 0, true}},
        {"another rate", Resample{0, 24, false}},
        {"fewer frames", Resample{5, 0, true}},
        {"reverse", Reverse{}},
        {"trim", Trim{1, 4}},
        {"shift", Shift{3, Shift::Around::Loops}},
        {"shift round", Shift{-2, Shift::Around::Always}},
        {"close loop", CloseLoop{3}},
        {"mirror", Mirror{}},
        {"extract yaw", ExtractYaw{}},
        {"apply yaw", ApplyYaw{}},
        {"remove unused", RemoveUnusedTracks{}},
        {"join equal", JoinEqualTracks{}},
        {"renumber", RenumberIds{{{10, 11}, {11, 10}}, 1000}},
    };
    return all;
}

/// How often each rule finds something.
inline QMap<int, qint64> countedFindings(const AnimFile &file, const SkinnedMesh &mesh)
{
    QMap<int, qint64> counts;
    for (const Finding &finding : validate(file, &mesh, ReferenceIds::load()))
        counts[int(finding.rule)] += std::max<qint64>(finding.notListed, 1);
    return counts;
}
} // namespace MotionScenes
