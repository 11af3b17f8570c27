// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TrackMarks.h"

#include "AnimFile.h"
#include "EventArguments.h"
#include "TrackScale.h"

#include <algorithm>

EventFamily eventFamily(int eventType)
{
    for (int i = 0; i < 8; ++i) {
        const QLatin1String question = eventArgument(eventType, i).question;
        if (question == Question::Damage)
            return EventFamily::Damage;
        if (question == Question::Sound || question == Question::Voice)
            return EventFamily::Sound;
        if (question == Question::Particle)
            return EventFamily::Particle;
    }
    return EventFamily::Other;
}

void TrackMarks::set(const AnimBlock *block)
{
    m_marks.clear();
    const int count = block ? int(block->actions.size()) : 0;
    for (int i = 0; i < count; ++i) {
        const AnimAction &action = block->actions[size_t(i)];
        if (action.frame < block->frameCount())
            m_marks.append({i, action.frame, eventFamily(action.eventType)});
    }
    std::stable_sort(m_marks.begin(), m_marks.end(),
                     [](const Mark &a, const Mark &b) { return a.frame < b.frame; });
    m_ofAction.fill(-1, count);
    for (int i = 0; i < m_marks.size(); ++i)
        m_ofAction[m_marks[i].action] = i;
}

void TrackMarks::arrange(const TrackScale &scale)
{
    QVector<double> ends; // of each lane
    for (Mark &mark : m_marks) {
        const double x = scale.xOf(mark.frame);
        int lane = 0;
        while (lane < ends.size() && ends[lane] > x)
            ++lane;
        lane = std::min(lane, MostLanes - 1);
        if (lane == ends.size())
            ends.append(0.0);
        ends[lane] = x + 2.0 * Reach;
        mark.lane = lane;
    }
    m_laneCount = std::max(1, int(ends.size()));
}

const TrackMarks::Mark *TrackMarks::find(int action) const
{
    const int mark = m_ofAction.value(action, -1);
    return mark < 0 ? nullptr : &m_marks[mark];
}
