// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "SceneNodes.h"

/// An animation of a scene, to be asked where nodes stand at any time. Keys that are no number are left out,
/// those out of order are put in order.
class ClipSampler
{
public:
    ClipSampler(const SceneNodes &nodes, const aiAnimation &clip);

    /// Seconds from the first key to the last.
    double length() const { return m_length; }
    /// Frames a second as the source says it, in ticks or, where those are finer, in the distances of keys;
    /// 0 when it is not between 10 and 60.
    double ownRate() const;

    /// Marks the nodes that the clip may move: those with several keys, and those whose only key is not at
    /// rest.
    void markMoved(const SceneNodes &nodes, std::vector<bool> &moved) const;

    /// Puts nodes where they are `seconds` after the first key, relative to their parents. Before the first
    /// key of a channel and behind its last one the node holds still.
    void place(double seconds, std::vector<Matrix4> &places) const;

private:
    template <typename Value>
    struct Key
    {
        double time; ///< in ticks
        Value value;
    };
    template <typename Value>
    using Keys = std::vector<Key<Value>>;

    struct Channel
    {
        int node;
        Keys<Vector3> places;
        Keys<Turn> turns;
        Keys<Vector3> scales;
        // Where a list of keys is empty.
        Vector3 restPlace;
        Turn restTurn;
        Vector3 restScale;
    };

    template <typename Value, typename Source>
    static Keys<Value> readKeys(const Source *keys, unsigned count);
    template <typename Value>
    static Value valueAt(const Keys<Value> &keys, const Value &rest, double time);
    static Matrix4 placeAt(const Channel &channel, double time);
    template <typename Look>
    void eachKeyTimes(Look look) const;

    std::vector<Channel> m_channels;
    double m_ticksPerSecond;
    double m_first = 0.0; ///< in ticks
    double m_length = 0.0;
};
