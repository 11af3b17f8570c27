// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

/// The translation or rotation table of an animation block: tracks of equally many keys, one a frame, in
/// one contiguous array. All tracks have the frame count's length by construction, so a table that could
/// not be read back from its file cannot exist.
template <typename Key>
class TrackTable
{
public:
    TrackTable() = default;
    TrackTable(int trackCount, int frameCount, const Key &neutral = Key())
        : m_trackCount(trackCount)
        , m_frameCount(frameCount)
        , m_keys(size_t(trackCount) * size_t(frameCount), neutral)
    {}

    int trackCount() const { return m_trackCount; }
    int frameCount() const { return m_frameCount; }

    bool contains(int track, int frame) const
    {
        return track >= 0 && track < m_trackCount && frame >= 0 && frame < m_frameCount;
    }

    Key &at(int track, int frame) { return m_keys[index(track, frame)]; }
    const Key &at(int track, int frame) const { return m_keys[index(track, frame)]; }

    /// The keys of all tracks, track by track.
    Key *data() { return m_keys.data(); }
    const std::vector<Key> &keys() const { return m_keys; }

    /// Every new key of a track repeats its last old key; without one it is `neutral`.
    void setFrameCount(int frameCount, const Key &neutral)
    {
        TrackTable resized(m_trackCount, frameCount, neutral);
        const int kept = std::min(frameCount, m_frameCount);
        for (int track = 0; track < m_trackCount; ++track) {
            for (int frame = 0; frame < frameCount && m_frameCount > 0; ++frame)
                resized.at(track, frame) = at(track, frame < kept ? frame : m_frameCount - 1);
        }
        *this = std::move(resized);
    }

    /// Every new track repeats the last old track; without one its keys are `neutral`.
    void setTrackCount(int trackCount, const Key &neutral)
    {
        TrackTable resized(trackCount, m_frameCount, neutral);
        for (int track = 0; track < trackCount && m_trackCount > 0; ++track) {
            for (int frame = 0; frame < m_frameCount; ++frame)
                resized.at(track, frame) = at(std::min(track, m_trackCount - 1), frame);
        }
        *this = std::move(resized);
    }

private:
    size_t index(int track, int frame) const { return size_t(track) * size_t(m_frameCount) + size_t(frame); }

    int m_trackCount = 0;
    int m_frameCount = 0;
    std::vector<Key> m_keys;
};
