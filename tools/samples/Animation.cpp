// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Animation.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr float FramesPerSecond = 30.0f;
constexpr float Degrees = 57.29578f;

template <typename Key>
bool isConstant(const std::vector<Key> &keys, const Key &value)
{
    return std::all_of(keys.begin(), keys.end(),
                       [&](const Key &key) { return (key - value).length() < 1e-5f; });
}

template <typename Key>
quint16 addTrack(TrackTable<Key> &table, const std::vector<Key> &keys, const Key &rest)
{
    if (isConstant(keys, rest))
        return 0xFFFF;
    const int track = table.trackCount();
    table.setTrackCount(track + 1, rest);
    for (int frame = 0; frame < int(keys.size()); ++frame)
        table.at(track, frame) = keys[size_t(frame)];
    return quint16(track);
}

QQuaternion boneRotation(const QMatrix4x4 &matrix)
{
    return QQuaternion::fromRotationMatrix(matrix.toGenericMatrix<3, 3>());
}
} // namespace

void Pose::turn(int bone, float x, float y, float z)
{
    turns[size_t(bone)] = turns[size_t(bone)] * QQuaternion::fromAxisAndAngle(0, 0, 1, z) *
                          QQuaternion::fromAxisAndAngle(0, 1, 0, y) *
                          QQuaternion::fromAxisAndAngle(1, 0, 0, x);
}

void Pose::move(int bone, float x, float y, float z)
{
    moves[size_t(bone)] += QVector3D(x, y, z);
}

AnimBlock makeBlock(const Figure &figure, int animId, int frameCount, const std::function<Pose(int)> &poseAt)
{
    AnimBlock block;
    block.animId = animId;
    block.blendLength = 5;
    block.blendEnd = quint16(frameCount - 1);
    block.speed = FramesPerSecond;
    std::vector<Pose> poses;
    for (int frame = 0; frame < frameCount; ++frame) {
        poses.push_back(poseAt(frame));
        block.frames.push_back({poses.back().yaw});
    }
    block.translations = TrackTable<QVector3D>(0, frameCount);
    block.rotations = TrackTable<QVector4D>(0, frameCount);
    for (size_t i = 0; i < figure.bones.size(); ++i) {
        const Bone &bone = figure.bones[i];
        std::vector<QVector3D> positions;
        std::vector<QVector4D> rotations;
        for (const Pose &pose : poses) {
            positions.push_back(bone.position + pose.moves[i]);
            QVector4D rotation = (bone.rotation * pose.turns[i]).normalized().toVector4D();
            // q and -q are the same rotation; neighbours on one side blend without a detour.
            const QVector4D before = rotations.empty() ? bone.rotation.toVector4D() : rotations.back();
            if (QVector4D::dotProduct(rotation, before) < 0.0f)
                rotation = -rotation;
            rotations.push_back(rotation);
        }
        AnimNode node;
        node.initialPosition = bone.position;
        node.initialRotation = bone.rotation.toVector4D();
        node.translationIndex = addTrack(block.translations, positions, node.initialPosition);
        node.rotationIndex = addTrack(block.rotations, rotations, node.initialRotation);
        block.nodes.push_back(node);
    }
    return block;
}

float curve(std::initializer_list<std::pair<float, float>> keys, float time)
{
    const auto *after =
        std::find_if(keys.begin(), keys.end(), [&](const auto &key) { return key.first > time; });
    if (after == keys.begin())
        return after->second;
    const auto *before = after - 1;
    if (after == keys.end())
        return before->second;
    return before->second + (after->second - before->second) * smoothStep(before->first, after->first, time);
}

std::vector<QMatrix4x4> poseMatrices(const Figure &figure, const Pose &pose)
{
    Figure posed;
    posed.bones = figure.bones;
    for (size_t i = 0; i < posed.bones.size(); ++i) {
        posed.bones[i].position += pose.moves[i];
        posed.bones[i].rotation = posed.bones[i].rotation * pose.turns[i];
    }
    return posed.restMatrices();
}

void placeFoot(const Figure &figure, Pose &pose, const Leg &leg, const QVector3D &ankle, float pitch)
{
    const std::vector<QMatrix4x4> matrices = poseMatrices(figure, pose);
    const size_t pelvis = size_t(figure.bones[size_t(leg.upper)].parent);
    const QVector3D hip = matrices[pelvis] * figure.bones[size_t(leg.upper)].position;
    const QVector3D way = ankle - hip;
    const float a = leg.upperLength, b = leg.lowerLength;
    const float reach = std::clamp(way.length(), std::abs(a - b) + 0.5f, a + b - 0.05f);
    const float hipAngle =
        std::acos(std::clamp((a * a + reach * reach - b * b) / (2 * a * reach), -1.0f, 1.0f));
    const float kneeAngle = std::acos(std::clamp((a * a + b * b - reach * reach) / (2 * a * b), -1.0f, 1.0f));

    // The leg's plane holds the way to the ankle and the pelvis's forward direction.
    const QQuaternion pelvisRotation = boneRotation(matrices[pelvis]);
    const QVector3D up = -way.normalized();
    const QVector3D right = QVector3D::crossProduct(pelvisRotation.rotatedVector({0, 1, 0}), up).normalized();
    const QQuaternion straight = QQuaternion::fromAxes(right, QVector3D::crossProduct(up, right), up);
    const QQuaternion upper = straight * QQuaternion::fromAxisAndAngle(1, 0, 0, -hipAngle * Degrees);
    const QQuaternion bend = QQuaternion::fromAxisAndAngle(1, 0, 0, 180.0f - kneeAngle * Degrees);
    pose.turns[size_t(leg.upper)] = pelvisRotation.conjugated() * upper;
    pose.turns[size_t(leg.lower)] = bend;
    pose.turns[size_t(leg.foot)] =
        (upper * bend).conjugated() * QQuaternion::fromAxisAndAngle(1, 0, 0, pitch);
}
