// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TrackScale.h"

#include <algorithm>
#include <cmath>

void TrackScale::fit(int left, int right, int count)
{
    m_left = left;
    m_right = std::max(left + 1, right);
    m_count = count;
    m_zoom = std::clamp(m_zoom, 1.0, mostZoom());
    scrollTo(m_scroll);
}

double TrackScale::pixelsPerFrame() const
{
    return length() / std::max(1, lastFrame());
}

int TrackScale::frameAt(double x) const
{
    return int(std::clamp(std::round((x - m_left + m_scroll) / pixelsPerFrame()), 0.0, double(lastFrame())));
}

double TrackScale::mostZoom() const
{
    return std::max(1.0, MostPixels * std::max(1, lastFrame()) / room());
}

bool TrackScale::zoom(double factor, double x)
{
    const double before = m_zoom;
    const double frame = (x - m_left + m_scroll) / pixelsPerFrame();
    m_zoom = std::clamp(m_zoom * factor, 1.0, mostZoom());
    scrollTo(frame * pixelsPerFrame() - (x - m_left));
    return m_zoom != before;
}

void TrackScale::show(int first, int last)
{
    m_zoom = std::clamp(double(lastFrame()) / std::max(1, last - first), 1.0, mostZoom());
    scrollTo((first + last) * pixelsPerFrame() / 2.0 - room() / 2.0);
}

void TrackScale::showAll()
{
    m_zoom = 1.0;
    m_scroll = 0.0;
}

void TrackScale::scrollTo(double pixels)
{
    m_scroll = std::clamp(pixels, 0.0, length() - room());
}
