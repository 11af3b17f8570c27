// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ProcessBounds.h"

#include <windows.h>

#include <cstdlib>

struct ProcessBounds::Job
{
    Job() = default;
    ~Job() { close(); }
    Job(const Job &) = delete;
    Job &operator=(const Job &) = delete;

    void close()
    {
        if (handle)
            CloseHandle(handle);
        handle = nullptr;
    }

    HANDLE handle = nullptr;
    const PROCESS_INFORMATION *started = nullptr; ///< the toolkit's, while there is a process
};

void ProcessBounds::prepare(QProcess &process)
{
    m_job = std::make_shared<Job>();
    process.setCreateProcessArgumentsModifier(
        [job = m_job.get()](QProcess::CreateProcessArguments *arguments) {
            // Not before it is in its job.
            arguments->flags |= CREATE_SUSPENDED | CREATE_NO_WINDOW;
            arguments->inheritHandles = FALSE;
            arguments->startupInfo->dwFlags &= ~DWORD(STARTF_USESTDHANDLES);
            job->started = arguments->processInformation;
        });
}

void ProcessBounds::take(const QProcess &process, int memoryLimitMiB, qint64 milliseconds)
{
    m_job->close();
    if (process.processId() == 0)
        return;
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    // The job ends with its last handle, which this process has; a crash ends the process without a box.
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE |
                                              JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION |
                                              JOB_OBJECT_LIMIT_PROCESS_TIME;
    limits.BasicLimitInformation.PerProcessUserTimeLimit.QuadPart = milliseconds * 10000; // of 100 ns
    if (memoryLimitMiB > 0) {
        limits.BasicLimitInformation.LimitFlags |= JOB_OBJECT_LIMIT_PROCESS_MEMORY;
        limits.ProcessMemoryLimit = SIZE_T(memoryLimitMiB) * 1024 * 1024;
    }
    m_job->handle = CreateJobObjectW(nullptr, nullptr);
    const bool isBound =
        m_job->handle &&
        SetInformationJobObject(m_job->handle, JobObjectExtendedLimitInformation, &limits, sizeof limits) &&
        AssignProcessToJobObject(m_job->handle, m_job->started->hProcess);
    // Without its limits it could take all there is.
    if (isBound)
        ResumeThread(m_job->started->hThread);
    else
        TerminateProcess(m_job->started->hProcess, EXIT_FAILURE);
}

bool ProcessBounds::isCrash(int exitCode)
{
    constexpr int Abort = 3;
    return exitCode == Abort || exitCode == ERROR_NOT_ENOUGH_QUOTA; // the job's end of time
}
