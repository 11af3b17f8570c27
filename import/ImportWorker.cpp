// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportWorker.h"

#include "Background.h"
#include "Language.h"
#include "Log.h"
#include "TextureSearch.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace {
constexpr int WatchInterval = 200; // milliseconds
/// The largest model of the game's formats and its textures are a small part of that.
constexpr qint64 MostWritten = qint64(2) << 30;

/// Beside the running program; tests, which run from folders of their own, name another.
QString workerProgram()
{
    const QString named = qEnvironmentVariable("KORVANE_IMPORT_WORKER");
    return !named.isEmpty()
               ? named
               : QCoreApplication::applicationDirPath() + QStringLiteral("/korvane-import-worker");
}
} // namespace

ImportWorker::ImportWorker(QObject *parent)
    : QObject(parent)
    , m_program(workerProgram())
{
    // File names in UTF-8 and numbers with a point, whatever the desktop speaks.
    m_environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    // Its messages are shown, so they are to be in the language of the program that starts it.
    m_environment.insert(QStringLiteral("KORVANE_LANGUAGE"), Language::installed());
    m_limit.setSingleShot(true);
    m_watch.setInterval(WatchInterval);
    connect(&m_watch, &QTimer::timeout, this, [this] {
        if (m_folder->holdsMoreThan(MostWritten))
            stop(tr("It wrote more than any model needs."));
    });
    connect(&m_process, &WorkerProcess::ended, this, &ImportWorker::onProcessEnded);
    connect(&m_limit, &QTimer::timeout, this, [this] {
        const QString reason = tr("It took longer than %1 s.").arg(m_timeLimit / 1000);
        stop(m_timeAdvice.isEmpty() ? reason : reason + QLatin1Char(' ') + m_timeAdvice);
    });
}

void ImportWorker::start(const WorkerJob &job)
{
    const QFileInfo model(job.modelPath);
    const bool unready = prepare(job);
    // Opening a pipe would wait for a writer for ever.
    if (model.exists() && !model.isFile())
        finish(tr("It is a folder, a pipe or a device, not a file."));
    else if (unready)
        finish(tr("No temporary folder could be made."));
    else
        launch();
}

void ImportWorker::start(const WorkerJob &job, const StaticMesh &mesh)
{
    if (prepare(job) || mesh.write(WorkerFolder(m_folder->path()).staticMesh()))
        finish(tr("No temporary file could be written."));
    else
        launch();
}

void ImportWorker::start(const WorkerJob &job, const SkinnedMesh &mesh, const AnimFile &anim)
{
    const bool failed = prepare(job) || mesh.write(WorkerFolder(m_folder->path()).skinnedMesh()) ||
                        (!anim.blocks.empty() && anim.write(WorkerFolder(m_folder->path()).anim()));
    if (failed)
        finish(tr("No temporary file could be written."));
    else
        launch();
}

bool ImportWorker::prepare(const WorkerJob &job)
{
    Q_ASSERT(!m_running);
    m_job = job;
    m_job.modelPath = QFileInfo(job.modelPath).absoluteFilePath();
    // The timer comes first; this is for a program that does not come to look at it.
    m_job.secondsLimit = 2 * m_timeLimit / 1000 + 1;
    m_answer = {};
    m_messages = {};
    m_stopReason.clear();
    m_running = true;
    m_elapsed.start();
    return makeFolder();
}

bool ImportWorker::makeFolder()
{
    m_folder = std::make_unique<TemporaryFolder>();
    return !m_folder->isValid() || WorkerFolder(m_folder->path()).write(m_job);
}

void ImportWorker::launch()
{
    m_limit.start(m_timeLimit);
    m_watch.start();
    const QString lack = m_process.start(m_program, m_folder->path(), m_environment,
                                         {m_job.memoryLimitMiB, 1000 * qint64(m_job.secondsLimit)});
    if (!lack.isEmpty())
        finish(tr("'%1' could not be started: %2").arg(m_program, lack));
}

void ImportWorker::cancel()
{
    stop(tr("It was cancelled."));
}

void ImportWorker::stop(const QString &reason)
{
    if (!m_running)
        return;
    m_stopReason = reason;
    m_process.kill();
}

void ImportWorker::onProcessEnded(int exitCode, bool isCrash)
{
    if (!m_stopReason.isEmpty())
        finish(m_stopReason);
    else if (isCrash)
        finish(tr("The process that reads foreign files crashed on it."));
    else if (exitCode != EXIT_SUCCESS || WorkerFolder(m_folder->path()).read(m_answer))
        finish(tr("The process that reads foreign files gave no answer."));
    else
        complete();
}

/// Whether there are textures that the process may not read unless it is told of them: it then gets them.
bool ImportWorker::hasMoreTextures()
{
    if (m_answer.wantedTextures.isEmpty() || !m_job.texturesElsewhere.isEmpty())
        return false;
    m_job.texturesElsewhere = picturesNamed(m_job.modelPath, m_answer.wantedTextures);
    return !m_job.texturesElsewhere.isEmpty();
}

void ImportWorker::complete()
{
    tellLacking();
    if (hasMoreTextures()) {
        m_answer = {};
        if (makeFolder())
            finish(tr("No temporary folder could be made."));
        else
            launch();
        return;
    }
    // It may not list every folder.
    int searches = 0;
    for (SceneSummary::Texture &texture : m_answer.summary.textures) {
        if (texture.file.isEmpty() && !texture.isEmbedded && ++searches <= MostTextureNames)
            texture.file = foundTexture(m_job.modelPath, texture.name);
    }
    finish({});
}

void ImportWorker::tellLacking() const
{
    static bool isTold = false;
    if (!isTold && !m_answer.lacking.isEmpty())
        Log::info(tr("Foreign files are read with less protection on this system, without %1.")
                      .arg(m_answer.lacking.join(QStringLiteral(", "))));
    isTold = isTold || !m_answer.lacking.isEmpty();
}

void ImportWorker::finish(const QString &failure)
{
    if (!m_running)
        return;
    m_running = false;
    m_limit.stop();
    m_watch.stop();
    m_messages.lines = m_answer.messages;
    if (!failure.isEmpty()) {
        m_answer = {};
        m_messages.lines.clear();
        m_messages.addError(m_job.failure(failure));
        discard();
    }
    emit finished();
}

void ImportWorker::discard()
{
    // Large files take their time to go, too.
    if (m_folder)
        Background::discard(std::move(m_folder));
}

bool ImportWorker::read(SkinnedMesh &mesh, AnimFile &anim) const
{
    if (!m_folder)
        return true;
    const WorkerFolder folder(m_folder->path());
    anim.version = m_job.animVersion;
    return mesh.read(folder.skinnedMesh()) || (QFileInfo::exists(folder.anim()) && anim.read(folder.anim()));
}

bool ImportWorker::read(StaticMesh &mesh) const
{
    return !m_folder || mesh.read(WorkerFolder(m_folder->path()).staticMesh());
}

QString ImportWorker::madeFile(const QString &name) const
{
    return m_folder ? WorkerFolder(m_folder->path()).path(name) : QString();
}
