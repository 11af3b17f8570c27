// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "SequenceSaver.h"

#include "GLMesh.h"
#include "KVOpenGLWidget.h"
#include "Log.h"
#include "Memory.h"
#include "OffscreenScene.h"
#include "Patience.h"
#include "PictureDialog.h"
#include "PictureOutput.h"
#include "PictureThreads.h"

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>

#include <algorithm>
#include <memory>

/// All that the threads need, apart from what the window goes on with.
struct SequenceSaver::Job
{
    std::vector<PicturePlan::Shot> shots;
    QStringList files; ///< of these
    PlannedScene planned;
    int selectedSurface;
    BonePalette palette; ///< of what is not posed anew
    std::shared_ptr<ModelCopy<SkinnedMesh>> skinned;
    std::shared_ptr<ModelCopy<AnimFile>> anim;
    std::shared_ptr<ModelCopy<StaticMesh>> rigid;
    PictureThreads threads;
    std::atomic_int saved{0};
    std::atomic_int percent{0};
};

QString SequenceSaver::unpaintable(const QSize &size)
{
    return tr("the graphics driver cannot paint a picture of %1 by %2 pixels")
        .arg(QString::number(size.width()), QString::number(size.height()));
}

bool SequenceSaver::mayBegin(const QStringList &files, QWidget *window)
{
    QStringList taken;
    std::copy_if(files.begin(), files.end(), std::back_inserter(taken),
                 [](const QString &file) { return QFileInfo::exists(file) || QFileInfo(file).isSymLink(); });
    if (taken.isEmpty())
        return true;
    if (taken.size() == 1)
        return mayReplace(window, tr("Save Picture"), taken.first());
    const QString question = tr("%1 of the pictures exist already, the first as '%2'. Replace them?")
                                 .arg(QString::number(taken.size()), QDir::toNativeSeparators(taken.first()));
    return QMessageBox::question(window, tr("Save Picture"), question, QMessageBox::Yes | QMessageBox::No,
                                 QMessageBox::No) == QMessageBox::Yes;
}

FailedSave SequenceSaver::draw(Job &job, const Background::Cancelled &cancelled)
{
    FailedSave failure;
    const QString noMemory = withinMemory([&] {
        const HeldLog known; // the view has told of it
        PlannedScene &planned = job.planned;
        MeshSource source;
        if (planned.frame.skinned) {
            planned.state.mesh = planned.frame.marks.mesh = &job.skinned->get();
            planned.state.anim = &job.anim->get();
            source = MeshSource::from(job.skinned->get());
        } else {
            source = MeshSource::from(job.rigid->get());
        }
        const auto makeDraw = [&](OffscreenScene &scene) -> PictureThreads::Draw {
            scene.setModel(MeshSource(source));
            scene.model().selectedSurface = job.selectedSurface;
            scene.model().palette = job.palette;
            const auto poses = std::make_shared<PoseEvaluator>();
            return [&, poses](size_t shot) {
                const QImage picture = paintShot(scene, job.planned, job.shots[shot], *poses);
                if (picture.isNull())
                    return unpaintable(job.planned.size);
                const QString error = writePicture(picture, job.files[int(shot)]);
                // One that failed is told of after others, which may be written by then.
                if (error.isEmpty())
                    ++job.saved;
                return error;
            };
        };
        const auto tell = [&](size_t shot, const DrawnPicture &drawn) {
            if (!drawn.error.isEmpty()) {
                failure = {job.files[int(shot)], drawn.error};
                return false;
            }
            job.percent = int(100 * (shot + 1) / job.shots.size());
            return true;
        };
        if (const auto limits = job.threads.run(makeDraw, tell, cancelled))
            failure = {job.files.first(), unpaintable(planned.size)};
    });
    return noMemory.isEmpty() ? failure : FailedSave{job.files.first(), noMemory};
}

QString SequenceSaver::save(const KVOpenGLWidget &view, const PictureDialog &wanted, QWidget *window)
{
    const QStringList files = wanted.files();
    if (!view.model() || !mayBegin(files, window))
        return {};
    PlannedScene planned;
    planned.size = wanted.pictureSize();
    planned.frame = view.still(planned.size);
    planned.pivot = view.modelMiddle();
    planned.background = wanted.isTransparent() ? QColor(0, 0, 0, 0) : QColor(view.backgroundColor().rgb());
    planned.isOpaque = !wanted.isTransparent();
    if (planned.frame.skinned)
        planned.state = playback();
    const PicturePlan plan = wanted.plan();
    // The frames around one are those of the pose that the view shows.
    if (plan.firstFrame != PicturePlan::StillPose)
        planned.frame.onionSkin = {};
    const std::vector<PicturePlan::Shot> shots = plan.shots();
    Job job{shots,
            files,
            planned,
            view.model()->selectedSurface,
            view.model()->palette,
            m_skinned.copy(),
            m_anim.copy(),
            m_rigid.copy(),
            {shots.size(), planned.size}};
    const QString folder = QFileInfo(files.first()).path();
    std::optional<FailedSave> failure;
    if (!QDir().mkpath(folder)) {
        failure = FailedSave{folder, tr("The folder cannot be made.")};
    } else if (PictureThreads::arePossible()) {
        failure = workWithPatience(
            [&job](const Background::Cancelled &cancelled) { return draw(job, cancelled); },
            tr("Saving pictures in '%1'").arg(QDir::toNativeSeparators(folder)), window, &job.percent);
    } else {
        failure = draw(job, Background::Cancelled(false));
    }
    if (failure && !failure->path.isEmpty()) {
        Log::error(
            tr("[Save Picture] '%1': %2").arg(QDir::toNativeSeparators(failure->path), failure->reason));
        warnOfFailedSaves(window, {*failure});
    }
    return tr("Pictures saved in %1: %2 of %3")
        .arg(QDir::toNativeSeparators(folder), QString::number(job.saved), QString::number(files.size()));
}
