// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RenderEach.h"

#include "CommandLine.h"
#include "Companions.h"
#include "FileSystem.h"
#include "Log.h"
#include "ModelFile.h"
#include "ModelPicture.h"
#include "OffscreenScene.h"
#include "Output.h"
#include "ReplacedFiles.h"
#include "Verbs.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <utility>

namespace {
/// What became of a picture.
struct Drawn
{
    QString error; ///< empty when it was written
    QVector<LogLine> lines;
};

/// What became of all of them: threads add theirs as they come, and one tells of them in the order of the
/// jobs.
class PictureAccount
{
public:
    PictureAccount(const std::vector<PictureJob> &jobs, size_t threads)
        : m_jobs(jobs)
        , m_drawn(jobs.size())
        , m_threads(threads)
    {}

    void add(size_t job, Drawn drawn)
    {
        const std::lock_guard lock(m_mutex);
        m_drawn[job] = std::move(drawn);
        m_changed.notify_one();
    }
    /// A thread adds no more; with limits, it could draw nothing.
    void leave(const std::optional<DrawingLimits> &limits)
    {
        const std::lock_guard lock(m_mutex);
        --m_threads;
        if (limits)
            m_limits = limits;
        m_changed.notify_one();
    }

    /// Waits for all. Gives the exit code, or what kept the threads from drawing.
    std::variant<int, DrawingLimits> tell()
    {
        int exitCode = Fine;
        for (size_t job = 0; job < m_jobs.size(); ++job) {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [this, job] { return m_drawn[job] || m_threads == 0; });
            if (!m_drawn[job])
                return *m_limits;
            const Drawn drawn = *std::exchange(m_drawn[job], Drawn());
            lock.unlock();
            Log::say(drawn.lines);
            if (drawn.error.isEmpty()) {
                Output::line(m_jobs[job].picture);
            } else {
                Output::complain(drawn.error);
                exitCode = Failed;
            }
        }
        return exitCode;
    }

private:
    const std::vector<PictureJob> &m_jobs;
    std::mutex m_mutex; ///< for what follows
    std::condition_variable m_changed;
    std::vector<std::optional<Drawn>> m_drawn;
    std::optional<DrawingLimits> m_limits;
    size_t m_threads;
};

/// What all threads of a run share.
struct PictureRun
{
    const std::vector<PictureJob> &jobs;
    const PictureWishes &wishes;
    const MaterialFolders &chosen;
    PictureAccount account;
    std::atomic_size_t next{0};
};

/// Draws one picture after another.
class PictureThread
{
public:
    PictureThread(PictureRun &run, OffscreenScene &scene)
        : m_run(run)
        , m_scene(scene)
    {}

    void drawAll()
    {
        for (size_t job = m_run.next++; job < m_run.jobs.size(); job = m_run.next++) {
            Drawn drawn;
            {
                HeldLog log;
                drawn.error = draw(m_run.jobs[job]);
                drawn.lines = std::move(log.lines);
            }
            m_run.account.add(job, std::move(drawn));
        }
    }

private:
    QString draw(const PictureJob &job)
    {
        if (!job.refusal.isEmpty())
            return job.refusal;
        const MaterialFolders folders = foldersAround(job.model, m_run.chosen);
        ModelPicture picture(m_run.wishes, job.picture);
        const QString error = picture.read(job.model, companionsIn(folders));
        if (!error.isEmpty())
            return error;
        if (!QDir().mkpath(QFileInfo(job.picture).path()))
            return QStringLiteral("%1: The folder of the picture cannot be made.").arg(job.picture);
        return picture.draw(m_scene, folders);
    }

    /// A walk through a game's folders is for all of its models.
    Companions &companionsIn(const MaterialFolders &folders)
    {
        if (!m_companions || m_gamePath != folders.gamePath) {
            m_gamePath = folders.gamePath;
            m_companions.emplace(folders);
        }
        return *m_companions;
    }

    PictureRun &m_run;
    OffscreenScene &m_scene;
    QString m_gamePath;
    std::optional<Companions> m_companions;
};

void drawOn(QOffscreenSurface &surface, PictureRun &run)
{
    OffscreenScene scene(surface);
    const DrawingLimits limits(scene);
    if (!limits.allow(run.wishes.size))
        return run.account.leave(limits);
    PictureThread(run, scene).drawAll();
    run.account.leave({});
}
} // namespace

std::vector<PictureJob> picturesOf(const QStringList &paths, const QString &target, bool replaces)
{
    std::vector<PictureJob> jobs;
    QHash<QString, QString> models; // by their pictures, as FileSystem compares them
    const auto picture = [&target](const QString &folder, const QString &name) {
        return QDir::cleanPath(QDir(target).filePath(folder + name + QStringLiteral(".png")));
    };
    const auto add = [&](const QString &model, const QString &folder) {
        const QFileInfo file(model);
        PictureJob job{model, picture(folder, file.completeBaseName()), {}};
        const auto taken = [&] { return models.constFind(FileSystem::comparable(job.picture)); };
        // A skinned mesh and a static one may have one name.
        if (taken() != models.constEnd() && QFileInfo(*taken()).suffix() != file.suffix())
            job.picture = picture(folder, file.fileName());
        if (taken() != models.constEnd())
            job.refusal =
                QStringLiteral("%1: The picture of another model goes to '%2'.").arg(model, job.picture);
        else if (!replaces && isTaken(job.picture))
            job.refusal = Output::takenText(job.picture);
        models.insert(FileSystem::comparable(job.picture), model);
        jobs.push_back(std::move(job));
    };
    for (const QString &path : paths) {
        if (!QFileInfo(path).isDir()) {
            add(path, {});
            continue;
        }
        const QStringList found = filesBelow(path, isMesh);
        if (found.isEmpty())
            jobs.push_back({path, {}, QStringLiteral("%1: There is no mesh in this folder.").arg(path)});
        const QDir around(QFileInfo(path).absoluteFilePath());
        for (const QString &model : found)
            add(model, around.relativeFilePath(QFileInfo(model).absolutePath()) + QLatin1Char('/'));
    }
    return jobs;
}

DrawingLimits::DrawingLimits(const OffscreenScene &scene)
    : failure(scene.failure())
    , longestSide(scene.longestSide())
{}

bool DrawingLimits::allow(const QSize &size) const
{
    return failure.isEmpty() && std::max(size.width(), size.height()) <= longestSide;
}

std::variant<int, DrawingLimits> renderEach(const std::vector<PictureJob> &jobs, const PictureWishes &wishes,
                                            const MaterialFolders &chosen)
{
    const bool hasThreads = QOpenGLContext::supportsThreadedOpenGL();
    const size_t cores = hasThreads ? size_t(std::max(QThread::idealThreadCount(), 1)) : 1;
    std::vector<std::unique_ptr<QOffscreenSurface>> surfaces(std::min(cores, jobs.size()));
    for (auto &surface : surfaces)
        surface = OffscreenScene::makeSurface();
    PictureRun run{jobs, wishes, chosen, {jobs, surfaces.size()}};
    if (!hasThreads) {
        drawOn(*surfaces.front(), run);
        return run.account.tell();
    }
    QThreadPool threads;
    threads.setMaxThreadCount(int(surfaces.size()));
    for (auto &surface : surfaces)
        threads.start([&run, &surface] { drawOn(*surface, run); });
    const auto told = run.account.tell();
    threads.waitForDone();
    return told;
}
