// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "EndSignals.h"

#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <ctime>

#include <fcntl.h>
#include <unistd.h>

// The handler may do next to nothing: it writes a byte, which the event loop reads, and sets an alarm.
namespace {
constexpr int Signals[] = {SIGTERM, SIGHUP, SIGINT};
constexpr size_t EndCount = sizeof Signals / sizeof *Signals;
constexpr itimerspec Patience{{0, 0}, {1, 800 * 1000 * 1000}};

int channel[2] = {-1, -1};
timer_t alarmTimer;
bool hasAlarm = false;
volatile std::sig_atomic_t isAsked = 0;
struct sigaction previous[EndCount];

void onEndSignal(int number)
{
    // A session's end sends more than one of them.
    if (isAsked)
        return;
    isAsked = 1;
    const int error = errno;
    if (hasAlarm)
        timer_settime(alarmTimer, 0, &Patience, nullptr);
    const char byte = char(number);
    (void)!::write(channel[1], &byte, 1);
    errno = error;
}

void stopAlarm()
{
    if (hasAlarm)
        timer_delete(alarmTimer);
    hasAlarm = false;
}
} // namespace

EndSignals::EndSignals(std::function<void(int)> asked)
    : m_asked(std::move(asked))
{
    if (::pipe2(channel, O_CLOEXEC | O_NONBLOCK) != 0)
        return;
    isAsked = 0;
    m_notifier = std::make_unique<QSocketNotifier>(channel[0], QSocketNotifier::Read);
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] {
        char number = 0;
        if (::read(channel[0], &number, 1) == 1)
            m_asked(number);
    });
    sigevent event{};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGALRM; // which nobody handles: it ends the program
    hasAlarm = timer_create(CLOCK_MONOTONIC, &event, &alarmTimer) == 0;

    struct sigaction action = {};
    action.sa_handler = onEndSignal;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    for (size_t i = 0; i < EndCount; ++i) {
        sigaction(Signals[i], &action, &previous[i]);
        if (previous[i].sa_handler == SIG_IGN)
            sigaction(Signals[i], &previous[i], nullptr);
    }
}

EndSignals::~EndSignals()
{
    if (!m_notifier)
        return;
    for (size_t i = 0; i < EndCount; ++i)
        sigaction(Signals[i], &previous[i], nullptr);
    stopAlarm();
    isAsked = 0;
    m_notifier.reset();
    for (int &end : channel) {
        ::close(end);
        end = -1;
    }
}

bool EndSignals::areAsking()
{
    return isAsked != 0;
}
