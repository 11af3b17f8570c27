// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MarkSelection.h"

#include "TrackLayout.h"

#include <algorithm>

void MarkSelection::set(const QVector<int> &actions, int current)
{
    m_actions = actions;
    std::sort(m_actions.begin(), m_actions.end());
    m_current = m_actions.contains(current) ? current : m_actions.isEmpty() ? -1 : m_actions.last();
}

void MarkSelection::keepMarked(const TrackLayout &places)
{
    QVector<int> kept;
    for (const int action : qAsConst(m_actions)) {
        if (places.marks().find(action))
            kept.append(action);
    }
    set(kept, m_current);
}

bool MarkSelection::press(const TrackLayout &places, int action, Qt::KeyboardModifiers modifiers)
{
    QVector<int> chosen;
    if (modifiers & Qt::ControlModifier) {
        chosen = m_actions;
        if (!chosen.removeOne(action))
            chosen.append(action);
        m_anchor = action;
    } else if (modifiers & Qt::ShiftModifier) {
        const TrackMarks::Mark *mark = places.marks().find(action);
        const TrackMarks::Mark *anchor = places.marks().find(m_anchor);
        const auto [first, last] = std::minmax(anchor ? anchor : mark, mark);
        for (const TrackMarks::Mark *each = first; each <= last; ++each)
            chosen.append(each->action);
    } else {
        m_anchor = action;
        if (m_actions.contains(action))
            return false;
        chosen = {action};
    }
    set(chosen, action);
    return true;
}

void MarkSelection::selectIn(const TrackLayout &places, const QRect &band)
{
    QVector<int> within;
    for (const TrackMarks::Mark &mark : places.marks().marks()) {
        if (band.intersects(places.markRect(mark)))
            within.append(mark.action);
    }
    set(within, m_current);
}

void MarkSelection::selectAll(const TrackLayout &places)
{
    QVector<int> all;
    for (const TrackMarks::Mark &mark : places.marks().marks())
        all.append(mark.action);
    set(all, m_current);
}

void MarkSelection::step(const TrackLayout &places, int direction)
{
    const QVector<TrackMarks::Mark> &marks = places.marks().marks();
    if (marks.isEmpty())
        return;
    const TrackMarks::Mark *from = places.marks().find(m_current);
    const int last = marks.size() - 1;
    const int to =
        from ? std::clamp(int(from - marks.constData()) + direction, 0, last) : (direction > 0 ? 0 : last);
    m_anchor = marks[to].action;
    set({m_anchor}, m_anchor);
}

int MarkSelection::bounded(const TrackLayout &places, int by) const
{
    if (m_actions.isEmpty())
        return 0;
    const int last = std::min(places.scale().lastFrame(), TrackLayout::MostFrame);
    for (const int action : m_actions) {
        if (const TrackMarks::Mark *mark = places.marks().find(action))
            by = std::clamp(by, -mark->frame, last - mark->frame);
    }
    return by;
}
