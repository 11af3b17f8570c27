// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <qnamespace.h>

#include <array>
#include <vector>

/// A key of one of the curves that are shown.
struct CurveKey
{
    int curve = -1;
    int frame = -1;

    bool isNone() const { return curve < 0; }
    bool operator==(const CurveKey &other) const { return curve == other.curve && frame == other.frame; }
};

/// The selected keys of curves.
class CurveSelection
{
public:
    /// Nothing is selected, of so many curves.
    void reset(int curves, int frames);
    void clear() { reset(int(m_chosen.size()), m_frames); }
    /// The curves have another order: each is the one of before that `from` names; -1: a new one.
    void rearrange(const std::vector<int> &from);
    int frameCount() const { return m_frames; }

    bool isEmpty() const { return m_count == 0; }
    int count() const { return m_count; }
    bool contains(int curve, int frame) const
    {
        const auto &chosen = m_chosen[size_t(curve)];
        return !chosen.empty() && chosen[size_t(frame)];
    }
    bool contains(const CurveKey &key) const { return contains(key.curve, key.frame); }
    bool hasOf(int curve) const { return curve >= 0 && !m_chosen[size_t(curve)].empty(); }
    bool hasOf(const std::array<int, 3> &curves) const
    {
        return hasOf(curves[0]) || hasOf(curves[1]) || hasOf(curves[2]);
    }
    /// Which frames of a curve, all of them in a row; none when the curve has none.
    const std::vector<bool> &frames(int curve) const { return m_chosen[size_t(curve)]; }

    void set(const CurveKey &key, bool on);
    /// All from one frame to another, in either order.
    void add(int curve, int from, int to);

    /// Every key of every curve; the frame's of the first one is the current one unless another is.
    void addAll(int frame);

    /// A press on a key: the one, with Ctrl it or not it, with Shift all from the last to it. One of those
    /// that are selected changes nothing without these keys.
    void press(const CurveKey &key, Qt::KeyboardModifiers modifiers);
    /// Goes along the curve of the current key, to that one alone, or adds the key that is there.
    void step(int frames, bool adds);
    /// Goes to another curve's key at the frame of the current one, without one to the first curve's.
    void stepCurve(int curves, int frame);

    /// The one that was chosen last, if it is still selected; else the first that is.
    CurveKey current() const;
    void setCurrent(const CurveKey &key) { m_current = key; }

private:
    std::vector<std::vector<bool>> m_chosen; ///< by curve; empty until one of them is selected
    int m_frames = 0;
    int m_count = 0;
    CurveKey m_current;
    CurveKey m_anchor; ///< from which Shift selects
};
