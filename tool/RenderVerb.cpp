// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoundingSphere.h"
#include "CommandLine.h"
#include "FrameChoice.h"
#include "Framing.h"
#include "GameFolders.h"
#include "OffscreenScene.h"
#include "Output.h"
#include "Playback.h"
#include "Pose.h"
#include "PosedModel.h"
#include "ReplacedFiles.h"
#include "Settings.h"
#include "Terminal.h"
#include "Verbs.h"
#include "WholeFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageWriter>
#include <QRegularExpression>

#include <climits>

namespace {
constexpr int DefaultYaw = 30;
constexpr int DefaultPitch = 15;

/// What is wanted of the picture.
struct Wishes
{
    QSize size;
    QColor background;
    float yaw = 0.0f;
    float pitch = 0.0f;
    int block = 0;
    int frame = 0;
};

/// Why the block and the frame cannot be shown.
QString posingProblem(const PosedModel &subject, const CommandLine &line, const Wishes &wishes)
{
    const bool isAsked = line.isSet(QStringLiteral("block")) || line.isSet(QStringLiteral("frame"));
    return subject.animFile() || isAsked ? subject.problem(wishes.block, wishes.frame) : QString();
}

void pose(GLMesh &model, SceneFrame &frame, const PosedModel &subject, const Wishes &wishes)
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

/// "640x480", or "256" for a square; an empty size when it is neither.
QSize sizeOf(const QString &text)
{
    static const QRegularExpression form(QStringLiteral("^([1-9][0-9]{0,4})(?:x([1-9][0-9]{0,4}))?$"));
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch())
        return {};
    const int width = match.captured(1).toInt();
    return {width, match.captured(2).isEmpty() ? width : match.captured(2).toInt()};
}

std::optional<Wishes> wishesOf(const CommandLine &line)
{
    Wishes wishes;
    const QString background = line.value(QStringLiteral("background"));
    wishes.size = sizeOf(line.value(QStringLiteral("size")));
    wishes.background = QColor(background);
    if (wishes.size.isEmpty()) {
        line.refuse(QStringLiteral("--size takes WIDTHxHEIGHT or the side of a square in pixels, not '%1'.")
                        .arg(line.value(QStringLiteral("size"))));
        return {};
    }
    if (!wishes.background.isValid()) {
        line.refuse(QStringLiteral("--background takes \"transparent\", a name or #RRGGBB, not '%1'.")
                        .arg(background));
        return {};
    }
    const auto yaw = line.number(QStringLiteral("yaw"), -36000.0f, 36000.0f);
    const auto pitch = line.number(QStringLiteral("pitch"), -90.0f, 90.0f);
    const auto block = line.integer(QStringLiteral("block"), 0, INT_MAX);
    const auto frame = line.integer(QStringLiteral("frame"), 0, INT_MAX);
    if (!yaw || !pitch || !block || !frame)
        return {};
    wishes.yaw = *yaw;
    wishes.pitch = *pitch;
    wishes.block = *block;
    wishes.frame = *frame;
    return wishes;
}

/// Writes the picture in one step. Returns what went wrong; empty when nothing did.
QString write(const QImage &image, const QString &path)
{
    // Thumbnailers are given names without an extension.
    QByteArray format = QFileInfo(path).suffix().toLower().toLatin1();
    if (!QImageWriter::supportedImageFormats().contains(format))
        format = "png";
    QBuffer bytes;
    QImageWriter writer(&bytes, format);
    return writer.write(image) ? writeWholeFile(path, bytes.data()) : writer.errorString();
}
} // namespace

