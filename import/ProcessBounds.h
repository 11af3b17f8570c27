// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>

#include <memory>

/// What a program does so that one that it starts harms nobody: the process gets no handle of this one, ends
/// with this one whatever becomes of it, and can take only so much memory and time. Where a process can see
/// to that by itself (worker/Confinement.h) there is nothing to do here.
class ProcessBounds
{
public:
    /// Before the process is started; it then waits for take().
    void prepare(QProcess &process);
    /// Lets a process begin that has just been started, if it was. Of processor time it gets `milliseconds`.
    void take(const QProcess &process, int memoryLimitMiB, qint64 milliseconds);
    /// Whether a process that ended with this code crashed, where the system does not tell it from one that
    /// ends.
    static bool isCrash(int exitCode);

private:
    struct Job;
    std::shared_ptr<Job> m_job; ///< what holds the process taken last, which ends with it
};
