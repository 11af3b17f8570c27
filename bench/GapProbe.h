// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Bench.h"

#include <QApplication>
#include <QTimer>

#include <algorithm>
#include <ctime>
#include <utility>

/// For how long a window may answer nobody.
constexpr double GapBudget = 50.0; // milliseconds

struct Gap
{
    double passed = 0.0; ///< milliseconds by the clock
    double worked = 0.0; ///< milliseconds of the thread's processor time: the same on a busy machine
};

inline double milliseconds(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) * 1e-6;
}

inline Gap now()
{
    return {milliseconds(CLOCK_MONOTONIC), milliseconds(CLOCK_THREAD_CPUTIME_ID)};
}

/// Keeps account of what is spent on pictures.
class PaintedApplication : public QApplication
{
public:
    using QApplication::QApplication;

    bool notify(QObject *receiver, QEvent *event) override
    {
        // A view that is shown, or gets another size, paints at once, and so does what a dialog has covered.
        const bool isPicture = event->type() == QEvent::UpdateRequest || event->type() == QEvent::Paint ||
                               event->type() == QEvent::Expose;
        if (!isPicture || m_isPainting)
            return QApplication::notify(receiver, event);
        m_isPainting = true;
        const Gap before = now();
        const bool result = QApplication::notify(receiver, event);
        painted.passed += now().passed - before.passed;
        painted.worked += now().worked - before.worked;
        m_isPainting = false;
        return result;
    }

    Gap painted;

private:
    bool m_isPainting = false;
};

/// Measures the gaps between the turns of the event loop, without the pictures that are painted in them.
class GapProbe
{
public:
    GapProbe()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { look(); });
        m_timer.start(1);
    }
    const Gap &largest() const { return m_largest; }

private:
    static Gap unpainted()
    {
        const Gap all = now();
        const Gap &painted = static_cast<PaintedApplication *>(qApp)->painted;
        return {all.passed - painted.passed, all.worked - painted.worked};
    }
    void look()
    {
        const Gap last = std::exchange(m_last, unpainted());
        m_largest.passed = std::max(m_largest.passed, m_last.passed - last.passed);
        m_largest.worked = std::max(m_largest.worked, m_last.worked - last.worked);
    }

    QTimer m_timer;
    Gap m_last = unpainted();
    Gap m_largest;
};

inline void addGap(const std::string &name, const Gap &gap)
{
    Bench::addLimitLine("gap_" + name, gap.passed, GapBudget, "ms");
    Bench::addLimitLine("gap_" + name + "_cpu", gap.worked, GapBudget, "ms");
}
