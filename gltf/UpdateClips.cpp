// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UpdateClips.h"

#include "BlockTracks.h"
#include "ExportNames.h"
#include "FrameChoice.h"
#include "GltfText.h"
#include "Polar.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>

namespace {
// More than the longest files have; a clip of a few keys may say that it takes a year.
constexpr int MostFrames = 100000;
constexpr qint64 MostPoses = 50'000'000; ///< of nodes, in all frames
constexpr float LeastRate = 10.0f;
constexpr float GreatestRate = 60.0f;
constexpr float UsualRate = 30.0f;
constexpr quint16 NoLoop = 0xFFFF;
constexpr double VisibleScale = 0.01;

/// Frames a second, as an export has them.
float rateOf(const AnimBlock &block)
{
    const float rate = playRate(block.speed);
    return std::isfinite(rate) ? rate : UsualRate;
}
} // namespace

UpdateClips::UpdateClips(const GltfScene &scene, const UpdateBones &bones,
                         const std::optional<GltfExtras::Model> &model, AnimFile &anim,
                         UpdateAccount &account)
    : m_scene(scene)
    , m_bones(bones)
    , m_model(model)
    , m_anim(anim)
    , m_account(account)
    , m_pose(scene)
    , m_clipOfBlock(anim.blocks.size(), -1)
    , m_isMatched(scene.animations.size(), false)
    , m_mostFrames(int(std::min<qint64>(MostFrames, MostPoses / qint64(scene.nodes.size() + 1))))
    , m_framesLeft(m_mostFrames)
{
    std::vector<bool> isOrdered(bones.bones().size(), false);
    for (size_t start = 0; start < isOrdered.size(); ++start) {
        std::vector<size_t> chain;
        for (int i = int(start); i >= 0 && !isOrdered[size_t(i)]; i = bones.bones()[size_t(i)].parent) {
            isOrdered[size_t(i)] = true;
            chain.push_back(size_t(i));
        }
        m_order.insert(m_order.end(), chain.rbegin(), chain.rend());
    }
    std::vector<Rigid> rests;
    for (const UpdateBones::Bone &bone : bones.bones())
        rests.push_back(bone.rest);
    m_restLocals = localsOf(rests);
}

std::vector<Rigid> UpdateClips::localsOf(const std::vector<Rigid> &frames) const
{
    std::vector<Rigid> locals = frames;
    for (size_t i = 0; i < frames.size(); ++i) {
        const int parent = m_bones.bones()[i].parent;
        if (parent >= 0)
            locals[i] = frames[size_t(parent)].inverse() * frames[i];
    }
    return locals;
}

bool UpdateClips::run()
{
    matchClips();
    addBones();
    moveInitialPoses();
    for (size_t i = 0; i < m_clipOfBlock.size(); ++i) {
        if (m_clipOfBlock[i] < 0) {
            if (!wasExported(i))
                continue;
            m_account.missingBlocks.append(qint32(i));
            m_account.add(UpdateLine::Missing,
                          Gltf::tr("Animation %1 [%2]").arg(i).arg(m_anim.blocks[i].animId));
        } else if (updateBlock(i, m_scene.animations[size_t(m_clipOfBlock[i])])) {
            return true;
        }
    }
    for (size_t i = 0; i < m_scene.animations.size(); ++i) {
        if (!m_isMatched[i] && addBlock(m_scene.animations[i]))
            return true;
    }
    if (m_scaledBones > 0)
        m_account.add(
            UpdateLine::Note,
            Gltf::tr("Bones that are scaled, which the format has no place for: %1").arg(m_scaledBones));
    return false;
}

// --- Which clip is which block -----------------------------------------------------------------------------

/// Where the block is that had a number at the export: the same one, unless its id has gone elsewhere.
int UpdateClips::blockNow(int number) const
{
    const bool exists = number >= 0 && size_t(number) < m_anim.blocks.size();
    if (!m_model)
        return exists ? number : -1;
    int before = 0; ///< blocks of this id, then
    const auto block =
        std::find_if(m_model->blocks.begin(), m_model->blocks.end(),
                     [number](const GltfExtras::Block &each) { return each.number == number; });
    if (block == m_model->blocks.end())
        return -1;
    const qint32 id = block->record.animId;
    if (exists && m_anim.blocks[size_t(number)].animId == id)
        return number;
    for (const GltfExtras::Block &each : m_model->blocks)
        before += each.number < number && each.record.animId == id ? 1 : 0;
    for (size_t i = 0; i < m_anim.blocks.size(); ++i) {
        if (m_anim.blocks[i].animId == id && before-- == 0)
            return int(i);
    }
    return exists ? number : -1;
}

