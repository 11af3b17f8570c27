// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "GltfClips.h"

#include "AnimFile.h"
#include "ExportNames.h"
#include "FrameChoice.h"
#include "GltfExtras.h"
#include "GltfSkeleton.h"
#include "GltfWriter.h"
#include "ImportMessages.h"
#include "ModelNames.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <map>

namespace {
// Blender cuts names off at 63 characters.
constexpr int LongestName = 40;
// Where a block's own rate gives no times that grow.
constexpr float SubstituteRate = 30.0f;
constexpr double RadiansPerDegree = 3.14159265358979323846 / 180.0;
constexpr float DegreesPerYaw = 57.29578f;

using Turn = std::array<float, 4>;

/// The initial pose is all that shows of a shorter block.
bool plays(const AnimBlock &block)
{
    return block.frameCount() >= 2;
}

/// The keys of a bone in a clip, one a frame; a single one when it rests.
template <typename Key>
using Keys = std::vector<Key>;

void dropRepeats(std::vector<std::array<float, 3>> &keys)
{
    if (std::all_of(keys.begin(), keys.end(), [&](const auto &key) { return key == keys.front(); }))
        keys.resize(1);
}

// Of the two quaternions of a turn each is the one that lies nearer to the one before it.
void keepSigns(std::vector<Turn> &keys)
{
    for (size_t i = 1; i < keys.size(); ++i) {
        double dot = 0.0;
        for (size_t part = 0; part < 4; ++part)
            dot += double(keys[i][part]) * double(keys[i - 1][part]);
        if (dot >= 0.0)
            continue;
        for (float &part : keys[i])
            part = -part;
    }
}

void dropRepeats(std::vector<Turn> &keys)
{
    if (std::all_of(keys.begin(), keys.end(), [&](const auto &key) { return key == keys.front(); }))
        keys.resize(1);
}

Keys<std::array<float, 3>> translationKeys(const AnimBlock &block, const AnimNode &node)
{
    Keys<std::array<float, 3>> keys;
    const int track = node.translationIndex;
    if (!plays(block) || !block.translations.contains(track, 0))
        return {finiteVector(node.initialPosition)};
    for (int frame = 0; frame < block.frameCount(); ++frame)
        keys.push_back(finiteVector(block.translations.at(track, frame)));
    dropRepeats(keys);
    return keys;
}

Keys<Turn> rotationKeys(const AnimBlock &block, const AnimNode &node)
{
    Keys<Turn> keys;
    const int track = node.rotationIndex;
    if (!plays(block) || !block.rotations.contains(track, 0))
        return {unitQuaternion(node.initialRotation)};
    for (int frame = 0; frame < block.frameCount(); ++frame)
        keys.push_back(unitQuaternion(block.rotations.at(track, frame)));
    keepSigns(keys);
    dropRepeats(keys);
    return keys;
}

/// About z, by the negative offset, which the view takes to degrees in single precision.
Turn yawTurn(float offset)
{
    if (!std::isfinite(offset))
        return GltfLocal().rotation;
    const double half = double(-offset * DegreesPerYaw) * RadiansPerDegree / 2.0;
    return {0.0f, 0.0f, float(std::sin(half)), float(std::cos(half))};
}

Keys<Turn> yawKeys(const AnimBlock &block)
{
    if (!plays(block))
        return {GltfLocal().rotation};
    Keys<Turn> keys;
    for (const AnimFrame &frame : block.frames)
        keys.push_back(yawTurn(frame.yawOffset));
    keepSigns(keys);
    dropRepeats(keys);
    return keys;
}

/// A quaternion and its negative turn alike.
bool rests(const Keys<Turn> &keys, const Turn &rest)
{
    const Turn negative{-rest[0], -rest[1], -rest[2], -rest[3]};
    return keys.size() == 1 && (keys.front() == rest || keys.front() == negative);
}

bool rests(const Keys<std::array<float, 3>> &keys, const std::array<float, 3> &rest)
{
    return keys.size() == 1 && keys.front() == rest;
}

/// The bones that one of the clips moves, turns.
struct Moved
{
    std::vector<bool> translations, rotations;
};

Moved movedBones(const GltfSkeleton &skeleton, const AnimFile &anim, const std::vector<GltfClip> &clips)
{
    Moved moved{std::vector<bool>(skeleton.bones.size()), std::vector<bool>(skeleton.bones.size())};
    for (const GltfClip &clip : clips) {
        const AnimBlock &block = anim.blocks[size_t(clip.block)];
        for (size_t i = 0; i < std::min(skeleton.bones.size(), block.nodes.size()); ++i) {
            const GltfSkeleton::Bone &bone = skeleton.bones[i];
            if (!bone.isReached)
                continue;
            if (!moved.translations[i])
                moved.translations[i] =
                    !rests(translationKeys(block, block.nodes[i]), bone.local.translation);
            if (!moved.rotations[i])
                moved.rotations[i] = !rests(rotationKeys(block, block.nodes[i]), bone.local.rotation);
        }
    }
    // A clip without a single key would be none.
    const auto isSet = [](bool each) { return each; };
    if (!skeleton.bones.empty() && skeleton.yawNode < 0 &&
        std::none_of(moved.translations.begin(), moved.translations.end(), isSet) &&
        std::none_of(moved.rotations.begin(), moved.rotations.end(), isSet))
        moved.rotations[0] = true;
    return moved;
}

/// One clip as it is written.
class ClipWriter
{
public:
    ClipWriter(GltfWriter &writer, const AnimBlock &block, ImportMessages &messages, const QString &name)
        : m_writer(writer)
        , m_frameCount(std::max(1, block.frameCount()))
    {
        const float rate = playRate(block.speed);
        for (int frame = 0; frame < m_frameCount; ++frame)
            m_times.push_back(float(frame) / rate);
        const auto stands = [](float time, float next) { return !(next > time); };
        if (std::adjacent_find(m_times.begin(), m_times.end(), stands) == m_times.end())
            return;
        for (int frame = 0; frame < m_frameCount; ++frame)
            m_times[size_t(frame)] = float(frame) / SubstituteRate;
        messages.addWarning(
            QCoreApplication::translate(
                "Import",
                "[glTF Export] %1 is too fast for times of its frames; it is written with 30 a second")
                .arg(name));
    }

