// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveData.h"

#include "AnimFile.h"

#include <algorithm>
#include <cmath>

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
} // namespace

int CurveData::frameCount() const
{
    return m_block ? m_block->frameCount() : 0;
}

void CurveData::show(const AnimBlock *block, const QVector<int> &bones, unsigned channels)
{
    m_block = block;
    m_curves.clear();
    m_sources.clear();
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
        for (const Source &before : m_sources) {
            if (before.translationTrack == source.translationTrack)
                source.translationTrack = -1;
            if (before.rotationTrack == source.rotationTrack)
                source.rotationTrack = -1;
        }
        m_sources.push_back(std::move(source));
    }
    for (Source &source : m_sources)
        addCurves(source, channels);
    if (isAmong(CurveChannel::Yaw, channels)) {
        for (const AnimFrame &frame : block->frames)
            m_yaw.push_back(double(frame.yawOffset) * 180 / M_PI);
        Motion::unwrap(m_yaw);
        m_yawCurve = count();
        m_curves.push_back({CurveChannel::Yaw, -1, -1});
    }
}

void CurveData::addCurves(Source &source, unsigned channels)
{
    const int number = int(&source - m_sources.data());
    for (int axis = 0; axis < 3; ++axis) {
        const auto channel = CurveChannel(int(CurveChannel::TranslationX) + axis);
        if (source.translationTrack < 0 || !isAmong(channel, channels))
            continue;
        source.translations[size_t(axis)] = count();
        m_curves.push_back({channel, source.bone, number});
    }
    for (int axis = 0; axis < 3; ++axis) {
        const auto channel = CurveChannel(int(CurveChannel::RotationX) + axis);
        if (source.rotationTrack < 0 || !isAmong(channel, channels))
            continue;
        if (source.angles.empty())
            source.angles =
                Motion::anglesOfTrack(&m_block->rotations.at(source.rotationTrack, 0), frameCount());
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
    return double(m_block->translations.at(source.translationTrack, frame)[axis]);
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
