// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CrashReport.h"
#include "EndSignals.h"
#include "Log.h"

#include <QCoreApplication>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <thread>

#ifdef KORVANE_COVERAGE
extern "C" void __gcov_dump();
#endif

namespace {
#ifdef KORVANE_COVERAGE
/// What the report's handler covered would be lost with the process.
void keepCoverage(int number)
{
    __gcov_dump();
    std::signal(number, SIG_DFL);
    raise(number);
}

void keepCoverageOfCrashes()
{
    struct sigaction action = {};
    action.sa_handler = keepCoverage;
    action.sa_flags = SA_ONSTACK;
    for (int number : {SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL})
        sigaction(number, &action, nullptr);
}
#endif

int callForEver(volatile int depth)
{
    volatile char room[4096];
    room[depth % 4096] = char(depth);
    return depth < 0 ? 0 : callForEver(depth + 1) + room[0];
}
} // namespace

/// Crashes in the way of its second argument, with a report at the first.
int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Korvane"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.2.3"));
#ifdef KORVANE_COVERAGE
    keepCoverageOfCrashes();
#endif
    CrashReport::install(QString::fromLocal8Bit(argv[1]));
    CrashReport::setGraphics(QStringLiteral("a painter"));
    for (int i = 0; i < 1000; ++i)
        Log::info(QStringLiteral("line %1 %2").arg(i).arg(QString(i, QLatin1Char('x'))));
    for (int i = 0; i < 3; ++i)
        Log::info(QStringLiteral("the same"));
    const QByteArray way(argv[2]);
    if (way == "stuck") {
        const EndSignals signalsOfTheEnd([](int) { std::_Exit(1); });
        std::puts("ready");
        std::fflush(stdout);
        for (;;)
            std::this_thread::sleep_for(std::chrono::hours(1));
    }
    if (way == "overflow")
        return callForEver(0);
    if (way == "memory")
        *reinterpret_cast<volatile int *>(quintptr(0x1234)) = 1;
    if (way == "abort")
        std::abort();
    return raise(way.toInt());
}
