// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlockAccount.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <vector>

namespace Motion {
/// The keys that bones of a block follow, while some get others. Tracks are shared by bones: one whose keys
/// change gets a track of its own, so nothing changes under another bone; in the end bones with the same keys
/// share one again, and a track that lost its last bone goes. Tracks that no bone followed before stay.
template <typename KeyType, TrackTable<KeyType> AnimBlock::*Table, quint16 AnimNode::*Number>
class BoneTracks
{
public:
    using Key = KeyType;
    using Keys = std::vector<Key>;

    /// The block outlives this.
    explicit BoneTracks(AnimBlock &block)
        : m_block(block)
        , m_states(block.nodes.size())
    {}

    /// The keys of a bone's track as it was; null for a bone that follows none.
    static const Key *of(const AnimBlock &block, size_t bone)
    {
        const int number = block.nodes[bone].*Number;
        const TrackTable<Key> &table = block.*Table;
        return number < table.trackCount() && table.frameCount() > 0 ? &table.at(number, 0) : nullptr;
    }

    /// One key a frame.
    void follow(size_t bone, Keys keys) { m_states[bone] = {State::Own, std::move(keys)}; }
    /// The bone keeps its initial position or rotation.
    void rest(size_t bone) { m_states[bone] = {State::Rest, {}}; }

    /// Gives the block what was asked for. Returns the reason, for the user, why that cannot be; then the
    /// block is as it was.
    QString store()
    {
        TrackTable<Key> &table = m_block.*Table;
        const int frames = m_block.frameCount();
        const int oldCount = table.trackCount();
        std::vector<Keys> tracks(
            static_cast<size_t>(oldCount)); // those that are new; empty ones stand as they were
        std::vector<bool> wasFollowed(tracks.size());
        std::vector<bool> isFollowed(tracks.size());
        std::vector<int> numbers(m_block.nodes.size(), None);
        for (size_t bone = 0; bone < numbers.size(); ++bone) {
            const quint16 number = m_block.nodes[bone].*Number;
            if (number >= oldCount)
                continue;
            wasFollowed[number] = true;
            if (m_states[bone].state == State::Own && isTrack(number, m_states[bone].keys))
                m_states[bone] = {};
            if (m_states[bone].state == State::Same) {
                isFollowed[number] = true;
                numbers[bone] = number;
            }
        }
        std::map<Keys, int, Less> made;
        for (size_t bone = 0; bone < numbers.size(); ++bone) {
            if (m_states[bone].state != State::Own)
                continue;
            const auto [place, isNew] = made.try_emplace(std::move(m_states[bone].keys), 0);
            if (isNew) {
                const quint16 old = m_block.nodes[bone].*Number;
                const bool isFree = old < oldCount && !isFollowed[old];
                place->second = isFree ? old : int(tracks.size());
                if (isFree) {
                    isFollowed[old] = true;
                } else {
                    tracks.emplace_back();
                    isFollowed.push_back(true);
                }
                tracks[size_t(place->second)] = place->first;
            }
            numbers[bone] = place->second;
        }
        std::vector<int> places(tracks.size(), None);
        int count = 0;
        for (size_t track = 0; track < tracks.size(); ++track) {
            const bool isUnused = track < wasFollowed.size() && !wasFollowed[track];
            if (isFollowed[track] || isUnused)
                places[track] = count++;
        }
        if (count > std::max(MostTracks, oldCount))
            return Texts::tr("It would need %1 tracks; %2 is the most that it can have.")
                .arg(count)
                .arg(MostTracks);

        TrackTable<Key> result(count, frames);
        for (size_t track = 0; track < tracks.size(); ++track) {
            if (places[track] == None || frames == 0)
                continue;
            const Key *keys = tracks[track].empty() ? &table.at(int(track), 0) : tracks[track].data();
            std::copy(keys, keys + frames, &result.at(places[track], 0));
        }
        for (size_t bone = 0; bone < numbers.size(); ++bone) {
            quint16 &number = m_block.nodes[bone].*Number;
            if (numbers[bone] != None)
                number = quint16(places[size_t(numbers[bone])]);
            else if (number < std::max(count, oldCount))
                number = None; // it would be that of a track
        }
        table = std::move(result);
        return {};
    }

