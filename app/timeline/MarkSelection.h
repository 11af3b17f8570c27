// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QVector>

#include <algorithm>

class TrackLayout;

/// The selected key frame actions of a track, as clicks, bands and keys select them.
class MarkSelection
{
public:
    /// Ascending.
    const QVector<int> &actions() const { return m_actions; }
    /// The one of them that was chosen last; -1: none.
    int current() const { return m_current; }
    bool contains(int action) const { return std::binary_search(m_actions.begin(), m_actions.end(), action); }

    void set(const QVector<int> &actions, int current);
    /// Leaves out those that have no mark any more.
    void keepMarked(const TrackLayout &places);

    /// A press on a mark: the one, with Ctrl it or not it, with Shift all from the last to it. One of those
    /// that are selected changes nothing without these keys. Returns whether anything did.
    bool press(const TrackLayout &places, int action, Qt::KeyboardModifiers modifiers);
    void selectIn(const TrackLayout &places, const QRect &band);
    void selectAll(const TrackLayout &places);
    /// Goes to the next mark (1), or the one before (-1).
    void step(const TrackLayout &places, int direction);

    /// By how many frames they can be moved when so many are wanted: none leaves the animation.
    int bounded(const TrackLayout &places, int by) const;

private:
    QVector<int> m_actions;
    int m_current = -1;
    int m_anchor = -1; ///< from which Shift selects
};
