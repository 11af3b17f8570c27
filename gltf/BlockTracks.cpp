// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BlockTracks.h"

#include "GltfSkeleton.h"
#include "GltfText.h"
#include "Polar.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr double SamePart = 1.0e-5;  ///< of the model's size
constexpr double SameAngle = 2.0e-5; ///< radians
constexpr double SameYaw = 2.0e-5;   ///< radians
constexpr double LoopPart = 0.01;    ///< of the way that the bones go, about
constexpr int MostTracks = 0xFFFF;   ///< the index of none
constexpr quint16 LoopOfNone = 0xFFFF;

/// As an export writes it: what is no number is 0, and does not turn.
Rigid rigidOf(const QVector3D &position, const QVector4D &rotation)
{
    const std::array<float, 3> place = finiteVector(position);
    return Rigid::from({place[0], place[1], place[2]},
                       {rotation.w(), rotation.x(), rotation.y(), rotation.z()});
}

double dot(const QVector4D &a, const std::array<double, 4> &b)
{
    return double(a.x()) * b[0] + double(a.y()) * b[1] + double(a.z()) * b[2] + double(a.w()) * b[3];
}

/// With the sign that is next to `near`, so that what lies between two keys takes the short way.
QVector4D keyOf(const std::array<double, 4> &rotation, const QVector4D &near)
{
    const float sign = dot(near, rotation) < 0.0 ? -1.0f : 1.0f;
    return sign * QVector4D(float(rotation[0]), float(rotation[1]), float(rotation[2]), float(rotation[3]));
}

bool isSameKey(const KeyTolerance &tolerance, const QVector3D &a, const QVector3D &b)
{
    return tolerance.isSamePlace(rigidOf(a, {}), rigidOf(b, {}));
}

bool isSameKey(const KeyTolerance &tolerance, const QVector4D &a, const QVector4D &b)
{
    return tolerance.isSameTurn(rigidOf({}, a), rigidOf({}, b));
}

/// Of the two turns between which `t` lies, one the way that `between` says.
std::array<double, 4> turnBetween(const std::array<double, 4> &a, const std::array<double, 4> &b, double t,
                                  Between between)
{
    double cosine = a[0] * b[0] + a[1] * b[1] + a[2] * b[2] + a[3] * b[3];
    const double sign = cosine < 0.0 ? -1.0 : 1.0;
    cosine = std::min(1.0, std::abs(cosine));
    double first = 1.0 - t;
    double second = t;
    const double angle = std::acos(cosine);
    if (between == Between::Slerp && angle > 1.0e-6) {
        first = std::sin((1.0 - t) * angle) / std::sin(angle);
        second = std::sin(t * angle) / std::sin(angle);
    }
    std::array<double, 4> turn{};
    double length = 0.0;
    for (size_t i = 0; i < 4; ++i) {
        turn[i] = first * a[i] + sign * second * b[i];
        length += turn[i] * turn[i];
    }
    for (double &each : turn)
        each /= std::sqrt(length);
    return turn;
}
} // namespace

KeyTolerance::KeyTolerance(double modelSize)
    : m_place(SamePart * modelSize)
{}

bool KeyTolerance::isSamePlace(const Rigid &a, const Rigid &b) const
{
    double square = 0.0;
    for (size_t i = 0; i < 3; ++i)
        square += (a.translation[i] - b.translation[i]) * (a.translation[i] - b.translation[i]);
    return square <= m_place * m_place;
}

bool KeyTolerance::isSameTurn(const Rigid &a, const Rigid &b) const
{
    return angleBetween(a.rotation, b.rotation) <= SameAngle;
}

Rigid initialLocal(const AnimNode &node)
{
    return rigidOf(node.initialPosition, node.initialRotation);
}

