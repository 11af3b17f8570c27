// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QProcessEnvironment>

#include <memory>

/// A process that this one starts so that it harms nobody: it gets no handle of this one, says nothing and is
/// told nothing but its errors, ends with this one whatever becomes of it, and can take only so much memory
/// and time. Where a process can see to that by itself (box/Confinement.h), that is left to it.
class WorkerProcess : public QObject
{
    Q_OBJECT

public:
    explicit WorkerProcess(QObject *parent = nullptr);
    /// Ends the process.
    ~WorkerProcess() override;

    struct Limits
    {
        int memoryMiB;        ///< 0 for as much as there is
        qint64 processorTime; ///< milliseconds
    };

    /// Starts it, which takes as long however much memory this process has. One at a time. Returns what went
    /// wrong; empty when nothing did, and then ended() comes.
    [[nodiscard]] QString start(const QString &program, const QString &argument,
                                const QProcessEnvironment &environment, const Limits &limits);
    void kill();

signals:
    void ended(int exitCode, bool isCrash);

private:
    struct Process;
    std::unique_ptr<Process> m_process;
};
