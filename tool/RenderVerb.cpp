// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoundingSphere.h"
#include "CommandLine.h"
#include "Companions.h"
#include "FrameChoice.h"
#include "Framing.h"
#include "GameFolders.h"
#include "ModelFile.h"
#include "OffscreenScene.h"
#include "Output.h"
#include "Playback.h"
#include "Pose.h"
#include "Settings.h"
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

/// What the picture shows: a mesh, and for a skinned one the animation that poses it.
struct Subject
{
    FileContent mesh;
    QString meshPath;
    FileContent anim;
    QString animPath;

    const SkinnedMesh *skinned() const { return std::get_if<SkinnedMesh>(&mesh); }
    const StaticMesh *rigid() const { return std::get_if<StaticMesh>(&mesh); }
    const AnimFile *animFile() const { return std::get_if<AnimFile>(&anim); }
};

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

QString load(const QString &path, FileContent &content)
{
    const QString error = readFile(path, content);
    return error.isEmpty() ? QString() : QStringLiteral("%1: %2").arg(path, error);
}

/// Reads the files. Returns why there is nothing to draw.
QString read(const QString &file, const QString &animPath, const MaterialFolders &folders, Subject &subject)
{
    subject.meshPath = file;
    subject.animPath = animPath;
    QString error = load(file, subject.mesh);
    if (!error.isEmpty())
        return error;
    if (std::holds_alternative<AnimFile>(subject.mesh) && animPath.isEmpty()) {
        subject.anim = std::move(subject.mesh);
        subject.animPath = file;
        subject.meshPath = Companions(folders).find(file).path;
        if (subject.meshPath.isEmpty())
            return QStringLiteral("%1: There is no skinned mesh of this name for the animation.").arg(file);
        error = load(subject.meshPath, subject.mesh);
        if (!error.isEmpty())
            return error;
    }
    if (!subject.skinned() && !subject.rigid())
        return QStringLiteral("%1: This is no mesh.").arg(file);
    if (subject.rigid() && !animPath.isEmpty())
        return QStringLiteral("%1: A static mesh has no animation.").arg(file);
    if (!subject.skinned() || subject.animFile())
        return {};
    const bool asked = !animPath.isEmpty();
    if (!asked)
        subject.animPath = Companions(folders).find(file).path;
    if (subject.animPath.isEmpty())
        return {};
    error = load(subject.animPath, subject.anim);
    if (error.isEmpty() && !subject.animFile())
        error = QStringLiteral("%1: This is no animation.").arg(subject.animPath);
    if (error.isEmpty() && !animationMatchesMesh(*subject.animFile(), *subject.skinned()))
        error = QStringLiteral("%1: The animation does not have as many bones as '%2'.")
                    .arg(subject.animPath, subject.meshPath);
    if (error.isEmpty() || asked)
        return error;
    // Nobody named this file, so the model is drawn without it.
    Output::complain(QStringLiteral("warning: ") + error);
    subject.anim = std::monostate();
    return {};
}

/// Why the block and the frame cannot be shown.
QString posingProblem(const Subject &subject, const CommandLine &line, const Wishes &wishes)
{
    const AnimFile *anim = subject.animFile();
    if (!anim) {
        return line.isSet(QStringLiteral("block")) || line.isSet(QStringLiteral("frame"))
                   ? QStringLiteral("%1: There is no animation to take a block or a frame of.")
                         .arg(subject.meshPath)
                   : QString();
    }
    if (size_t(wishes.block) >= anim->blocks.size())
        return QStringLiteral("%1: There is no block %2, only %3 of them.")
            .arg(subject.animPath, QString::number(wishes.block), QString::number(anim->blocks.size()));
    const int frames = anim->blocks[size_t(wishes.block)].frameCount();
    if (wishes.frame > 0 && wishes.frame >= frames)
        return QStringLiteral("%1: Block %2 has no frame %3, only %4 of them.")
            .arg(subject.animPath, QString::number(wishes.block), QString::number(wishes.frame),
                 QString::number(frames));
    return {};
}

void pose(GLMesh &model, SceneFrame &frame, const Subject &subject, const Wishes &wishes)
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
                       "animation file, the mesh is looked for. Needs a display: without one, run it "
                       "with xvfb-run."));
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("The picture; PNG unless its name says another format."));
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

    const QString file = line.operands().constFirst();
    const MaterialFolders folders = foldersAround(file, line);
    Subject subject;
    QString error = read(file, line.value(QStringLiteral("anim")), folders, subject);
    if (error.isEmpty())
        error = posingProblem(subject, line, *wishes);
    if (!error.isEmpty()) {
        Output::complain(error);
        return Failed;
    }

    OffscreenScene scene;
    if (!scene.failure().isEmpty()) {
        Output::complain(
            QStringLiteral("render: Nothing can be drawn: %1. It needs a display with OpenGL; without "
                           "one, run it as 'xvfb-run korvane-tool render ...' (package xvfb).")
                .arg(scene.failure()));
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
