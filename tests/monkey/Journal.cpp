// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Journal.h"

#include <QFile>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <utility>

#include <pthread.h>

#ifdef MONKEY_SANITIZED
#include <sanitizer/common_interface_defs.h>
#endif

namespace {
char where[512] = "before the first step"; // of a fixed place, for a program that is about to end
quint64 seedOfRun = 0;

qint64 now()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}
} // namespace

Journal::Journal(const QString &path, quint64 seed)
    : m_file(std::fopen(QFile::encodeName(path).constData(), "w"))
    , m_gui(pthread_self())
    , m_began(now())
{
    if (!m_file)
        qFatal("cannot write %s", qPrintable(path));
    seedOfRun = seed;
#ifdef MONKEY_SANITIZED
    __sanitizer_set_death_callback(&Journal::sayWhere);
#endif
    m_thread = std::thread([this] { watch(); });
}

Journal::~Journal()
{
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_ends = true;
    }
    m_wake.notify_all();
    m_thread.join();
    std::fclose(m_file);
#ifdef MONKEY_SANITIZED
    __sanitizer_set_death_callback(nullptr);
#endif
}

void Journal::step(int number, const QString &text)
{
    const QString line = QStringLiteral("%1 %2").arg(QString::number(number), text);
    std::strncpy(where, line.toUtf8().constData(), sizeof where - 1);
    m_began = now();
    write(line);
}

void Journal::note(const QString &text)
{
    write(QStringLiteral("    ") + text);
}

void Journal::write(const QString &line)
{
    std::fprintf(m_file, "%s\n", line.toUtf8().constData());
    std::fflush(m_file);
}

void Journal::fail(const QString &text)
{
    note(QStringLiteral("FAULT: ") + text);
    std::fprintf(stderr, "monkey: %s\n", text.toUtf8().constData());
    sayWhere();
    std::abort();
}

void Journal::sayWhere()
{
    // A fault says so itself before the sanitizer, which reports the abort, does.
    static bool said = false;
    if (std::exchange(said, true))
        return;
    std::fprintf(stderr, "monkey: seed %llu, step %s\n", static_cast<unsigned long long>(seedOfRun), where);
    std::fflush(stderr);
}

void Journal::watch()
{
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_wake.wait_for(lock, std::chrono::milliseconds(500), [this] { return m_ends; })) {
        if (now() - m_began < LongestStepSeconds * 1000)
            continue;
        std::fprintf(stderr, "monkey: a step took longer than %d s\n", LongestStepSeconds);
        sayWhere();
        // Where the step hangs is on the stack of the thread that does it.
        pthread_kill(m_gui, SIGABRT);
        std::this_thread::sleep_for(std::chrono::seconds(20));
        std::abort();
    }
}