/// By the name that an export gave the clip, which some programs put something behind; else by the number in
/// it. -1: none.
int UpdateClips::blockNamed(const QString &name) const
{
    int best = -1;
    int bestLength = 0;
    for (size_t i = 0; m_model && i < m_model->blocks.size(); ++i) {
        const GltfExtras::Block &block = m_model->blocks[i];
        const bool isIt = name == block.clip || name.startsWith(block.clip + QLatin1Char('.')) ||
                          name.startsWith(block.clip + QLatin1Char('_'));
        if (isIt && !block.clip.isEmpty() && block.clip.size() > bestLength) {
            best = blockNow(block.number);
            bestLength = block.clip.size();
        }
    }
    const std::optional<qint32> id = bracketedId(name);
    for (size_t i = 0; best < 0 && id && i < m_anim.blocks.size(); ++i) {
        if (m_anim.blocks[i].animId == id && m_clipOfBlock[i] < 0)
            best = int(i);
    }
    return best;
}

/// Not of every block an export makes a clip; of those that came later it has none.
bool UpdateClips::wasExported(size_t block) const
{
    return !m_model ||
           std::any_of(m_model->blocks.begin(), m_model->blocks.end(), [&](const GltfExtras::Block &each) {
               return !each.clip.isEmpty() && blockNow(each.number) == int(block);
           });
}

void UpdateClips::matchClips()
{
    const auto match = [this](size_t clip, int block) {
        if (block < 0 || size_t(block) >= m_clipOfBlock.size() || m_clipOfBlock[size_t(block)] >= 0)
            return;
        m_clipOfBlock[size_t(block)] = int(clip);
        m_isMatched[clip] = true;
    };
    for (size_t i = 0; i < m_scene.animations.size(); ++i) {
        if (const auto clip = GltfExtras::read<GltfExtras::Clip>(m_scene.animations[i].extras))
            match(i, blockNow(clip->number));
    }
    for (size_t i = 0; i < m_scene.animations.size(); ++i) {
        if (!m_isMatched[i])
            match(i, blockNamed(m_scene.animations[i].name));
    }
}

// --- The pose that nothing moves ---------------------------------------------------------------------------

void UpdateClips::addBones()
{
    const size_t count = m_bones.bones().size();
    for (AnimBlock &block : m_anim.blocks) {
        for (size_t i = m_bones.oldCount(); i < count && block.nodes.size() == i; ++i) {
            block.nodes.push_back(initialNode(m_restLocals[i]));
            m_account.changesAnim = true;
        }
    }
}

/// Where a bone was moved, the blocks that had it where it was have it where it is.
void UpdateClips::moveInitialPoses()
{
    std::vector<Rigid> old;
    for (const UpdateBones::Bone &bone : m_bones.bones())
        old.push_back(bone.oldRest);
    old = localsOf(old);
    const KeyTolerance tolerance(m_bones.size());
    for (AnimBlock &block : m_anim.blocks) {
        for (size_t i = 0; i < std::min(m_bones.oldCount(), block.nodes.size()); ++i) {
            AnimNode &node = block.nodes[i];
            if (tolerance.isSame(old[i], m_restLocals[i]) || !tolerance.isSame(initialLocal(node), old[i]))
                continue;
            node.initialPosition = m_restLocals[i].position();
            m_account.changesAnim = true;
        }
    }
}

// --- Times and poses ---------------------------------------------------------------------------------------

UpdateClips::Timing UpdateClips::timingOf(const GltfScene::Animation &animation) const
{
    Timing timing;
    size_t most = 0;
    QSet<const std::vector<float> *> seen;
    for (const GltfScene::Channel &channel : animation.channels) {
        const std::vector<float> &times = *channel.times;
        if (seen.contains(&times))
            continue;
        seen.insert(&times);
        timing.keys.insert(timing.keys.end(), times.begin(), times.end());
        if (times.size() > most && times.size() > 1) {
            most = times.size();
            timing.gap = (times.back() - times.front()) / float(times.size() - 1);
        }
    }
    std::sort(timing.keys.begin(), timing.keys.end());
    const auto isSame = [&timing](float a, float b) { return b - a <= 1.0e-3f * timing.gap; };
    timing.keys.erase(std::unique(timing.keys.begin(), timing.keys.end(), isSame), timing.keys.end());
    if (timing.keys.empty())
        timing.keys.push_back(0.0f);
    // A program that leaves the first frame out begins one late; whoever moves a clip moves it further, or to
    // before the beginning.
    const bool isMoved =
        timing.keys.front() < 0.0f || timing.keys.front() > 2.5f * std::max(timing.gap, 1.0f / UsualRate);
    timing.start = isMoved ? timing.keys.front() : 0.0f;
    timing.first = timing.keys.front() - timing.start;
    timing.last = timing.keys.back() - timing.start;
    return timing;
}

