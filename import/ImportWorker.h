// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "TemporaryFolder.h"
#include "WorkerJob.h"
#include "WorkerProcess.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <memory>

/// Has one job at a time done by the worker process. Whatever becomes of that process, finished() comes once
/// a job, with an error line in messages() if there is no result; a job that
/// fails leaves no file, the files of one that succeeds go with discard(), the next job or this object.
class ImportWorker : public QObject
{
    Q_OBJECT

public:
    explicit ImportWorker(QObject *parent = nullptr);

    /// The worker's executable; by default the one beside the running program, or
    /// the one that the environment names in KORVANE_IMPORT_WORKER.
    void setProgram(const QString &path) { m_program = path; }
    /// In milliseconds, for one job. `advice` is a sentence for whoever runs into it: where it is set.
    void setTimeLimit(int limit, const QString &advice = {})
    {
        m_timeLimit = limit;
        m_timeAdvice = advice;
    }

    void start(const WorkerJob &job);
    /// The same, with the model to be exported.
    void start(const WorkerJob &job, const StaticMesh &mesh);
    /// The same, with the models to be updated; an animation without blocks stands for none.
    void start(const WorkerJob &job, const SkinnedMesh &mesh, const AnimFile &anim);
    bool isRunning() const { return m_running; }
    /// Of the running job, in milliseconds.
    qint64 elapsed() const { return m_elapsed.elapsed(); }
    void cancel();

    // What the last job gave. The models are read from its files at the call.
    const ImportMessages &messages() const { return m_messages; }
    const QStringList &textures() const { return m_answer.textures; }
    const ModelNames &names() const { return m_answer.names; }
    const SceneSummary &summary() const { return m_answer.summary; }
    const UpdateAccount &update() const { return m_answer.update; }
    /// These return true on failure. An animation file without blocks stands for no animation.
    [[nodiscard]] bool read(SkinnedMesh &mesh, AnimFile &anim) const;
    [[nodiscard]] bool read(StaticMesh &mesh) const;
    /// The path of a file that the job made; empty when there are none.
    QString madeFile(const QString &name) const;
    /// Removes the job's files: nothing can be read of it any more.
    void discard();

signals:
    void finished();

private:
    bool prepare(const WorkerJob &job);
    bool makeFolder();
    void launch();
    bool hasMoreTextures();
    void complete();
    void tellLacking() const;
    void onProcessEnded(int exitCode, bool isCrash);
    void stop(const QString &reason);
    void finish(const QString &failure);

    QString m_program;
    int m_timeLimit = 60000;
    QString m_timeAdvice;
    WorkerJob m_job;
    std::unique_ptr<TemporaryFolder> m_folder;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
    WorkerProcess m_process;
    QTimer m_limit;
    QTimer m_watch; ///< looks how much the process has written
    QElapsedTimer m_elapsed;
    QString m_stopReason; ///< why we ended the process ourselves
    bool m_running = false;
    WorkerAnswer m_answer;
    ImportMessages m_messages;
};