    template <typename Key>
    void add(int node, const char *path, const Keys<Key> &keys)
    {
        std::vector<float> numbers;
        for (const Key &key : keys)
            numbers.insert(numbers.end(), key.begin(), key.end());
        // What rests holds until the clip's end.
        if (keys.size() == 1 && m_times.size() > 1)
            numbers.insert(numbers.end(), keys.front().begin(), keys.front().end());
        m_samplers.append(QJsonObject{
            {QStringLiteral("input"), keys.size() == 1 ? ends() : all()},
            {QStringLiteral("output"), output(numbers, sizeof(Key) == 4 * sizeof(float) ? "VEC4" : "VEC3")},
            {QStringLiteral("interpolation"), QStringLiteral("LINEAR")}});
        m_channels.append(QJsonObject{
            {QStringLiteral("sampler"), m_samplers.size() - 1},
            {QStringLiteral("target"),
             QJsonObject{{QStringLiteral("node"), node}, {QStringLiteral("path"), QLatin1String(path)}}}});
    }

    void end(const GltfClip &clip)
    {
        m_writer.append("animations",
                        {{QStringLiteral("name"), clip.name},
                         {QStringLiteral("channels"), m_channels},
                         {QStringLiteral("samplers"), m_samplers},
                         {QStringLiteral("extras"), GltfExtras::extras(GltfExtras::Clip{clip.block})}});
    }

private:
    int times(const std::vector<float> &seconds)
    {
        return m_writer.addFloats(seconds, "SCALAR", GltfWriter::Purpose::Keys, true);
    }
    int all()
    {
        if (m_all < 0)
            m_all = times(m_times);
        return m_all;
    }
    int ends()
    {
        if (m_times.size() == 1)
            return all();
        if (m_ends < 0)
            m_ends = times({m_times.front(), m_times.back()});
        return m_ends;
    }
    /// Bones that move alike share their keys.
    int output(const std::vector<float> &numbers, const char *type)
    {
        const auto known = m_outputs.find({type[3], numbers});
        if (known != m_outputs.end())
            return known->second;
        const int made = m_writer.addFloats(numbers, type, GltfWriter::Purpose::Keys);
        m_outputs.emplace(std::pair(type[3], numbers), made);
        return made;
    }

    GltfWriter &m_writer;
    int m_frameCount;
    std::vector<float> m_times; ///< seconds
    int m_all = -1;
    int m_ends = -1;
    std::map<std::pair<char, std::vector<float>>, int> m_outputs;
    QJsonArray m_channels;
    QJsonArray m_samplers;
};

QString clipName(const AnimBlock &block, const ModelNames &names)
{
    const QString name = bareClipName(names.animations.value(block.animId)).left(LongestName);
    const QString id = QStringLiteral("[%1]").arg(block.animId);
    return name.isEmpty() ? id : name + QLatin1Char(' ') + id;
}
} // namespace

std::vector<GltfClip> clipsFor(const AnimFile &anim, const std::vector<int> &blocks, const ModelNames &names)
{
    std::vector<GltfClip> clips;
    QSet<QString> taken;
    for (const int block : blocks) {
        QString name = clipName(anim.blocks[size_t(block)], names);
        if (taken.contains(name))
            name += QStringLiteral(" (block %1)").arg(block);
        taken += name;
        clips.push_back({block, name});
    }
    return clips;
}

bool turnsModel(const AnimBlock &block)
{
    return plays(block) && std::any_of(block.frames.begin(), block.frames.end(), [](const AnimFrame &frame) {
               return frame.yawOffset != 0.0f && std::isfinite(frame.yawOffset);
           });
}

void addClips(GltfWriter &writer, const GltfSkeleton &skeleton, const AnimFile &anim,
              const std::vector<GltfClip> &clips, ImportMessages &messages,
              const std::function<bool()> &isCancelled, const std::function<void(double)> &tellDone)
{
    const Moved moved = movedBones(skeleton, anim, clips);
    const auto framesOf = [&anim](const GltfClip &clip) {
        return 1.0 + anim.blocks[size_t(clip.block)].frameCount();
    };
    double frames = 0.0;
    for (const GltfClip &clip : clips)
        frames += framesOf(clip);
    double done = 0.0;
    for (const GltfClip &clip : clips) {
        const AnimBlock &block = anim.blocks[size_t(clip.block)];
        ClipWriter made(writer, block, messages, clip.name);
        for (size_t i = 0; i < skeleton.bones.size(); ++i) {
            if (isCancelled())
                return;
            const GltfSkeleton::Bone &bone = skeleton.bones[i];
            const bool isThere = i < block.nodes.size();
            if (moved.translations[i])
                made.add(bone.node, "translation",
                         isThere ? translationKeys(block, block.nodes[i])
                                 : Keys<std::array<float, 3>>{bone.local.translation});
            if (moved.rotations[i])
                made.add(bone.node, "rotation",
                         isThere ? rotationKeys(block, block.nodes[i]) : Keys<Turn>{bone.local.rotation});
        }
        if (skeleton.yawNode >= 0)
            made.add(skeleton.yawNode, "rotation", yawKeys(block));
        made.end(clip);
        done += framesOf(clip);
        tellDone(done / frames);
    }
}
