// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ClipSampler.h"

#include <algorithm>
#include <limits>
#include <set>

namespace {
// What programs that show such scenes take where a file does not say.
constexpr double UsualTicksPerSecond = 25.0;
constexpr double LeastOwnRate = 10.0;
constexpr double GreatestOwnRate = 60.0;
constexpr double RateTolerance = 0.01; // single precision times of a clip of minutes leave that much
/// A key within this of the rest pose is at rest; of the elements of a matrix, in the source's units.
constexpr double RestTolerance = 1e-5;

bool isUsable(const Vector3 &value)
{
    return isFinite(value);
}

bool isUsable(const Turn &value)
{
    const double length = dot(value, value);
    return std::isfinite(length) && length > 1e-12;
}

Vector3 between(const Vector3 &from, const Vector3 &to, double t)
{
    return from + (to - from) * t;
}

/// The short way round.
Turn between(const Turn &from, const Turn &to, double t)
{
    Turn turn;
    Turn::Interpolate(turn, from, to, t);
    return turn.Normalize();
}

Vector3 cleaned(const Vector3 &value)
{
    return value;
}

Turn cleaned(Turn value)
{
    return value.Normalize();
}

bool isNear(const Matrix4 &a, const Matrix4 &b)
{
    for (unsigned row = 0; row < 3; ++row) {
        for (unsigned column = 0; column < 4; ++column) {
            const double tolerance = RestTolerance * std::max(1.0, std::abs(a[row][column]));
            if (!(std::abs(a[row][column] - b[row][column]) <= tolerance))
                return false;
        }
    }
    return true;
}
} // namespace

ClipSampler::ClipSampler(const SceneNodes &nodes, const aiAnimation &clip)
    : m_ticksPerSecond(clip.mTicksPerSecond > 0.0 && std::isfinite(clip.mTicksPerSecond)
                           ? clip.mTicksPerSecond
                           : UsualTicksPerSecond)
{
    std::set<int> known;
    for (unsigned i = 0; i < clip.mNumChannels; ++i) {
        const aiNodeAnim &source = *clip.mChannels[i];
        const int node = nodes.find(source.mNodeName);
        if (node == SceneNodes::None || !known.insert(node).second)
            continue;
        Channel channel;
        channel.node = node;
        channel.places = readKeys<Vector3>(source.mPositionKeys, source.mNumPositionKeys);
        channel.turns = readKeys<Turn>(source.mRotationKeys, source.mNumRotationKeys);
        channel.scales = readKeys<Vector3>(source.mScalingKeys, source.mNumScalingKeys);
        nodes[node].rest.Decompose(channel.restScale, channel.restTurn, channel.restPlace);
        m_channels.push_back(std::move(channel));
    }
    double first = std::numeric_limits<double>::infinity();
    double last = -first;
    eachKeyTimes([&](const auto &keys) {
        // One stands for what does not move, at whatever time.
        if (keys.size() > 1) {
            first = std::min(first, keys.front().time);
            last = std::max(last, keys.back().time);
        }
    });
    if (first <= last) {
        m_first = first;
        m_length = (last - first) / m_ticksPerSecond;
    }
}

template <typename Look>
void ClipSampler::eachKeyTimes(Look look) const
{
    for (const Channel &channel : m_channels) {
        look(channel.places);
        look(channel.turns);
        look(channel.scales);
    }
}

template <typename Value, typename Source>
ClipSampler::Keys<Value> ClipSampler::readKeys(const Source *keys, unsigned count)
{
    Keys<Value> read;
    if (!keys)
        return read;
    read.reserve(count);
    for (unsigned i = 0; i < count; ++i) {
        const Value value = exact(keys[i].mValue);
        if (std::isfinite(keys[i].mTime) && isUsable(value))
            read.push_back({keys[i].mTime, cleaned(value)});
    }
    const auto isEarlier = [](const Key<Value> &a, const Key<Value> &b) { return a.time < b.time; };
    if (!std::is_sorted(read.begin(), read.end(), isEarlier))
        std::stable_sort(read.begin(), read.end(), isEarlier);
    return read;
}

double ClipSampler::ownRate() const
{
    const auto isRate = [](double rate) { return rate >= LeastOwnRate && rate <= GreatestOwnRate; };
    if (isRate(m_ticksPerSecond))
        return m_ticksPerSecond;
    double gap = std::numeric_limits<double>::infinity();
    eachKeyTimes([&gap](const auto &keys) {
        for (size_t i = 1; i < keys.size(); ++i) {
            if (keys[i].time > keys[i - 1].time)
                gap = std::min(gap, keys[i].time - keys[i - 1].time);
        }
    });
    const double rate = m_ticksPerSecond / gap;
    const double whole = std::round(rate);
    const double likely = std::abs(rate - whole) <= RateTolerance * whole ? whole : rate;
    return isRate(likely) ? likely : 0.0;
}

void ClipSampler::markMoved(const SceneNodes &nodes, std::vector<bool> &moved) const
{
    for (const Channel &channel : m_channels) {
        if (channel.places.size() > 1 || channel.turns.size() > 1 || channel.scales.size() > 1 ||
            !isNear(placeAt(channel, m_first), nodes[channel.node].rest))
            moved[size_t(channel.node)] = true;
    }
}

template <typename Value>
Value ClipSampler::valueAt(const Keys<Value> &keys, const Value &rest, double time)
{
    if (keys.empty())
        return rest;
    const auto next = std::upper_bound(keys.begin(), keys.end(), time,
                                       [](double at, const Key<Value> &key) { return at < key.time; });
    if (next == keys.begin())
        return next->value;
    const auto last = std::prev(next);
    if (next == keys.end())
        return last->value;
    return between(last->value, next->value, (time - last->time) / (next->time - last->time));
}

Matrix4 ClipSampler::placeAt(const Channel &channel, double time)
{
    return composed(valueAt(channel.scales, channel.restScale, time),
                    valueAt(channel.turns, channel.restTurn, time),
                    valueAt(channel.places, channel.restPlace, time));
}

void ClipSampler::place(double seconds, std::vector<Matrix4> &places) const
{
    for (const Channel &channel : m_channels)
        places[size_t(channel.node)] = placeAt(channel, m_first + seconds * m_ticksPerSecond);
}
