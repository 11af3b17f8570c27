// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SceneAnimations.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {
/// Actions name their frame with 16 bits.
constexpr double FrameLimit = 65535.0;
/// Animation translations are fixed point: 256 to one unit of the model.
constexpr float UnitsPerModelUnit = 256.0f;
constexpr int BlendLength = 5;

int frameCount(const SceneSource &source, const aiAnimation &animation, unsigned index)
{
    const double frames = std::trunc(animation.mDuration) + 1.0;
    if (frames > FrameLimit) {
        source.messages.addWarning(
            QCoreApplication::translate("Import", "%1 Animation %2 was cut to %3 frames")
                .arg(source.modelPath, QString::number(index), QString::number(FrameLimit)));
        return int(FrameLimit);
    }
    return frames >= 1.0 ? int(frames) : 1; // also of a duration that is no number
}

/// The number in the first pair of brackets that holds digits only: "walk [12]" is 12.
int animationId(const QString &name, int fallback)
{
    static const QRegularExpression pattern(QStringLiteral("(\\[(\\d+)\\])"));
    const QRegularExpressionMatch match = pattern.match(name);
    return match.hasMatch() ? match.captured(2).toInt() : fallback;
}

/// Rotation of key `rotation` relative to the rest pose, with y and z exchanged as the game has them.
QVector4D relativeRotation(const aiMatrix3x3 &inverseRest, const aiQuaternion &rotation)
{
    aiQuaternion relative(inverseRest * rotation.GetMatrix());
    relative.Normalize();
    return {relative.x, relative.z, relative.y, relative.w};
}

/// A channel whose node became a bone.
struct BoneChannel
{
    const aiNodeAnim &keys;
    const SceneSkeleton::Node &bone;
    const aiNode &sceneNode;
};

std::vector<BoneChannel> boneChannels(const SceneSource &source, const SceneSkeleton &skeleton,
                                      const aiAnimation &animation)
{
    std::vector<BoneChannel> channels;
    for (unsigned i = 0; i < animation.mNumChannels; ++i) {
        const aiNodeAnim &channel = *animation.mChannels[i];
        const SceneSkeleton::Node *bone = skeleton.find(channel.mNodeName);
        const aiNode *sceneNode = SceneSkeleton::sceneNode(source, channel.mNodeName);
        if (bone && sceneNode) {
            channels.push_back({channel, *bone, *sceneNode});
        } else {
            qCDebug(importLog,
                    "[[[[[]]]]]ignoring animation channel for %u node %s because it's not a node in the map",
                    i, channel.mNodeName.C_Str());
        }
    }
    return channels;
}

void fillTrack(const BoneChannel &channel, int track, AnimBlock &block)
{
    const aiNodeAnim &keys = channel.keys;
    AnimNode &node = block.nodes[size_t(channel.bone.index)];
    node.translationIndex = quint16(track);
    node.rotationIndex = quint16(track);

    // The scale of the rest pose turns nothing.
    aiVector3D restScale;
    aiVector3D restPlace;
    aiQuaternion restTurn;
    channel.sceneNode.mTransformation.Decompose(restScale, restTurn, restPlace);
    const aiMatrix3x3 inverseRest = restTurn.GetMatrix().Transpose();
    const aiMatrix4x4 &transform = channel.bone.transform;
    const aiVector3D rest(transform.a4, transform.b4, transform.c4);
    QVector4D rotation(0.0f, 0.0f, 0.0f, 1.0f);
    QVector3D translation;
    for (int frame = 0; frame < block.frameCount(); ++frame) {
        const auto number = unsigned(frame);
        if (number < keys.mNumRotationKeys)
            rotation = relativeRotation(inverseRest, keys.mRotationKeys[number].mValue);
        if (number < keys.mNumPositionKeys) {
            // The crossing of y and z is the game's: it holds on one side of each difference only.
            const aiVector3D &key = keys.mPositionKeys[number].mValue;
            translation = QVector3D(key.x - rest.x, key.y - rest.z, key.z - rest.y) * UnitsPerModelUnit;
            qCDebug(importLog, "--------%s Frame: %d Time: %g X: %g Y: %g Z: %g", keys.mNodeName.C_Str(),
                    frame, keys.mPositionKeys[number].mTime, double(translation.x()), double(translation.y()),
                    double(translation.z()));
        }
        block.rotations.at(track, frame) = rotation;
        block.translations.at(track, frame) = translation;
    }
}
} // namespace

void addAnimations(const SceneSource &source, const SceneSkeleton &skeleton, size_t boneCount, AnimFile &file)
{
    for (unsigned i = 0; i < source.scene->mNumAnimations; ++i) {
        const aiAnimation &animation = *source.scene->mAnimations[i];
        qCDebug(importLog,
                "Anim %u Name: %s Duration: %g TicksPerSecond: %g numChannels: %u numMeshChannels: %u", i,
                animation.mName.C_Str(), animation.mDuration, animation.mTicksPerSecond,
                animation.mNumChannels, animation.mNumMeshChannels);
        AnimBlock &block = file.blocks.emplace_back();
        block.animId = animationId(text(animation.mName), block.animId);
        block.blendLength = BlendLength;
        block.speed = float(animation.mTicksPerSecond);
        block.nodes.resize(boneCount);
        block.setFrameCount(frameCount(source, animation, i));
        const std::vector<BoneChannel> channels = boneChannels(source, skeleton, animation);
        block.setTranslationCount(int(channels.size()));
        block.setRotationCount(int(channels.size()));
        for (size_t track = 0; track < channels.size(); ++track)
            fillTrack(channels[track], int(track), block);
    }
}