/// `times` are in the file's time. `block`, which begins at `start` of it, says where bones are that the file
/// does not have; without one they rest.
UpdateClips::Poses UpdateClips::posesAt(const GltfScene::Animation &animation,
                                        const std::vector<float> &times, const AnimBlock *block, float start)
{
    Poses poses;
    m_pose.setAnimation(&animation);
    const std::vector<UpdateBones::Bone> &bones = m_bones.bones();
    std::vector<Rigid> frames(bones.size());
    std::vector<bool> isScaled(bones.size(), false);
    const float rate = block ? rateOf(*block) : 1.0f;
    for (const float time : times) {
        const std::vector<QMatrix4x4> &worlds = m_pose.at(time);
        const double yaw = m_bones.yawNode() >= 0 ? m_bones.yawAt(worlds[size_t(m_bones.yawNode())]) : 0.0;
        const Rigid back{{0.0, 0.0, -std::sin(yaw / 2.0), std::cos(yaw / 2.0)}, {}};
        for (const size_t i : m_order) {
            const UpdateBones::Bone &bone = bones[i];
            double scale = 1.0;
            if (bone.node >= 0) {
                frames[i] =
                    back * m_bones.frame(i, worlds[size_t(bone.node)], scale, back.inverse() * frames[i]);
            } else if (bone.isReached) {
                const Rigid local = block && i < block->nodes.size()
                                        ? localAt(*block, i, double((time - start) * rate), Between::Slerp)
                                        : m_restLocals[i];
                frames[i] = bone.parent >= 0 ? frames[size_t(bone.parent)] * local : local;
            }
            isScaled[i] = isScaled[i] || std::abs(scale - 1.0) > VisibleScale;
        }
        poses.locals.push_back(localsOf(frames));
        poses.yaws.push_back(yaw);
    }
    m_scaledBones = std::max(m_scaledBones, int(std::count(isScaled.begin(), isScaled.end(), true)));
    return poses;
}

/// Returns true when there are too many.
bool UpdateClips::spendFrames(int count)
{
    m_framesLeft -= count;
    if (m_framesLeft < 0)
        m_error = Gltf::tr("The animations have more than %1 frames.").arg(m_mostFrames);
    return m_framesLeft < 0;
}

// --- Blocks ------------------------------------------------------------------------------------------------

