// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "ModelPicture.h"
#include "OffscreenScene.h"
#include "Output.h"
#include "RenderEach.h"
#include "ReplacedFiles.h"
#include "Terminal.h"
#include "Verbs.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <climits>
#include <iterator>

namespace {
constexpr int DefaultYaw = 30;
constexpr int DefaultPitch = 15;

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

constexpr const char *Looks[] = {"textured", "lit", "normals"}; // in the order of the enumeration

std::optional<SurfaceLook> lookOf(const QString &text)
{
    const auto *look = std::find(std::begin(Looks), std::end(Looks), text);
    return look == std::end(Looks) ? std::nullopt
                                   : std::optional(SurfaceLook(std::distance(std::begin(Looks), look)));
}

std::optional<PictureWishes> wishesOf(const CommandLine &line)
{
    PictureWishes wishes;
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
    const QString shading = line.value(QStringLiteral("shading"));
    const std::optional<SurfaceLook> look = lookOf(shading);
    if (!look) {
        line.refuse(QStringLiteral("--shading takes textured, lit or normals, not '%1'.").arg(shading));
        return {};
    }
    wishes.look = *look;
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
    wishes.isPoseNamed = line.isSet(QStringLiteral("block")) || line.isSet(QStringLiteral("frame"));
    wishes.anim = line.value(QStringLiteral("anim"));
    return wishes;
}

/// Says why these limits do not allow the picture; gives the exit code.
int refuse(const DrawingLimits &limits, const CommandLine &line)
{
    if (limits.failure.isEmpty())
        return line.refuse(
            QStringLiteral("--size: A side can have %1 pixels at most.").arg(limits.longestSide));
    Output::complain(QStringLiteral("render: Nothing can be drawn: %1. It needs a display with OpenGL. %2")
                         .arg(limits.failure, Terminal::advice()));
    return NoScreen;
}

int renderOne(const CommandLine &line, const PictureWishes &wishes)
{
    const QString output = line.value(QStringLiteral("output"));
    if (!line.isSet(QStringLiteral("force")) && isTaken(output) && Output::refuseToReplace({output}))
        return Failed;
    const QString file = line.operands().constFirst();
    const MaterialFolders folders = foldersAround(file, chosenFolders(line));
    Companions companions(folders);
    ModelPicture picture(wishes, output);
    QString error = picture.read(file, companions);
    if (error.isEmpty()) {
        const auto surface = OffscreenScene::makeSurface();
        OffscreenScene scene(*surface);
        const DrawingLimits limits(scene);
        if (!limits.allow(wishes.size))
            return refuse(limits, line);
        error = picture.draw(scene, folders);
    }
    if (error.isEmpty())
        return Fine;
    Output::complain(error);
    return Failed;
}

int renderMany(const CommandLine &line, const PictureWishes &wishes)
{
    const QString target = line.value(QStringLiteral("output"));
    if (!QFileInfo(target).isDir())
        return line.refuse(QStringLiteral("There is no folder '%1'.").arg(target));
    if (!wishes.anim.isEmpty())
        return line.refuse(QStringLiteral("--anim means nothing with --each."));
    const auto jobs = picturesOf(line.operands(), target, line.isSet(QStringLiteral("force")));
    const auto drawn = renderEach(jobs, wishes, chosenFolders(line));
    const int *exitCode = std::get_if<int>(&drawn);
    return exitCode ? *exitCode : refuse(std::get<DrawingLimits>(drawn), line);
}
} // namespace

int render(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("render"), QStringLiteral("FILE"),
        QStringLiteral("Draws a mesh into a picture, whole and from a little above. A skinned mesh is "
                       "posed by its animation file, which is looked for where the game keeps it; of an "
                       "animation file, the mesh is looked for. With --each, many models are drawn into a "
                       "folder. ") +
            Terminal::drawingNeeds());
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("The picture; PNG unless its name says another format. With --each, the "
                               "folder for the pictures."));
    line.flag(QStringLiteral("each"),
              QStringLiteral("Draw several files, and all meshes of folders and below them, each into "
                             "NAME.png."));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace pictures that exist."));
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
    line.option({QStringLiteral("shading")}, QStringLiteral("kind"),
                QStringLiteral("textured, lit (by a lamp at the camera) or normals (in their colors)."),
                QStringLiteral("textured"));
    line.option(
        {QStringLiteral("yaw")}, QStringLiteral("degrees"),
        QStringLiteral("Where the camera stands around the model: 0 before its front, 90 at its left side."),
        QString::number(DefaultYaw));
    line.option({QStringLiteral("pitch")}, QStringLiteral("degrees"),
                QStringLiteral("How far it looks down, -90 to 90."), QString::number(DefaultPitch));
    line.folderOptions(CommandLine::GameFolder::AroundFile);
    if (const auto end = line.parse(arguments, true))
        return *end;
    const bool each = line.isSet(QStringLiteral("each"));
    if (line.operands().size() > 1 && !each)
        return line.refuse(
            QStringLiteral("Several files need --each, and -o a folder: '%1'.").arg(line.operands().at(1)));
    const std::optional<PictureWishes> wishes = wishesOf(line);
    if (!wishes)
        return WrongUsage;
    if (line.value(QStringLiteral("output")).isEmpty())
        return line.refuse(each ? QStringLiteral("-o FOLDER is missing.")
                                : QStringLiteral("-o FILE is missing."));
    return each ? renderMany(line, *wishes) : renderOne(line, *wishes);
}
