// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveData.h"

#include "AnimFile.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr bool isAmong(CurveChannel channel, unsigned channels)
{
    return channels & 1U << int(channel);
}

template <typename Key>
int trackOf(const TrackTable<Key> &table, quint16 number)
{
    return number < table.trackCount() && table.frameCount() > 0 ? number : -1;
}

/// Those that a bone's track began with before; null: none.
const Motion::Angles *firstAngles(const std::vector<CurveData::Source> &before,
                                  const CurveData::Source &source)
{
    for (const CurveData::Source &each : before) {
        if (each.bone != source.bone || each.rotationTrack != source.rotationTrack)
            continue;
        const auto first = std::find_if(each.angles.begin(), each.angles.end(),
                                        [](const Motion::Angles &at) { return std::isfinite(at[0]); });
        return first == each.angles.end() ? nullptr : &*first;
    }
    return nullptr;
}
} // namespace

std::vector<int> placesAmong(const std::vector<Curve> &before, const std::vector<Curve> &now)
{
    std::vector<int> places;
    for (const Curve &curve : now) {
        const auto found = std::find(before.begin(), before.end(), curve);
        places.push_back(found == before.end() ? -1 : int(found - before.begin()));
    }
    return places;
}

void CurveData::show(const AnimBlock *block, const QVector<int> &bones, unsigned channels)
{
    m_block = block;
    m_frameCount = block ? block->frameCount() : 0;
    m_boneCount = block ? int(block->nodes.size()) : 0;
    m_curves.clear();
    const std::vector<Source> before = std::exchange(m_sources, {});
    m_yaw.clear();
    m_yawCurve = -1;
    if (!block)
        return;
    for (const int bone : bones) {
        if (bone < 0 || size_t(bone) >= block->nodes.size() || int(m_sources.size()) == MostBones)
            continue;
        const AnimNode &node = block->nodes[size_t(bone)];
        Source source;
        source.bone = bone;
        source.translationTrack = trackOf(block->translations, node.translationIndex);
        source.rotationTrack = trackOf(block->rotations, node.rotationIndex);
        for (const Source &other : m_sources) {
            if (other.translationTrack == source.translationTrack)
                source.translationTrack = -1;
            if (other.rotationTrack == source.rotationTrack)
                source.rotationTrack = -1;
        }
        m_sources.push_back(std::move(source));
    }
    for (Source &source : m_sources)
        addCurves(*block, before, source, channels);
    if (isAmong(CurveChannel::Yaw, channels)) {
        for (const AnimFrame &frame : block->frames)
            m_yaw.push_back(double(frame.yawOffset) * 180 / M_PI);
        Motion::unwrap(m_yaw);
        m_yawCurve = count();
        m_curves.push_back({CurveChannel::Yaw, -1, -1});
    }
}

void CurveData::addCurves(const AnimBlock &block, const std::vector<Source> &before, Source &source,
                          unsigned channels)
{
    const int number = int(&source - m_sources.data());
    for (int axis = 0; axis < 3; ++axis) {
        const auto channel = CurveChannel(int(CurveChannel::TranslationX) + axis);
        if (source.translationTrack < 0 || !isAmong(channel, channels))
            continue;
        if (source.places.empty()) {
            const QVector3D *first = &block.translations.at(source.translationTrack, 0);
            source.places.assign(first, first + m_frameCount);
        }
        source.translations[size_t(axis)] = count();
        m_curves.push_back({channel, source.bone, number});
    }
    for (int axis = 0; axis < 3; ++axis) {
        const auto channel = CurveChannel(int(CurveChannel::RotationX) + axis);
        if (source.rotationTrack < 0 || !isAmong(channel, channels))
            continue;
        if (source.angles.empty())
            source.angles = Motion::anglesOfTrack(&block.rotations.at(source.rotationTrack, 0), m_frameCount,
                                                  firstAngles(before, source));
        source.rotations[size_t(axis)] = count();
        m_curves.push_back({channel, source.bone, number});
    }
}

bool CurveData::has(CurveUnit unit) const
{
    return std::any_of(m_curves.begin(), m_curves.end(),
                       [unit](const Curve &curve) { return unitOf(curve.channel) == unit; });
}

double CurveData::value(int curve, int frame) const
{
    const Curve &shown = m_curves[size_t(curve)];
    const int axis = axisOf(shown.channel);
    if (shown.source < 0)
        return m_yaw[size_t(frame)];
    const Source &source = m_sources[size_t(shown.source)];
    if (kindOf(shown.channel) == CurveKind::Rotation)
        return source.angles[size_t(frame)][size_t(axis)];
    return double(source.places[size_t(frame)][axis]);
}

bool CurveData::extent(int curve, int first, int last, double &least, double &most) const
{
    bool isThere = false;
    for (int frame = std::max(0, first); frame <= std::min(last, frameCount() - 1); ++frame) {
        const double each = value(curve, frame);
        if (!std::isfinite(each))
            continue;
        least = isThere ? std::min(least, each) : each;
        most = isThere ? std::max(most, each) : each;
        isThere = true;
    }
    return isThere;
}
