// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelPicture.h"

#include "BoundingSphere.h"
#include "Framing.h"
#include "Log.h"
#include "OffscreenScene.h"
#include "PictureOutput.h"
#include "PlannedScene.h"
#include "ReplacedFiles.h"
#include "Validation.h"

#include <algorithm>

MeshSource sourceOf(const PosedModel &model, const MaterialFolders &folders)
{
    return model.rigid() ? MeshSource::from(*model.rigid(), folders.gamePath, folders.outputDir)
                         : MeshSource::from(*model.skinned(), folders.gamePath, folders.outputDir);
}

Playback stateOf(const PosedModel &model, const PictureWishes &wishes)
{
    Playback state;
    state.mesh = model.skinned();
    state.anim = model.animFile();
    state.blockIndex = wishes.block;
    return state;
}

std::vector<QVector3D> visibleCorners(const OffscreenScene &scene, const SceneFrame &frame, int &strays)
{
    std::vector<QVector3D> corners = scene.corners(frame);
    strays = std::max(strays, dropStrays(corners));
    return corners;
}

void warnOfStrays(const QString &path, int strays)
{
    if (strays > 0)
        Log::warning(QStringLiteral("%1: Left out of the picture: vertices that stand far away from all "
                                    "others (%2).")
                         .arg(path, QString::number(strays)));
}

QString unwritten(const QString &path, const QString &reason)
{
    return QStringLiteral("%1: The picture cannot be written: %2").arg(path, reason);
}

QString tooBig(const QString &path)
{
    return QStringLiteral("%1: The graphics driver cannot draw a picture this big.").arg(path);
}

QString ModelPicture::read(const QString &file, Companions &companions)
{
    QString error = m_subject.read(file, m_wishes.anim, companions);
    if (error.isEmpty() && (m_subject.animFile() || m_wishes.isPoseNamed))
        error = m_subject.problem(m_wishes.block, m_wishes.frame);
    if (error.isEmpty() && (isOneFile(m_path, m_subject.meshPath) || isOneFile(m_path, m_subject.animPath)))
        error = QStringLiteral("%1: The picture would replace what it is drawn of.").arg(m_path);
    return error;
}

QImage ModelPicture::paint(OffscreenScene &scene, const MaterialFolders &folders, QString &error) const
{
    scene.setModel(sourceOf(m_subject, folders));
    SceneFrame frame;
    frame.look = m_wishes.look;
    frame.skinned = m_subject.skinned() != nullptr;
    PoseEvaluator poses;
    poseFrame(scene.model(), frame, stateOf(m_subject, m_wishes), m_wishes.frame, poses);
    int strays = 0;
    const std::vector<QVector3D> corners = visibleCorners(scene, frame, strays);
    warnOfStrays(m_subject.meshPath, strays);
    const Framing framing = frameAll(corners, m_wishes.yaw, m_wishes.pitch, m_wishes.size, m_wishes.lens);
    frame.view = framing.view;
    frame.projection = framing.projection;
    QImage image = scene.paint(frame, m_wishes.size, m_wishes.background);
    if (image.isNull())
        error = tooBig(m_path.isEmpty() ? m_subject.meshPath : m_path);
    return image;
}

QString ModelPicture::draw(OffscreenScene &scene, const MaterialFolders &folders) const
{
    QString error;
    const QImage image = paint(scene, folders, error);
    if (image.isNull())
        return error;
    error = writePicture(image, m_path);
    return error.isEmpty() ? QString() : unwritten(m_path, error);
}
