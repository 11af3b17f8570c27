// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QVector>

#include <algorithm>
#include <optional>

/// One of the track tables of an animation block, and the numbers by which bones follow its tracks: they are
/// edited together.
template <typename KeyType, TrackTable<KeyType> AnimBlock::*Table, quint16 AnimNode::*Number>
class Tracks
{
public:
    using Key = KeyType;

    /// The number of a bone that follows no track.
    static constexpr quint16 None = 0xFFFF;

    explicit Tracks(const AnimBlock &block)
        : m_table(block.*Table)
        , m_replaced((block.*Table).trackCount())
    {
        for (const AnimNode &bone : block.nodes)
            m_numbers.push_back(bone.*Number);
    }

    static const TrackTable<Key> &table(const AnimBlock &block) { return block.*Table; }

    /// Lets the table have other tracks: for each place the number of the track that stands there now, or
    /// -1 - i for the i-th of `added`, which have as many keys. Bones go on following theirs; one whose track
    /// goes keeps its initial position or rotation. Returns the number that some bone has and that would
    /// become that of a track, though it is of none now: then nothing is done.
    std::optional<int> arrange(const std::vector<int> &places, const TrackTable<Key> &added)
    {
        const int count = m_table.trackCount();
        const int frames = m_table.frameCount();
        std::vector<quint16> numbers(static_cast<size_t>(count), None);
        TrackTable<Key> made(int(places.size()), frames);
        for (int place = 0; place < int(places.size()); ++place) {
            const int from = places[size_t(place)];
            for (int frame = 0; frame < frames; ++frame)
                made.at(place, frame) = from >= 0 ? m_table.at(from, frame) : added.at(-1 - from, frame);
            if (from >= 0)
                numbers[size_t(from)] = quint16(place);
        }
        for (const quint16 number : m_numbers) {
            if (number >= count && number < made.trackCount())
                return number;
        }
        for (quint16 &number : m_numbers)
            number = number < count ? numbers[number] : number;
        m_table = std::move(made);
        return {};
    }

    /// How many bones follow one of these tracks.
    static int followers(const AnimBlock &block, const QVector<int> &tracks)
    {
        return int(std::count_if(block.nodes.begin(), block.nodes.end(),
                                 [&](const AnimNode &bone) { return tracks.contains(bone.*Number); }));
    }

    /// As ExchangeCommand wants it. The frame count may have changed meanwhile without an undo step.
    bool fits(const AnimFile &file, const RecordIndex &index) const
    {
        const AnimBlock *block = Records::Block::find(file, index);
        return block && block->nodes.size() == m_numbers.size() && (block->*Table).trackCount() == m_replaced;
    }
    void exchange(AnimFile &file, const RecordIndex &index)
    {
        AnimBlock &block = *Records::Block::find(file, index);
        m_replaced = m_table.trackCount();
        if (m_table.frameCount() != block.frameCount())
            m_table.setFrameCount(block.frameCount(), neutral());
        std::swap(m_table, block.*Table);
        for (size_t bone = 0; bone < m_numbers.size(); ++bone)
            std::swap(m_numbers[bone], block.nodes[bone].*Number);
    }

private:
    static Key neutral()
    {
        if constexpr (std::is_same_v<Key, QVector4D>)
            return {0.0f, 0.0f, 0.0f, 1.0f};
        else
            return {};
    }

    TrackTable<Key> m_table;
    std::vector<quint16> m_numbers; ///< of the bones
    int m_replaced;                 ///< how many tracks there are where these come in
};

using TranslationTracks = Tracks<QVector3D, &AnimBlock::translations, &AnimNode::translationIndex>;
using RotationTracks = Tracks<QVector4D, &AnimBlock::rotations, &AnimNode::rotationIndex>;
