// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveSelection.h"

#include <algorithm>

void CurveSelection::reset(int curves, int frames)
{
    m_chosen.assign(size_t(curves), {});
    m_frames = frames;
    m_count = 0;
    m_current = {};
    m_anchor = {};
}

void CurveSelection::set(const CurveKey &key, bool on)
{
    std::vector<bool> &chosen = m_chosen[size_t(key.curve)];
    if (contains(key) == on)
        return;
    if (chosen.empty())
        chosen.resize(size_t(m_frames));
    chosen[size_t(key.frame)] = on;
    m_count += on ? 1 : -1;
}

void CurveSelection::add(int curve, int from, int to)
{
    for (int frame = std::min(from, to); frame <= std::max(from, to); ++frame)
        set({curve, frame}, true);
}

void CurveSelection::addAll(int frame)
{
    if (m_chosen.empty() || m_frames == 0)
        return;
    const CurveKey before = current();
    for (int curve = 0; curve < int(m_chosen.size()); ++curve)
        add(curve, 0, m_frames - 1);
    m_current = before.isNone() ? CurveKey{0, std::clamp(frame, 0, m_frames - 1)} : before;
}

void CurveSelection::press(const CurveKey &key, Qt::KeyboardModifiers modifiers)
{
    const bool adds = modifiers & Qt::ShiftModifier;
    if (modifiers & Qt::ControlModifier) {
        set(key, !contains(key));
    } else if (adds && m_anchor.curve == key.curve) {
        add(key.curve, m_anchor.frame, key.frame);
    } else {
        if (!adds && !contains(key))
            clear();
        set(key, true);
    }
    if (!adds || m_anchor.isNone())
        m_anchor = key;
    m_current = key;
}

void CurveSelection::step(int frames, bool adds)
{
    CurveKey key = current();
    if (key.isNone() || (!adds && m_count > 1))
        return;
    key.frame = std::clamp(key.frame + frames, 0, m_frames - 1);
    if (adds)
        set(key, true);
    else if (!contains(key))
        press(key, {});
    m_current = key;
}

void CurveSelection::stepCurve(int curves, int frame)
{
    if (m_chosen.empty() || m_frames == 0)
        return;
    CurveKey key = current();
    if (key.isNone())
        key = {0, std::clamp(frame, 0, m_frames - 1)};
    else
        key.curve = std::clamp(key.curve + curves, 0, int(m_chosen.size()) - 1);
    clear();
    press(key, {});
}