bool UpdateClips::updateBlock(size_t number, const GltfScene::Animation &animation)
{
    AnimBlock &block = m_anim.blocks[number];
    const float rate = rateOf(block);
    const Timing timing = timingOf(animation);
    const int oldCount = block.frameCount();
    const float oldEnd = float(std::max(0, oldCount - 1)) / rate;
    if (timing.last * rate > float(m_mostFrames))
        return spendFrames(m_mostFrames + 1);
    if (spendFrames(int(timing.keys.size())))
        return true;

    // A program that samples at a rate of its own ends at its last sample before the end.
    const float lasting = float(std::lround(timing.last * rate)) + 1.0f;
    const bool endsEarlier = timing.last <= oldEnd - 0.999f * std::max(timing.gap, 0.5f / rate);
    const bool endsLater = timing.last > oldEnd + 0.25f / rate;
    int count = oldCount >= 2 && (endsEarlier || endsLater) ? int(lasting) : oldCount;
    const Poses atKeys = posesAt(animation, timing.keys, &block, timing.start);
    BlockTracks tracks(block, KeyTolerance(m_bones.size()));
    if (oldCount < 2 && timing.last > 0.0f && !tracks.holdsStill(atKeys.locals))
        count = int(lasting);
    if (spendFrames(count))
        return true;

    std::vector<float> times;
    std::vector<double> keyFrames;
    for (int i = 0; i < std::max(count, 1); ++i)
        times.push_back(timing.start + float(i) / rate);
    for (const float key : timing.keys)
        keyFrames.push_back(double((key - timing.start) * rate));
    const Poses atFrames = posesAt(animation, times, &block, timing.start);
    tracks.setFrameCount(count);
    tracks.setSampling({keyFrames, int(std::ceil(timing.first * rate - 0.01f)),
                        int(std::floor(timing.last * rate + 0.01f)), timing.gap * rate});
    for (size_t i = 0; i < std::min(m_bones.bones().size(), block.nodes.size()); ++i) {
        if (m_bones.bones()[i].node >= 0 && m_bones.bones()[i].isReached)
            tracks.update(i, atKeys.locals, atFrames.locals);
    }
    if (m_bones.yawNode() >= 0)
        tracks.updateYaw(atKeys.yaws, atFrames.yaws);
    if (count == oldCount && tracks.changedBones() == 0 && !tracks.yawChanged())
        return false;
    m_account.changesAnim = true;
    QStringList what;
    if (count != oldCount)
        what += Gltf::tr("%1 frames, not %2").arg(count).arg(oldCount);
    if (tracks.changedBones() > 0)
        what += Gltf::tr("bones that move otherwise: %1").arg(tracks.changedBones());
    if (tracks.yawChanged())
        what += Gltf::tr("other yaw offsets");
    m_account.add(UpdateLine::Changed,
                  Gltf::tr("Animation %1 '%2': %3")
                      .arg(QString::number(number), animation.name, what.join(QStringLiteral(", "))));
    const QStringList beyond = count < oldCount ? beyondEnd(block) : QStringList();
    if (!beyond.isEmpty())
        m_account.add(UpdateLine::Note,
                      Gltf::tr("Animation %1 '%2' ends before what it has: %3")
                          .arg(QString::number(number), animation.name, beyond.join(QStringLiteral(", "))));
    return false;
}

bool UpdateClips::addBlock(const GltfScene::Animation &animation)
{
    const Timing timing = timingOf(animation);
    const float length = timing.keys.back() - timing.keys.front();
    const float own = timing.gap > 0.0f ? std::round(1.0f / timing.gap) : 0.0f;
    AnimBlock block;
    block.speed = own >= LeastRate && own <= GreatestRate ? own : UsualRate;
    if (animation.channels.empty() || length * block.speed > float(m_mostFrames))
        return animation.channels.empty() ? false : spendFrames(m_mostFrames + 1);
    const int count = int(std::lround(length * block.speed)) + 1;
    if (spendFrames(count))
        return true;

    // The number of its name, which a copy has as well, else the next one that is free.
    QSet<qint32> taken;
    for (const AnimBlock &each : m_anim.blocks)
        taken.insert(each.animId);
    block.animId = bracketedId(animation.name).value_or(0);
    while (taken.contains(block.animId))
        block.animId = block.animId == std::numeric_limits<qint32>::max() ? 0 : block.animId + 1;
    std::transform(m_restLocals.begin(), m_restLocals.end(), std::back_inserter(block.nodes), initialNode);
    block.setFrameCount(count);
    block.blendLength = 5;
    block.blendEnd = quint16(std::min(count - 1, 0xFFFF));

    std::vector<float> times;
    times.reserve(size_t(count));
    for (int i = 0; i < count; ++i)
        times.push_back(timing.keys.front() + float(i) / block.speed);
    const Poses poses = posesAt(animation, times, nullptr, timing.keys.front());
    BlockTracks tracks(block, KeyTolerance(m_bones.size()));
    tracks.setSampling({{}, 0, count - 1, 1.0});
    for (size_t i = 0; i < block.nodes.size(); ++i) {
        if (m_bones.bones()[i].node >= 0 && m_bones.bones()[i].isReached)
            tracks.update(i, {}, poses.locals);
    }
    if (m_bones.yawNode() >= 0)
        tracks.updateYaw({}, poses.yaws);
    block.loopFrame = tracks.isLoop(poses.locals) ? 0 : NoLoop;
    m_account.changesAnim = true;
    m_account.add(UpdateLine::New,
                  Gltf::tr("Animation %1 '%2': %3 frames")
                      .arg(QString::number(m_anim.blocks.size()), animation.name, QString::number(count)));
    const QString name = bareClipName(animation.name);
    if (!name.isEmpty())
        m_names.insert(block.animId, name);
    m_anim.blocks.push_back(std::move(block));
    return false;
}
