// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

struct AnimBlock;
class TrackScale;

/// What an event is about, as far as its mark shows it.
enum class EventFamily { Sound, Particle, Damage, Other };

EventFamily eventFamily(int eventType);

/// The key frame actions of a block as marks, in lanes where they would lie over one another.
class TrackMarks
{
public:
    static constexpr int MostLanes = 4;
    static constexpr double Reach = 6.0; ///< pixels to either side of a mark that belong to it

    struct Mark
    {
        int action;
        int frame;
        EventFamily family;
        int lane = 0;
    };

    /// Takes the actions of a block over, without those beyond its last frame; null: none.
    void set(const AnimBlock *block);
    /// Finds the lanes; marks of one lane are apart in that scale, as long as there are lanes for it.
    void arrange(const TrackScale &scale);

    /// By frame, those of one frame in the order of the file.
    const QVector<Mark> &marks() const { return m_marks; }
    int laneCount() const { return m_laneCount; }
    /// By action; null for one that has no mark.
    const Mark *find(int action) const;

private:
    QVector<Mark> m_marks;
    QVector<int> m_ofAction; ///< the mark of each action; -1: none
    int m_laneCount = 1;
};