    /// Takes out the tracks that no bone follows.
    static void removeUnused(AnimBlock &block)
    {
        std::vector<bool> isFollowed(static_cast<size_t>((block.*Table).trackCount()));
        for (const AnimNode &bone : block.nodes) {
            if (bone.*Number < isFollowed.size())
                isFollowed[bone.*Number] = true;
        }
        std::vector<int> places;
        int count = 0;
        for (const bool stays : isFollowed)
            places.push_back(stays ? count++ : int(None));
        keep(block, places, count);
    }

    /// Lets tracks that are the same bit for bit be one.
    static void joinEqual(AnimBlock &block, const BlockAccount &account)
    {
        const TrackTable<Key> &table = block.*Table;
        const int frames = table.frameCount();
        std::map<Keys, int, Less> made;
        std::vector<int> places;
        for (int track = 0; track < table.trackCount(); ++track) {
            Keys keys;
            if (frames > 0)
                keys.assign(&table.at(track, 0), &table.at(track, 0) + frames);
            places.push_back(made.try_emplace(std::move(keys), int(made.size())).first->second);
            if (account.isCancelled())
                return;
        }
        keep(block, places, int(made.size()));
    }

private:
    /// By bits: what is no number has an order, too.
    struct Less
    {
        bool operator()(const Keys &a, const Keys &b) const
        {
            return a.size() != b.size() ? a.size() < b.size()
                                        : std::memcmp(a.data(), b.data(), a.size() * sizeof(Key)) < 0;
        }
    };

    enum class State { Same, Own, Rest };
    struct BoneState
    {
        State state = State::Same;
        Keys keys;
    };

    bool isTrack(int number, const Keys &keys) const
    {
        const TrackTable<Key> &table = m_block.*Table;
        return !keys.empty() && keys.size() == size_t(table.frameCount()) &&
               std::memcmp(&table.at(number, 0), keys.data(), keys.size() * sizeof(Key)) == 0;
    }

    /// `places`: for each track the number that it gets; None where it goes. One number may be given twice.
    static void keep(AnimBlock &block, const std::vector<int> &places, int count)
    {
        TrackTable<Key> &table = block.*Table;
        if (count == table.trackCount())
            return;
        TrackTable<Key> kept(count, table.frameCount());
        for (int track = 0; track < table.trackCount(); ++track) {
            for (int frame = 0; frame < table.frameCount() && places[size_t(track)] != None; ++frame)
                kept.at(places[size_t(track)], frame) = table.at(track, frame);
        }
        for (AnimNode &bone : block.nodes) {
            if (bone.*Number < places.size())
                bone.*Number = quint16(places[bone.*Number]);
        }
        table = std::move(kept);
    }

    AnimBlock &m_block;
    std::vector<BoneState> m_states;
};

using TranslationsOfBones = BoneTracks<QVector3D, &AnimBlock::translations, &AnimNode::translationIndex>;
using RotationsOfBones = BoneTracks<QVector4D, &AnimBlock::rotations, &AnimNode::rotationIndex>;

/// Takes out the tracks that no bone follows.
struct RemoveUnusedTracks
{};
inline QString apply(const RemoveUnusedTracks &, AnimBlock &block, BlockAccount &)
{
    TranslationsOfBones::removeUnused(block);
    RotationsOfBones::removeUnused(block);
    return {};
}

/// Lets tracks that are the same bit for bit be one, which all their bones follow.
struct JoinEqualTracks
{};
inline QString apply(const JoinEqualTracks &, AnimBlock &block, BlockAccount &account)
{
    TranslationsOfBones::joinEqual(block, account);
    RotationsOfBones::joinEqual(block, account);
    return {};
}
} // namespace Motion