Rigid localAt(const AnimBlock &block, size_t bone, double frame, Between between)
{
    const AnimNode &node = block.nodes[bone];
    Rigid local = initialLocal(node);
    if (block.frameCount() < 2)
        return local;
    const double at = std::clamp(frame, 0.0, double(block.frameCount() - 1));
    const int from = int(at);
    const int to = std::min(from + 1, block.frameCount() - 1);
    const double t = at - double(from);
    if (block.translations.contains(node.translationIndex, to)) {
        const std::array<float, 3> a = finiteVector(block.translations.at(node.translationIndex, from));
        const std::array<float, 3> b = finiteVector(block.translations.at(node.translationIndex, to));
        for (size_t i = 0; i < 3; ++i)
            local.translation[i] = double(a[i]) + t * (double(b[i]) - double(a[i]));
    }
    if (block.rotations.contains(node.rotationIndex, to)) {
        const Rigid a = rigidOf({}, block.rotations.at(node.rotationIndex, from));
        const Rigid b = rigidOf({}, block.rotations.at(node.rotationIndex, to));
        local.rotation = turnBetween(a.rotation, b.rotation, t, between);
    }
    return local;
}

AnimNode initialNode(const Rigid &local)
{
    AnimNode node;
    node.initialPosition = local.position();
    node.initialRotation = keyOf(local.rotation, {});
    return node;
}

QStringList beyondEnd(const AnimBlock &block)
{
    QStringList beyond;
    const int count = block.frameCount();
    if (block.loopFrame != LoopOfNone && block.loopFrame >= count)
        beyond += Gltf::tr("loop frame %1").arg(block.loopFrame);
    if (block.blendEnd >= count)
        beyond += Gltf::tr("blend end %1").arg(block.blendEnd);
    const auto actions =
        std::count_if(block.actions.begin(), block.actions.end(),
                      [count](const AnimAction &action) { return int(action.frame) >= count; });
    if (actions > 0)
        beyond += Gltf::tr("actions: %1").arg(actions);
    return beyond;
}

BlockTracks::BlockTracks(AnimBlock &block, const KeyTolerance &tolerance)
    : m_block(block)
    , m_old(block)
    , m_tolerance(tolerance)
{}

void BlockTracks::setFrameCount(int count)
{
    if (count == m_block.frameCount())
        return;
    // The model goes on looking where it looks.
    const float yaw = m_block.frames.empty() ? 0.0f : m_block.frames.back().yawOffset;
    m_block.setFrameCount(count);
    for (size_t i = m_old.frames.size(); i < m_block.frames.size(); ++i)
        m_block.frames[i].yawOffset = yaw;
}

void BlockTracks::setSampling(Sampling sampling)
{
    m_sampling = std::move(sampling);
}

/// Whether nothing can have been changed between two keys without a change of one.
bool BlockTracks::isSampledDensely() const
{
    // 24 frames a second are what programs take where nobody says otherwise.
    constexpr double UsualRate = 24.0;
    return m_sampling.gap > 0.0 && m_sampling.gap <= 1.01 * std::max(1.0, double(m_block.speed) / UsualRate);
}

template <typename Same>
bool BlockTracks::isUnchanged(size_t keys, Same isSameAtKey, bool sameAtFrames) const
{
    if (m_block.frameCount() != m_old.frameCount() || (!sameAtFrames && (keys == 0 || !isSampledDensely())))
        return false;
    for (size_t i = 0; i < keys; ++i) {
        const double frame = m_sampling.keyFrames[i];
        if (frame > -0.01 && frame < double(m_old.frameCount()) - 0.99 && !isSameAtKey(i, frame))
            return false;
    }
    return true;
}

void BlockTracks::update(size_t bone, const Locals &atKeys, const Locals &atFrames)
{
    if (m_block.frameCount() < 2) {
        m_changedBones += setInitial(bone, atFrames.front()[bone]) ? 1 : 0;
        return;
    }
    bool samePlaces = true;
    bool sameTurns = true;
    for (int frame = m_sampling.firstFrame; frame <= std::min(m_sampling.lastFrame, m_old.frameCount() - 1);
         ++frame) {
        const Rigid old = localAt(m_old, bone, frame, Between::Slerp);
        samePlaces = samePlaces && m_tolerance.isSamePlace(old, atFrames[size_t(frame)][bone]);
        sameTurns = sameTurns && m_tolerance.isSameTurn(old, atFrames[size_t(frame)][bone]);
    }
    const bool places = isUnchanged(
        atKeys.size(),
        [&](size_t key, double frame) {
            return m_tolerance.isSamePlace(localAt(m_old, bone, frame, Between::Slerp), atKeys[key][bone]);
        },
        samePlaces);
    const bool turns = isUnchanged(
        atKeys.size(),
        [&](size_t key, double frame) {
            const Rigid &theirs = atKeys[key][bone];
            return m_tolerance.isSameTurn(localAt(m_old, bone, frame, Between::Slerp), theirs) ||
                   m_tolerance.isSameTurn(localAt(m_old, bone, frame, Between::Nlerp), theirs);
        },
        sameTurns);
    const bool moved = !places && setPlaces(bone, atFrames);
    const bool turned = !turns && setTurns(bone, atFrames);
    m_changedBones += moved || turned ? 1 : 0;
}

