// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TickTimer.h"

#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace {
// Milliseconds.
constexpr int MovingInterval = 1;
constexpr int IdleInterval = 30;
constexpr double PaintInterval = 1000.0 / 60.0;
constexpr qint64 MostSteps = 50;
constexpr qint64 LongestWait = 1000;
} // namespace

TickTimer::TickTimer(QObject &owner, Clock clock)
    : m_owner(owner)
    , m_clock(std::move(clock))
    , m_previous(m_clock())
    , m_stepped(m_previous)
{}

qint64 TickTimer::steadyClock()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

void TickTimer::setPace(Pace pace)
{
    const bool isOther = !m_timer.isActive() || pace != m_pace;
    if (!isOther && pace != Pace::Playing)
        return;
    if (pace != Pace::Idle && (!m_timer.isActive() || isIdle()))
        m_previous = m_clock();
    if (pace == Pace::Moving)
        m_stepped = m_clock(); // what moves from now on has not moved before
    m_pace = pace;
    if (pace == Pace::Moving)
        m_timer.start(MovingInterval, Qt::PreciseTimer, &m_owner);
    else if (pace == Pace::Playing)
        startForPaint();
    else
        m_timer.start(IdleInterval, Qt::CoarseTimer, &m_owner);
}

void TickTimer::startForPaint()
{
    const double wait = std::ceil(m_due - double(m_clock()));
    m_timer.start(int(std::clamp(wait, double(MovingInterval), std::ceil(PaintInterval))), Qt::PreciseTimer,
                  &m_owner);
}

void TickTimer::paints()
{
    // The clock counts whole milliseconds: what it is late by those is not lost.
    const auto now = double(m_clock());
    m_due = (now - m_due < 1.0 ? std::min(m_due, now) : now) + PaintInterval;
    if (m_timer.isActive() && m_pace == Pace::Playing)
        startForPaint();
}

bool TickTimer::isMine(const QTimerEvent &event) const
{
    return event.timerId() == m_timer.timerId();
}

TickTimer::Due TickTimer::take()
{
    const qint64 now = m_clock();
    const int steps = int(std::clamp(now - m_stepped, qint64(1), MostSteps));
    // The step of a tick that came early is one that the next has not to do.
    m_stepped = std::max(now, m_stepped + 1);
    const qint64 waited = std::min(now - std::exchange(m_previous, now), LongestWait);
    return {float(waited) / 1000.0f, steps};
}

bool TickTimer::mayPaint() const
{
    return double(m_clock()) >= m_due;
}