int render(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("render"), QStringLiteral("FILE"),
        QStringLiteral("Draws a mesh into a picture, whole and from a little above. A skinned mesh is "
                       "posed by its animation file, which is looked for where the game keeps it; of an "
                       "animation file, the mesh is looked for. ") +
            Terminal::drawingNeeds());
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("The picture; PNG unless its name says another format."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace a picture that exists."));
    line.option({QStringLiteral("anim")}, QStringLiteral("file"),
                QStringLiteral("Animation file to pose by."));
    line.option({QStringLiteral("block")}, QStringLiteral("number"),
                QStringLiteral("Animation in the file, from 0."), QStringLiteral("0"));
    line.option({QStringLiteral("frame")}, QStringLiteral("number"), QStringLiteral("Frame of it, from 0."),
                QStringLiteral("0"));
    line.option({QStringLiteral("size")}, QStringLiteral("WxH"),
                QStringLiteral("Width and height in pixels, or the side of a square."),
                QStringLiteral("512x512"));
    line.option({QStringLiteral("background")}, QStringLiteral("color"),
                QStringLiteral("A color's name, #RRGGBB or \"transparent\"."), QStringLiteral("transparent"));
    line.option(
        {QStringLiteral("yaw")}, QStringLiteral("degrees"),
        QStringLiteral("Where the camera stands around the model: 0 before its front, 90 at its left side."),
        QString::number(DefaultYaw));
    line.option({QStringLiteral("pitch")}, QStringLiteral("degrees"),
                QStringLiteral("How far it looks down, -90 to 90."), QString::number(DefaultPitch));
    line.folderOptions(CommandLine::GameFolder::AroundFile);
    if (const auto end = line.parse(arguments, false))
        return *end;
    const std::optional<Wishes> wishes = wishesOf(line);
    if (!wishes)
        return WrongUsage;
    const QString output = line.value(QStringLiteral("output"));
    if (output.isEmpty())
        return line.refuse(QStringLiteral("-o FILE is missing."));
    if (!line.isSet(QStringLiteral("force")) && isTaken(output) && Output::refuseToReplace({output}))
        return Failed;

    const QString file = line.operands().constFirst();
    const MaterialFolders folders = foldersAround(file, line);
    PosedModel subject;
    QString error = subject.read(file, line.value(QStringLiteral("anim")), folders);
    if (error.isEmpty())
        error = posingProblem(subject, line, *wishes);
    if (error.isEmpty() && (isOneFile(output, subject.meshPath) || isOneFile(output, subject.animPath)))
        error = QStringLiteral("%1: The picture would replace what it is drawn of.").arg(output);
    if (!error.isEmpty()) {
        Output::complain(error);
        return Failed;
    }

    OffscreenScene scene;
    if (!scene.failure().isEmpty()) {
        Output::complain(
            QStringLiteral("render: Nothing can be drawn: %1. It needs a display with OpenGL. %2")
                .arg(scene.failure(), Terminal::advice()));
        return NoScreen;
    }
    if (std::max(wishes->size.width(), wishes->size.height()) > scene.longestSide())
        return line.refuse(
            QStringLiteral("--size: A side can have %1 pixels at most.").arg(scene.longestSide()));

    scene.setModel(subject.rigid()
                       ? MeshSource::from(*subject.rigid(), folders.gamePath, folders.outputDir)
                       : MeshSource::from(*subject.skinned(), folders.gamePath, folders.outputDir));
    SceneFrame frame;
    pose(scene.model(), frame, subject, *wishes);
    std::vector<QVector3D> corners = scene.corners(frame);
    if (const int strays = dropStrays(corners))
        Output::complain(
            QStringLiteral("warning: %1: Left out of the picture: vertices that stand far away from "
                           "all others (%2).")
                .arg(subject.meshPath, QString::number(strays)));
    const Framing framing = frameAll(corners, wishes->yaw, wishes->pitch, wishes->size);
    frame.view = framing.view;
    frame.projection = framing.projection;
    const QImage image = scene.paint(frame, wishes->size, wishes->background);
    if (image.isNull()) {
        Output::complain(QStringLiteral("render: The graphics driver cannot draw a picture this big."));
        return Failed;
    }
    error = write(image, output);
    if (error.isEmpty())
        return Fine;
    Output::complain(QStringLiteral("%1: The picture cannot be written: %2").arg(output, error));
    return Failed;
}
