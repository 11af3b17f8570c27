// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CurveChannel.h"

#include "TurnAngles.h"

#include <QVector3D>
#include <QVector>

#include <array>
#include <vector>

struct AnimBlock;

/// One curve of those that are shown.
struct Curve
{
    CurveChannel channel{};
    int bone = 0;    ///< whose it is; -1: the model's
    int source = -1; ///< by CurveData::sources(); -1: the model's

    bool operator==(const Curve &other) const { return channel == other.channel && bone == other.bone; }
};

/// For each curve of `now` which of `before` it is; -1: none.
std::vector<int> placesAmong(const std::vector<Curve> &before, const std::vector<Curve> &now);

/// The values of an animation block's keys over its frames: translations as they are, rotations as angles in
/// degrees that go on without jumps, the yaw in degrees likewise. They are copies: the block may change, and
/// go, before anybody is told.
class CurveData
{
public:
    /// So many bones are drawn over one another at most.
    static constexpr int MostBones = 16;

    /// The tracks that a bone follows; -1: none, or one that a bone before it follows, too.
    struct Source
    {
        int bone = 0;
        int translationTrack = -1;
        int rotationTrack = -1;
        std::vector<Motion::Angles> angles;          ///< of each frame, where rotations are shown
        std::vector<QVector3D> places;               ///< likewise of translations
        std::array<int, 3> translations{-1, -1, -1}; ///< the curves, where they are shown
        std::array<int, 3> rotations{-1, -1, -1};
    };

    /// Channels are bits: 1 << int(CurveChannel). Of several bones the first is the one that counts most. The
    /// angles of a track that was shown before begin near to what they were.
    void show(const AnimBlock *block, const QVector<int> &bones, unsigned channels);

    /// Where the block was when it was shown: not to be read before its owner says that it still is there.
    const AnimBlock *block() const { return m_block; }
    int frameCount() const { return m_frameCount; } ///< that it had then
    int boneCount() const { return m_boneCount; }   ///< likewise
    const std::vector<Curve> &curves() const { return m_curves; }
    int count() const { return int(m_curves.size()); }
    const std::vector<Source> &sources() const { return m_sources; }
    int yawCurve() const { return m_yawCurve; } ///< -1: not shown
    bool has(CurveUnit unit) const;

    /// No number where the key is none.
    double value(int curve, int frame) const;
    /// The least and the most of a curve's numbers among some frames; false when there is none.
    bool extent(int curve, int first, int last, double &least, double &most) const;

private:
    void addCurves(const AnimBlock &block, const std::vector<Source> &before, Source &source,
                   unsigned channels);

    const AnimBlock *m_block = nullptr;
    int m_frameCount = 0;
    int m_boneCount = 0;
    std::vector<Curve> m_curves;
    std::vector<Source> m_sources;
    std::vector<double> m_yaw;
    int m_yawCurve = -1;
};
