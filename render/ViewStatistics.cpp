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

void ViewStatistics::countFrame(std::optional<float> cardTime)
{
    ++m_frames;
    if (!cardTime)
        return;
    m_cardSum += double(*cardTime);
    ++m_cardTimes;
}

void ViewStatistics::tick(float dt)
{
    m_time += dt;
    if (m_time < Interval)
        return;
    // A single frame, as after a click, is no movement.
    const int rate = m_frames > 1 ? int(std::lround(float(m_frames) / m_time)) : 0;
    const QString cardTime = rate > 0 && m_cardTimes > 0
                                 ? Language::locale().toString(m_cardSum / m_cardTimes, 'f', 2)
                                 : QString();
    m_frames = 0;
    m_time = 0.0f;
    m_cardSum = 0.0;
    m_cardTimes = 0;
    if (rate == m_rate && cardTime == m_cardTime)
        return;
    m_rate = rate;
    m_cardTime = cardTime;
    showNumbers();
}

void ViewStatistics::showNumbers()
{
    QStringList numbers;
    if (m_rate > 0)
        numbers.append(tr("%1 frames/s").arg(m_rate));
    if (!m_cardTime.isEmpty())
        numbers.append(tr("%1 ms on the graphics card").arg(m_cardTime));
    numbers.append(tr("%1 triangles").arg(Language::locale().toString(m_triangles)));
    setText(numbers.join(QStringLiteral(" · ")));
    adjustSize();
}
