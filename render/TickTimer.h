// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QBasicTimer>

#include <functional>

class QTimerEvent;

/// The ticks of a view, and when it may paint. A moving one ticks every millisecond: keys fly the camera by a
/// step a tick. One that only plays ticks when it may paint. An idle one only looks for changes of the
/// playback now and then, which costs nothing.
class TickTimer
{
public:
    enum class Pace { Idle, Playing, Moving };

    /// Milliseconds since whenever; never goes back.
    using Clock = std::function<qint64()>;

    /// The owner gets the timer events.
    explicit TickTimer(QObject &owner, Clock clock = steadyClock);

    /// Starts, or goes on at another pace.
    void setPace(Pace pace);
    void stop() { m_timer.stop(); }
    bool isIdle() const { return m_pace == Pace::Idle; }
    bool isMine(const QTimerEvent &event) const;
    /// What has come due with a tick. The time asleep is not time that anything moved, nor is most of a wait
    /// in which the program, or the computer, stood still.
    struct Due
    {
        float seconds; ///< since the tick before, 1 at most
        int steps;     ///< at least 1: a late tick does those of the milliseconds that it missed, but not all
                       ///< of a long wait
    };
    Due take();

    /// A frame is being painted: the next one has to wait, so that painting leaves time for ticks. There are
    /// sixty a second at most.
    void paints();
    bool mayPaint() const;

private:
    static qint64 steadyClock();
    void startForPaint();

    QObject &m_owner;
    QBasicTimer m_timer;
    Pace m_pace = Pace::Idle;
    const Clock m_clock;
    double m_due = 0.0; ///< when it may paint again, by the clock
    qint64 m_previous;  ///< the tick before, by the clock
    qint64 m_stepped;   ///< the same, up to which steps were done
};
