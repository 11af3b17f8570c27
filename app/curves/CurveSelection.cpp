// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CurveSelection.h"

#include <algorithm>
#include <utility>

void CurveSelection::reset(int curves, int frames)
{
    m_chosen.assign(size_t(curves), {});
    m_frames = frames;
    m_count = 0;
    m_current = {};
    m_anchor = {};
}

void CurveSelection::rearrange(const std::vector<int> &from)
{
    const auto before = std::exchange(m_chosen, std::vector<std::vector<bool>>(from.size()));
    const auto place = [&from](CurveKey &key) {
        const auto found = std::find(from.begin(), from.end(), key.curve);
        key =
            key.isNone() || found == from.end() ? CurveKey() : CurveKey{int(found - from.begin()), key.frame};
    };
    place(m_current);
    place(m_anchor);
    m_count = 0;
    for (size_t curve = 0; curve < from.size(); ++curve) {
        if (from[curve] >= 0)
            m_chosen[curve] = before[size_t(from[curve])];
        m_count += int(std::count(m_chosen[curve].begin(), m_chosen[curve].end(), true));
    }
}

CurveKey CurveSelection::current() const
{
    if (m_count == 0 || (!m_current.isNone() && contains(m_current)))
        return m_count == 0 ? CurveKey() : m_current;
    for (int curve = 0; curve < int(m_chosen.size()); ++curve) {
        const auto &chosen = m_chosen[size_t(curve)];
        const auto found = std::find(chosen.begin(), chosen.end(), true);
        if (found != chosen.end())
            return {curve, int(found - chosen.begin())};
    }
    return {};
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
    if (key.isNone())
        return;
    key.frame = std::clamp(key.frame + frames, 0, m_frames - 1);
    if (adds) {
        set(key, true);
    } else if (!contains(key) || m_count > 1) {
        clear();
        press(key, {});
    }
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
