// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ViewStatistics.h"

#include "Language.h"

#include <cmath>

namespace {
constexpr float Interval = 0.5f; // seconds
constexpr int Margin = 8;        // from the corner, in pixels
} // namespace

ViewStatistics::ViewStatistics(QWidget *view)
    : QLabel(view)
{
    setObjectName(QStringLiteral("lblViewStatistics"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setStyleSheet(QStringLiteral(
        "color: white; background-color: rgba(0, 0, 0, 140); border-radius: 3px; padding: 2px 6px;"));
    move(Margin, Margin);
    showNumbers();
}

void ViewStatistics::setTriangles(int count)
{
    if (count == m_triangles)
        return;
    m_triangles = count;
    showNumbers();
}

void ViewStatistics::tick(float dt)
{
    m_time += dt;
    if (m_time < Interval)
        return;
    // A single frame, as after a click, is no movement.
    const int rate = m_frames > 1 ? int(std::lround(float(m_frames) / m_time)) : 0;
    m_frames = 0;
    m_time = 0.0f;
    if (rate == m_rate)
        return;
    m_rate = rate;
    showNumbers();
}

void ViewStatistics::showNumbers()
{
    const QString triangles = tr("%1 triangles").arg(Language::locale().toString(m_triangles));
    setText(m_rate > 0 ? tr("%1 frames/s").arg(m_rate) + QStringLiteral(" · ") + triangles : triangles);
    adjustSize();
}
