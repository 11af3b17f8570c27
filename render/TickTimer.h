// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>

class QTimerEvent;

/// The ticks of a view. A moving one ticks every millisecond: keys fly the camera by a step a tick. An idle
/// one only looks for changes of the playback now and then, which costs nothing.
class TickTimer
{
public:
    enum class Pace { Idle, Moving };

    /// The owner gets the timer events.
    explicit TickTimer(QObject &owner);

    /// Starts, or goes on at another pace.
    void setPace(Pace pace);
    void stop() { m_timer.stop(); }
    bool isMoving() const { return m_pace == Pace::Moving; }
    bool isMine(const QTimerEvent &event) const;
    /// Seconds since the tick before. The time asleep is not time that anything moved.
    float step();

private:
    QObject &m_owner;
    QBasicTimer m_timer;
    Pace m_pace = Pace::Idle;
    QElapsedTimer m_clock;
    qint64 m_previous = 0; ///< milliseconds of the clock
};
