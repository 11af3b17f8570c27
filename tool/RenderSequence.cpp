// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "RenderSequence.h"

#include "BoundingSphere.h"
#include "CommandLine.h"
#include "Companions.h"
#include "ExitCode.h"
#include "Framing.h"
#include "Interruption.h"
#include "ModelPicture.h"
#include "OffscreenScene.h"
#include "Output.h"
#include "PictureOutput.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <memory>
#include <utility>

QString ModelSequence::read(const QString &file, const MaterialFolders &chosen)
{
    m_file = file;
    m_folders = foldersAround(file, chosen);
    Companions companions(m_folders);
    PicturePlan &plan = m_sequence.plan;
    const QString error = m_subject.read(file, m_wishes.anim, companions);
    if (!error.isEmpty())
        return error;
    if (!m_sequence.hasFrames)
        plan.firstFrame = plan.lastFrame = m_wishes.frame;
    // Of a model that has none, a picture that names no frame shows what there is.
    if (m_subject.animFile() || m_sequence.hasFrames || m_wishes.isPoseNamed) {
        const QString problem = m_subject.problem(m_wishes.block, plan.lastFrame);
        if (!problem.isEmpty())
            return problem;
    }
    if (m_sequence.hasAllFrames)
        plan.lastFrame =
            std::max(m_subject.animFile()->blocks[size_t(m_wishes.block)].frameCount() - 1, plan.firstFrame);
    return {};
}

QStringList ModelSequence::targets(const QString &output) const
{
    const QString name =
        QFileInfo(output).isDir()
            ? QDir(output).filePath(QFileInfo(m_file).completeBaseName() + QStringLiteral(".png"))
            : output;
    QStringList all;
    const std::vector<PicturePlan::Shot> shots = plan().shots();
    for (const PicturePlan::Shot &shot : shots)
        all += numberedPicture(name, shot.number, shots.back().number);
    return all;
}

/// From the first frame to the last, whatever the step: more pictures of the same are framed alike.
PlannedScene ModelSequence::frameTogether(OffscreenScene &scene,
                                          const std::vector<PicturePlan::Shot> &shots) const
{
    PlannedScene planned;
    planned.size = m_wishes.size;
    planned.background = m_wishes.background;
    planned.state = stateOf(m_subject, m_wishes);
    planned.frame.look = m_wishes.look;
    planned.frame.skinned = m_subject.skinned() != nullptr;

    PoseEvaluator poses;
    int strays = 0;
    const auto cornersAt = [&](int number) {
        SceneFrame posed = planned.frame;
        poseFrame(scene.model(), posed, planned.state, number, poses);
        return visibleCorners(scene, posed, strays);
    };
    const int first = plan().firstFrame, last = plan().lastFrame;
    std::vector<QVector3D> corners = cornersAt(first);
    planned.pivot = BoundingSphere::of(corners).middle;
    if (shots.size() > 1) {
        OutermostPoints outermost(m_wishes.yaw, m_wishes.pitch, m_wishes.size, m_wishes.lens);
        for (int frame = first; frame <= last && !interruption(); ++frame) {
            corners = cornersAt(frame);
            if (plan().turns > 0)
                outermost.addCircles(corners, planned.pivot);
            else
                outermost.add(corners);
        }
        corners = outermost.points();
    }
    warnOfStrays(m_subject.meshPath, strays);
    const Framing framing = frameAll(corners, m_wishes.yaw, m_wishes.pitch, m_wishes.size, m_wishes.lens);
    planned.frame.view = framing.view;
    planned.frame.projection = framing.projection;
    return planned;
}

std::variant<int, DrawingLimits> ModelSequence::draw(const QStringList &targets, const TakeShot &take) const
{
    const std::vector<PicturePlan::Shot> shots = plan().shots();
    const MeshSource source = sourceOf(m_subject, m_folders);
    PlannedScene planned;
    {
        const auto surface = OffscreenScene::makeSurface();
        OffscreenScene scene(*surface);
        const DrawingLimits limits(scene);
        if (!limits.allow(m_wishes.size))
            return limits;
        scene.setModel(MeshSource(source));
        planned = frameTogether(scene, shots);
    }
    std::vector<QImage> images(take ? shots.size() : 0);
    const auto makeDraw = [&](OffscreenScene &scene) -> PictureThreads::Draw {
        scene.setModel(MeshSource(source));
        const auto poses = std::make_shared<PoseEvaluator>();
        return [&, poses](size_t shot) {
            QImage image = paintShot(scene, planned, shots[shot], *poses);
            if (image.isNull())
                return tooBig(take ? m_subject.meshPath : targets[int(shot)]);
            if (take) {
                images[shot] = std::move(image);
                return QString();
            }
            const QString error = writePicture(image, targets[int(shot)]);
            return error.isEmpty() ? QString() : unwritten(targets[int(shot)], error);
        };
    };
    int exitCode = Fine;
    const auto tell = [&](size_t shot, const DrawnPicture &drawn) {
        if (!drawn.error.isEmpty()) {
            Output::complain(drawn.error);
            exitCode = Failed;
            return false;
        }
        if (take)
            take(shots[shot], std::exchange(images[shot], QImage()));
        else
            Output::line(targets[int(shot)]);
        return true;
    };
    PictureThreads threads(shots.size(), m_wishes.size);
    if (const auto limits = threads.run(makeDraw, tell, interruption()))
        return *limits;
    return exitCode == Fine && interruption() ? int(Interrupted) : exitCode;
}
