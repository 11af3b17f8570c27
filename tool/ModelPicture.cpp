// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelPicture.h"

#include "BoundingSphere.h"
#include "FrameChoice.h"
#include "Framing.h"
#include "Log.h"
#include "OffscreenScene.h"
#include "Playback.h"
#include "Pose.h"
#include "ReplacedFiles.h"
#include "Validation.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>

namespace {
void pose(GLMesh &model, SceneFrame &frame, const PosedModel &subject, const PictureWishes &wishes)
{
    frame.skinned = subject.skinned() != nullptr;
    if (!frame.skinned || !subject.animFile())
        return;
    Playback state;
    state.mesh = subject.skinned();
    state.anim = subject.animFile();
    state.blockIndex = wishes.block;
    state.playState = PlayState::Paused;
    if (const AnimBlock *block = playableBlock(state)) {
        state.time = float(wishes.frame) / playRate(block->speed);
        PoseEvaluator().evaluateAnimatedPose(model.palette, *state.mesh, *block, state, frame.yaw);
    }
}
} // namespace

QString ModelPicture::read(const QString &file, Companions &companions)
{
    QString error = m_subject.read(file, m_wishes.anim, companions);
    if (error.isEmpty() && (m_subject.animFile() || m_wishes.isPoseNamed))
        error = m_subject.problem(m_wishes.block, m_wishes.frame);
    if (error.isEmpty() && (isOneFile(m_path, m_subject.meshPath) || isOneFile(m_path, m_subject.animPath)))
        error = QStringLiteral("%1: The picture would replace what it is drawn of.").arg(m_path);
    return error;
}

QString ModelPicture::draw(OffscreenScene &scene, const MaterialFolders &folders) const
{
    scene.setModel(m_subject.rigid()
                       ? MeshSource::from(*m_subject.rigid(), folders.gamePath, folders.outputDir)
                       : MeshSource::from(*m_subject.skinned(), folders.gamePath, folders.outputDir));
    SceneFrame frame;
    frame.look = m_wishes.look;
    pose(scene.model(), frame, m_subject, m_wishes);
    std::vector<QVector3D> corners = scene.corners(frame);
    if (const int strays = dropStrays(corners))
        Log::warning(QStringLiteral("%1: Left out of the picture: vertices that stand far away from all "
                                    "others (%2).")
                         .arg(m_subject.meshPath, QString::number(strays)));
    const Framing framing = frameAll(corners, m_wishes.yaw, m_wishes.pitch, m_wishes.size);
    frame.view = framing.view;
    frame.projection = framing.projection;
    const QImage image = scene.paint(frame, m_wishes.size, m_wishes.background);
    if (image.isNull())
        return QStringLiteral("%1: The graphics driver cannot draw a picture this big.").arg(m_path);
    const QString error = write(image);
    return error.isEmpty() ? QString()
                           : QStringLiteral("%1: The picture cannot be written: %2").arg(m_path, error);
}

QString ModelPicture::write(const QImage &image) const
{
    // Thumbnailers are given names without an extension.
    QByteArray format = QFileInfo(m_path).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format))
        format = "png";
    QBuffer bytes;
    QImageWriter writer(&bytes, format);
    return writer.write(image) ? writeWholeFile(m_path, bytes.data()) : writer.errorString();
}
