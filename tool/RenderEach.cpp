// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RenderEach.h"

#include "CommandLine.h"
#include "ExitCode.h"
#include "FileSystem.h"
#include "Files.h"
#include "Interruption.h"
#include "KeptCompanions.h"
#include "ModelFile.h"
#include "ModelPicture.h"
#include "OffscreenScene.h"
#include "Output.h"
#include "ReplacedFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QImage>

#include <memory>
#include <utility>

namespace {
/// Draws one picture after another.
class PictureMaker
{
public:
    PictureMaker(OffscreenScene &scene, const PictureWishes &wishes, const MaterialFolders &chosen)
        : m_scene(scene)
        , m_wishes(wishes)
        , m_chosen(chosen)
    {}

    /// Returns what went wrong. A job without a file leaves its picture in `image`.
    QString make(const PictureJob &job, QImage &image)
    {
        if (!job.refusal.isEmpty())
            return job.refusal;
        const MaterialFolders folders = foldersAround(job.model, m_chosen);
        ModelPicture picture(m_wishes, job.picture);
        QString error = picture.read(job.model, m_companions.in(folders));
        if (!error.isEmpty())
            return error;
        if (job.picture.isEmpty()) {
            image = picture.paint(m_scene, folders, error);
            return error;
        }
        if (!QDir().mkpath(QFileInfo(job.picture).path()))
            return QStringLiteral("%1: The folder of the picture cannot be made.").arg(job.picture);
        return picture.draw(m_scene, folders);
    }

private:
    OffscreenScene &m_scene;
    const PictureWishes &m_wishes;
    const MaterialFolders &m_chosen;
    KeptCompanions m_companions;
};

std::vector<PictureJob>
jobsOf(const QStringList &paths,
       const std::function<PictureJob(const QString &model, const QString &folder)> &job)
{
    std::vector<PictureJob> jobs;
    for (const QString &path : paths) {
        if (!Files::isFolder(path)) {
            jobs.push_back(job(path, {}));
            continue;
        }
        const QStringList found = filesBelow(path, isMesh);
        if (found.isEmpty())
            jobs.push_back({path, {}, QStringLiteral("%1: There is no mesh in this folder.").arg(path)});
        const QDir around(QFileInfo(path).absoluteFilePath());
        for (const QString &model : found)
            jobs.push_back(
                job(model, around.relativeFilePath(QFileInfo(model).absolutePath()) + QLatin1Char('/')));
    }
    return jobs;
}
} // namespace

bool isGameFile(const QString &path)
{
    return isReadable(QFileInfo(path).canonicalFilePath());
}

QString gameFileText(const QString &picture)
{
    return QStringLiteral("%1: The picture would replace a file of the game.").arg(picture);
}

std::vector<PictureJob> picturesOf(const QStringList &paths, const QString &target, bool replaces)
{
    QHash<QString, QString> models; // by their pictures, as FileSystem compares them
    const auto picture = [&target](const QString &folder, const QString &name) {
        return QDir::cleanPath(QDir(target).filePath(folder + name + QStringLiteral(".png")));
    };
    return jobsOf(paths, [&](const QString &model, const QString &folder) {
        const QFileInfo file(model);
        PictureJob job{model, picture(folder, file.completeBaseName()), {}};
        const auto taken = [&] { return models.constFind(FileSystem::comparable(job.picture)); };
        // A skinned mesh and a static one may have one name.
        if (taken() != models.constEnd() && QFileInfo(*taken()).suffix() != file.suffix())
            job.picture = picture(folder, file.fileName());
        if (taken() != models.constEnd())
            job.refusal =
                QStringLiteral("%1: The picture of another model goes to '%2'.").arg(model, job.picture);
        else if (isGameFile(job.picture))
            job.refusal = gameFileText(job.picture);
        else if (!replaces && isTaken(job.picture))
            job.refusal = Output::takenText(job.picture);
        models.insert(FileSystem::comparable(job.picture), model);
        return job;
    });
}

std::vector<PictureJob> thumbnailsOf(const QStringList &paths)
{
    return jobsOf(paths, [](const QString &model, const QString &) { return PictureJob{model, {}, {}}; });
}

std::variant<int, DrawingLimits> renderEach(const std::vector<PictureJob> &jobs, const PictureWishes &wishes,
                                            const MaterialFolders &chosen, const TakePicture &take)
{
    int exitCode = Fine;
    std::vector<QImage> images(take ? jobs.size() : 0);
    const auto makeDraw = [&](OffscreenScene &scene) -> PictureThreads::Draw {
        const auto maker = std::make_shared<PictureMaker>(scene, wishes, chosen);
        return [&, maker](size_t job) {
            QImage none;
            return maker->make(jobs[job], images.empty() ? none : images[job]);
        };
    };
    const auto tell = [&](size_t job, const DrawnPicture &drawn) {
        Log::say(drawn.lines);
        if (!drawn.error.isEmpty()) {
            Output::complain(drawn.error);
            exitCode = Failed;
        } else if (!take) {
            Output::line(jobs[job].picture);
        }
        if (take)
            take(job, std::exchange(images[job], QImage()));
        return true;
    };
    PictureThreads threads(jobs.size(), wishes.size);
    if (const auto limits = threads.run(makeDraw, tell, interruption()))
        return *limits;
    return interruption() ? Interrupted : exitCode;
}
