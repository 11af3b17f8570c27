// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TickTimer.h"

#include <QTimerEvent>

#include <utility>

namespace {
constexpr int MovingInterval = 1; // milliseconds
constexpr int IdleInterval = 30;
} // namespace

TickTimer::TickTimer(QObject &owner)
    : m_owner(owner)
{
    m_clock.start();
}

void TickTimer::setPace(Pace pace)
{
    if (m_timer.isActive() && pace == m_pace)
        return;
    if (pace == Pace::Moving)
        m_previous = m_clock.elapsed();
    m_pace = pace;
    if (pace == Pace::Moving)
        m_timer.start(MovingInterval, Qt::PreciseTimer, &m_owner);
    else
        m_timer.start(IdleInterval, Qt::CoarseTimer, &m_owner);
}

bool TickTimer::isMine(const QTimerEvent &event) const
{
    return event.timerId() == m_timer.timerId();
}

float TickTimer::step()
{
    const qint64 now = m_clock.elapsed();
    return float(now - std::exchange(m_previous, now)) / 1000.0f;
}
