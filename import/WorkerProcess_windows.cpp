// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "WorkerProcess.h"

#include <QProcess>

#include <windows.h>

#include <cstdlib>

struct WorkerProcess::Process
{
    QProcess process;
    HANDLE job = nullptr;                         ///< what holds the process started last, which ends with it
    const PROCESS_INFORMATION *started = nullptr; ///< the toolkit's, while there is a process

    void closeJob()
    {
        if (job)
            CloseHandle(job);
        job = nullptr;
    }
};

namespace {
/// Whether a process that ended with this code crashed, where the system does not tell it from one that ends.
bool isCrashCode(int exitCode)
{
    constexpr int Abort = 3;
    return exitCode == Abort || exitCode == ERROR_NOT_ENOUGH_QUOTA; // the job's end of time
}

HANDLE makeJob(const WorkerProcess::Limits &bounds)
{
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    // The job ends with its last handle, which this process has; a crash ends the process without a box.
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE |
                                              JOB_OBJECT_LIMIT_DIE_ON_UNHANDLED_EXCEPTION |
                                              JOB_OBJECT_LIMIT_PROCESS_TIME;
    limits.BasicLimitInformation.PerProcessUserTimeLimit.QuadPart = bounds.processorTime * 10000; // of 100 ns
    if (bounds.memoryMiB > 0) {
        limits.BasicLimitInformation.LimitFlags |= JOB_OBJECT_LIMIT_PROCESS_MEMORY;
        limits.ProcessMemoryLimit = SIZE_T(bounds.memoryMiB) * 1024 * 1024;
    }
    HANDLE job = CreateJobObjectW(nullptr, nullptr);
    if (job && !SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits)) {
        CloseHandle(job);
        job = nullptr;
    }
    return job;
}
} // namespace

WorkerProcess::WorkerProcess(QObject *parent)
    : QObject(parent)
    , m_process(std::make_unique<Process>())
{
    QProcess &process = m_process->process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setCreateProcessArgumentsModifier([this](QProcess::CreateProcessArguments *arguments) {
        // Not before it is in its job.
        arguments->flags |= CREATE_SUSPENDED | CREATE_NO_WINDOW;
        arguments->inheritHandles = FALSE;
        arguments->startupInfo->dwFlags &= ~DWORD(STARTF_USESTDHANDLES);
        m_process->started = arguments->processInformation;
    });
    connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), this,
            [this](int exitCode, QProcess::ExitStatus status) {
                emit ended(exitCode, status == QProcess::CrashExit || isCrashCode(exitCode));
            });
}

WorkerProcess::~WorkerProcess()
{
    m_process->process.disconnect(this);
    kill();
    m_process->process.waitForFinished();
    m_process->closeJob();
}

QString WorkerProcess::start(const QString &program, const QString &argument,
                             const QProcessEnvironment &environment, const Limits &limits)
{
    QProcess &process = m_process->process;
    process.setProcessEnvironment(environment);
    m_process->closeJob();
    process.start(program, {argument});
    if (process.processId() == 0)
        return process.errorString();
    m_process->job = makeJob(limits);
    // Without its limits it could take all there is.
    if (m_process->job && AssignProcessToJobObject(m_process->job, m_process->started->hProcess))
        ResumeThread(m_process->started->hThread);
    else
        TerminateProcess(m_process->started->hProcess, EXIT_FAILURE);
    return {};
}

void WorkerProcess::kill()
{
    m_process->process.kill();
}