bool BlockTracks::setInitial(size_t bone, const Rigid &local)
{
    AnimNode &node = m_block.nodes[bone];
    const Rigid old = initialLocal(node);
    const bool places = m_tolerance.isSamePlace(old, local);
    const bool turns = m_tolerance.isSameTurn(old, local);
    if (!places)
        node.initialPosition = local.position();
    if (!turns)
        node.initialRotation = keyOf(local.rotation, node.initialRotation);
    return !places || !turns;
}

bool BlockTracks::setPlaces(size_t bone, const Locals &atFrames)
{
    const AnimNode &node = m_block.nodes[bone];
    std::vector<QVector3D> keys;
    bool isInitial = true;
    bool isChanged = false;
    for (int frame = 0; frame < m_block.frameCount(); ++frame) {
        const bool hasTrack = m_block.translations.contains(node.translationIndex, frame);
        const QVector3D old =
            hasTrack ? m_block.translations.at(node.translationIndex, frame) : node.initialPosition;
        const Rigid before = rigidOf(old, {});
        const Rigid &now = atFrames[size_t(std::min(frame, int(atFrames.size()) - 1))][bone];
        const bool isReached = frame >= m_sampling.firstFrame && frame <= m_sampling.lastFrame;
        const bool isSame = !isReached || m_tolerance.isSamePlace(before, now);
        keys.push_back(isSame ? old : now.position());
        isChanged = isChanged || !isSame;
        isInitial = isInitial && m_tolerance.isSamePlace(initialLocal(node), rigidOf(keys.back(), {}));
    }
    const bool hasTrack = node.translationIndex < m_block.translations.trackCount();
    if (!isChanged || (!hasTrack && isInitial))
        return false;
    return setTrack(m_block.translations, &AnimNode::translationIndex, bone, keys,
                    m_old.translations.trackCount());
}

bool BlockTracks::setTurns(size_t bone, const Locals &atFrames)
{
    const AnimNode &node = m_block.nodes[bone];
    std::vector<QVector4D> keys;
    bool isInitial = true;
    bool isChanged = false;
    const Rigid initial = initialLocal(node);
    for (int frame = 0; frame < m_block.frameCount(); ++frame) {
        const bool hasTrack = m_block.rotations.contains(node.rotationIndex, frame);
        const QVector4D old =
            hasTrack ? m_block.rotations.at(node.rotationIndex, frame) : node.initialRotation;
        const Rigid &now = atFrames[size_t(std::min(frame, int(atFrames.size()) - 1))][bone];
        const bool isReached = frame >= m_sampling.firstFrame && frame <= m_sampling.lastFrame;
        const bool isSame = !isReached || m_tolerance.isSameTurn(rigidOf({}, old), now);
        keys.push_back(isSame ? old : keyOf(now.rotation, keys.empty() ? old : keys.back()));
        isChanged = isChanged || !isSame;
        isInitial = isInitial && m_tolerance.isSameTurn(initial, rigidOf({}, keys.back()));
    }
    const bool hasTrack = node.rotationIndex < m_block.rotations.trackCount();
    if (!isChanged || (!hasTrack && isInitial))
        return false;
    return setTrack(m_block.rotations, &AnimNode::rotationIndex, bone, keys, m_old.rotations.trackCount());
}

