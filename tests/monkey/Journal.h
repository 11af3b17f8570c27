// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>

/// The list of steps, each written before it is done, so that whatever ends the program is behind its last
/// line. A thread of its own ends the program when a step does.
class Journal
{
public:
    /// Ends the program with a message when `path` cannot be written.
    Journal(const QString &path, quint64 seed);
    ~Journal();

    /// The step that comes; the time that it may take begins.
    void step(int number, const QString &text);
    /// A line about the step that runs.
    void note(const QString &text);
    /// Says what is wrong, with seed and step, and ends the program.
    [[noreturn]] void fail(const QString &text);
    /// What a sanitizer's report ends with: seed and step on standard error. Touches no memory but its own.
    static void sayWhere();

private:
    void watch();
    void write(const QString &line);

    static constexpr int LongestStepSeconds = 60;

    std::FILE *m_file;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_ends = false;
    unsigned long m_gui; ///< the thread whose stack is wanted
    std::atomic<qint64> m_began;
    std::thread m_thread;
};