/// A track that the bone has for itself takes the keys; else there is one behind the others, which bones of
/// the same keys share. Returns whether the bone has other keys now.
template <typename Key>
bool BlockTracks::setTrack(TrackTable<Key> &table, quint16 AnimNode::*index, size_t bone,
                           const std::vector<Key> &keys, int ownTracks)
{
    const auto holds = [&](int track) {
        for (int frame = 0; frame < table.frameCount(); ++frame) {
            if (!isSameKey(m_tolerance, table.at(track, frame), keys[size_t(frame)]))
                return false;
        }
        return true;
    };
    quint16 &own = m_block.nodes[bone].*index;
    const bool hasTrack = own < table.trackCount();
    if (hasTrack && holds(own))
        return false;
    const bool isShared = std::count_if(m_block.nodes.begin(), m_block.nodes.end(),
                                        [&](const AnimNode &node) { return node.*index == own; }) > 1;
    int target = hasTrack && !isShared ? int(own) : -1;
    for (int track = ownTracks; target < 0 && track < table.trackCount(); ++track)
        target = holds(track) ? track : -1;
    if (target < 0) {
        if (table.trackCount() >= MostTracks)
            return false;
        target = table.trackCount();
        table.setTrackCount(target + 1, Key());
    }
    for (int frame = 0; frame < table.frameCount(); ++frame)
        table.at(target, frame) = keys[size_t(frame)];
    own = quint16(target);
    return true;
}

void BlockTracks::updateYaw(const std::vector<double> &atKeys, const std::vector<double> &atFrames)
{
    if (m_block.frameCount() < 2)
        return;
    const auto offsetOf = [](const AnimFrame &frame) {
        return std::isfinite(frame.yawOffset) ? double(frame.yawOffset) : 0.0;
    };
    const auto turnOf = [](double angle) {
        return std::array<double, 4>{0.0, 0.0, std::sin(angle / 2.0), std::cos(angle / 2.0)};
    };
    // The offset turns the model the other way, and is the same a whole turn on.
    const auto difference = [](double yaw, double offset) {
        return std::remainder(-yaw - offset, 2.0 * M_PI);
    };
    const auto isNear = [&](double yaw, double frame) {
        const auto from = size_t(std::clamp(frame, 0.0, double(m_old.frameCount() - 1)));
        const size_t to = std::min(from + 1, m_old.frames.size() - 1);
        const auto a = turnOf(-offsetOf(m_old.frames[from]));
        const auto b = turnOf(-offsetOf(m_old.frames[to]));
        const double t = frame - double(from);
        return angleBetween(turnBetween(a, b, t, Between::Slerp), turnOf(yaw)) <= SameYaw ||
               angleBetween(turnBetween(a, b, t, Between::Nlerp), turnOf(yaw)) <= SameYaw;
    };
    bool sameAtFrames = m_old.frameCount() >= 2;
    for (int frame = m_sampling.firstFrame; frame <= std::min(m_sampling.lastFrame, m_old.frameCount() - 1);
         ++frame)
        sameAtFrames = sameAtFrames && isNear(atFrames[size_t(frame)], double(frame));
    if (isUnchanged(
            atKeys.size(), [&](size_t key, double frame) { return isNear(atKeys[key], frame); },
            sameAtFrames))
        return;
    for (int frame = m_sampling.firstFrame; frame <= std::min(m_sampling.lastFrame, m_block.frameCount() - 1);
         ++frame) {
        float &offset = m_block.frames[size_t(frame)].yawOffset;
        // Beyond what it was, the model goes on from where it is.
        if (frame >= m_old.frameCount() && frame > 0)
            offset = m_block.frames[size_t(frame) - 1].yawOffset;
        const double now = offsetOf(m_block.frames[size_t(frame)]);
        const double change = difference(atFrames[size_t(frame)], now);
        if (std::abs(change) <= SameYaw)
            continue;
        offset = float(now + change);
        m_yawChanged = true;
    }
}

bool BlockTracks::holdsStill(const Locals &locals) const
{
    return std::all_of(locals.begin(), locals.end(), [&](const std::vector<Rigid> &pose) {
        for (size_t i = 0; i < pose.size(); ++i) {
            if (!m_tolerance.isSame(pose[i], locals.front()[i]))
                return false;
        }
        return true;
    });
}

bool BlockTracks::isLoop(const Locals &locals) const
{
    if (locals.size() < 2)
        return false;
    const auto distance = [](const std::vector<Rigid> &a, const std::vector<Rigid> &b) {
        double sum = 0.0;
        for (size_t i = 0; i < a.size(); ++i)
            sum += angleBetween(a[i].rotation, b[i].rotation);
        return sum;
    };
    double farthest = 0.0;
    for (const std::vector<Rigid> &pose : locals)
        farthest = std::max(farthest, distance(pose, locals.front()));
    return distance(locals.back(), locals.front()) <= LoopPart * farthest;
}
