// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "ContactSheet.h"
#include "Files.h"
#include "ModelFile.h"
#include "ModelPicture.h"
#include "OffscreenScene.h"
#include "Output.h"
#include "PictureOutput.h"
#include "RenderEach.h"
#include "RenderSequence.h"
#include "ReplacedFiles.h"
#include "Terminal.h"
#include "Verbs.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <algorithm>
#include <climits>
#include <iterator>

namespace {
constexpr float NarrowestLens = 1.0f;
constexpr float WidestLens = 120.0f;
constexpr int MostTurns = 9999; // pictures of a turntable
constexpr int SheetSide = 192;  // of a picture on a sheet, unless --size says another

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
    const auto lens = line.number(QStringLiteral("lens"), NarrowestLens, WidestLens);
    const auto block = line.integer(QStringLiteral("block"), 0, INT_MAX);
    const auto frame = line.integer(QStringLiteral("frame"), 0, INT_MAX);
    if (!yaw || !pitch || !lens || !block || !frame)
        return {};
    wishes.yaw = *yaw;
    wishes.pitch = *pitch;
    wishes.lens = *lens;
    wishes.block = *block;
    wishes.frame = *frame;
    wishes.isPoseNamed = line.isSet(QStringLiteral("block")) || line.isSet(QStringLiteral("frame"));
    wishes.anim = line.value(QStringLiteral("anim"));
    return wishes;
}

/// "0-24" or one frame alone, "all" for the block's.
bool readFrames(const CommandLine &line, SequenceWishes &sequence)
{
    const QString frames = line.value(QStringLiteral("frames"));
    static const QRegularExpression form(QStringLiteral("^([0-9]{1,9})(?:-([0-9]{1,9}))?$"));
    const QRegularExpressionMatch match = form.match(frames);
    sequence.hasFrames = true;
    sequence.hasAllFrames = frames == QLatin1String("all");
    if (match.hasMatch()) {
        sequence.plan.firstFrame = match.captured(1).toInt();
        sequence.plan.lastFrame = match.captured(match.lastCapturedIndex()).toInt();
    } else {
        sequence.plan.firstFrame = sequence.plan.lastFrame = 0;
    }
    const bool isRange = match.hasMatch() && sequence.plan.firstFrame <= sequence.plan.lastFrame;
    if (!isRange && !sequence.hasAllFrames)
        line.refuse(
            QStringLiteral("--frames takes FIRST-LAST, such as 0-24, or \"all\", not '%1'.").arg(frames));
    return isRange || sequence.hasAllFrames;
}

std::optional<SequenceWishes> sequenceOf(const CommandLine &line)
{
    SequenceWishes sequence;
    const bool hasFrames = line.isSet(QStringLiteral("frames"));
    if (hasFrames && line.isSet(QStringLiteral("frame"))) {
        line.refuse(QStringLiteral("--frame means nothing with --frames."));
        return {};
    }
    if (line.isSet(QStringLiteral("step")) && !hasFrames) {
        line.refuse(QStringLiteral("--step means nothing without --frames."));
        return {};
    }
    if (hasFrames && !readFrames(line, sequence))
        return {};
    const auto step = line.integer(QStringLiteral("step"), 1, INT_MAX / 2);
    const auto turns = line.isSet(QStringLiteral("turntable"))
                           ? line.integer(QStringLiteral("turntable"), 1, MostTurns)
                           : std::optional<int>(0);
    if (!step || !turns)
        return {};
    sequence.plan.step = *step;
    sequence.plan.turns = *turns;
    return sequence;
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

/// The exit code of what was drawn, or of what does not let anything be drawn.
int endOf(const std::variant<int, DrawingLimits> &drawn, const CommandLine &line)
{
    const int *exitCode = std::get_if<int>(&drawn);
    return exitCode ? *exitCode : refuse(std::get<DrawingLimits>(drawn), line);
}

/// Pictures replace pictures. A model is never meant, even where something is to be replaced: a name was
/// forgotten behind -o, and the shell put the first of the models there.
bool mayReplace(const CommandLine &line, const QStringList &targets)
{
    constexpr int MostNamed = 10;
    for (const QString &target : targets) {
        if (isGameFile(target)) {
            Output::complain(gameFileText(target));
            return false;
        }
    }
    if (line.isSet(QStringLiteral("force")))
        return true;
    QStringList taken;
    std::copy_if(targets.begin(), targets.end(), std::back_inserter(taken), isTaken);
    Output::refuseToReplace(taken.mid(0, MostNamed));
    if (taken.size() > MostNamed)
        Output::complain(QStringLiteral("So do %1 more of the pictures.").arg(taken.size() - MostNamed));
    return taken.isEmpty();
}

int renderOne(const CommandLine &line, const PictureWishes &wishes)
{
    const QString output = line.value(QStringLiteral("output"));
    if (!mayReplace(line, {output}))
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
        return line.refuseFolder(target);
    if (!wishes.anim.isEmpty())
        return line.refuse(QStringLiteral("--anim means nothing with --each."));
    const auto jobs = picturesOf(line.operands(), target, line.isSet(QStringLiteral("force")));
    return endOf(renderEach(jobs, wishes, chosenFolders(line)), line);
}

int complain(const QString &error)
{
    Output::complain(error);
    return Failed;
}

int renderSequence(const CommandLine &line, const PictureWishes &wishes, const SequenceWishes &wanted)
{
    ModelSequence sequence(wishes, wanted);
    const QString error = sequence.read(line.operands().constFirst(), chosenFolders(line));
    if (!error.isEmpty())
        return complain(error);
    const QStringList targets = sequence.targets(line.value(QStringLiteral("output")));
    if (!mayReplace(line, targets))
        return Failed;
    return endOf(sequence.draw(targets), line);
}

/// Writes the sheets of so many pictures as these come.
class SheetWriter
{
public:
    SheetWriter(const CommandLine &line, const PictureWishes &wishes, size_t pictures, int columns)
        : m_line(line)
        , m_sheet(int(pictures), wishes.size, wishes.background, columns)
    {
        const QString output = line.value(QStringLiteral("output"));
        for (int i = 0; i < m_sheet.sheets(); ++i)
            m_targets += m_sheet.sheets() > 1 ? numberedPicture(output, i + 1, m_sheet.sheets()) : output;
    }

    bool mayReplace() const { return ::mayReplace(m_line, m_targets); }
    void add(const QImage &picture, const QString &name)
    {
        m_sheet.put(m_next, picture, name);
        if (m_sheet.lastBeside(m_next) == m_next) {
            const QString &target = m_targets[m_sheet.sheetOf(m_next)];
            const QString error = writePicture(m_sheet.sheet(), target);
            if (error.isEmpty())
                Output::line(target);
            else
                m_exitCode = complain(unwritten(target, error));
        }
        ++m_next;
    }
    /// What became of the pictures, or of the sheets where these failed.
    int endOf(const std::variant<int, DrawingLimits> &drawn) const
    {
        return m_exitCode == Fine ? ::endOf(drawn, m_line) : m_exitCode;
    }

private:
    const CommandLine &m_line;
    ContactSheet m_sheet;
    QStringList m_targets;
    int m_next = 0;
    int m_exitCode = Fine;
};

QString nameOf(const PicturePlan::Shot &shot, const PicturePlan &plan)
{
    const QString frame = QString::number(shot.frame);
    const int decimals = 360 % std::max(plan.turns, 1) == 0 ? 0 : 1;
    const QString turn = QString::number(double(shot.turn), 'f', decimals) + QChar(0xb0);
    if (plan.turns == 0)
        return frame;
    return plan.firstFrame == plan.lastFrame ? turn : frame + QStringLiteral(", ") + turn;
}

int renderSheet(const CommandLine &line, const PictureWishes &wishes, const SequenceWishes *wanted)
{
    const auto columns = line.integer(QStringLiteral("columns"), 0, INT_MAX);
    if (!columns)
        return WrongUsage;
    if (*columns > ContactSheet::LongestSide || !ContactSheet::hasRoom(std::max(*columns, 1), wishes.size))
        return line.refuse(QStringLiteral("--columns, --size: A sheet can be %1 pixels wide at most.")
                               .arg(ContactSheet::LongestSide));
    if (QFileInfo(line.value(QStringLiteral("output"))).isDir())
        return line.refuse(QStringLiteral("-o takes the file of the sheet, not a folder."));
    const MaterialFolders chosen = chosenFolders(line);
    if (!wanted) {
        const std::vector<PictureJob> jobs = thumbnailsOf(line.operands());
        SheetWriter sheet(line, wishes, jobs.size(), *columns);
        if (!sheet.mayReplace())
            return Failed;
        return sheet.endOf(renderEach(jobs, wishes, chosen, [&](size_t job, const QImage &picture) {
            const QFileInfo model(jobs[job].model);
            sheet.add(picture, model.isDir() ? model.fileName() : model.completeBaseName());
        }));
    }
    ModelSequence sequence(wishes, *wanted);
    const QString error = sequence.read(line.operands().constFirst(), chosen);
    if (!error.isEmpty())
        return complain(error);
    SheetWriter sheet(line, wishes, sequence.plan().shots().size(), *columns);
    if (!sheet.mayReplace())
        return Failed;
    return sheet.endOf(sequence.draw({}, [&](const PicturePlan::Shot &shot, const QImage &picture) {
        sheet.add(picture, nameOf(shot, sequence.plan()));
    }));
}

/// What cannot be wanted together; empty where nothing speaks against it.
QString contradiction(const CommandLine &line, bool hasSequence)
{
    const bool each = line.isSet(QStringLiteral("each"));
    const bool sheet = line.isSet(QStringLiteral("sheet"));
    const bool many = line.operands().size() > 1 || Files::isFolder(line.operands().constFirst());
    if (line.isSet(QStringLiteral("columns")) && !sheet)
        return QStringLiteral("--columns means nothing without --sheet.");
    if (sheet && (each || many) && !line.value(QStringLiteral("anim")).isEmpty())
        return QStringLiteral("--anim means nothing with several models.");
    if (hasSequence && (each || (sheet && many)))
        return QStringLiteral("--frames and --turntable are for one file.");
    if (line.operands().size() > 1 && !each && !sheet)
        return QStringLiteral("Several files need --each, and -o a folder, or --sheet: '%1'.")
            .arg(line.operands().at(1));
    if (!line.value(QStringLiteral("output")).isEmpty())
        return {};
    return each && !sheet ? QStringLiteral("-o FOLDER is missing.") : QStringLiteral("-o FILE is missing.");
}
} // namespace

int render(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("render"), QStringLiteral("FILE"),
        QStringLiteral("Draws a mesh into a picture, whole and from a little above. A skinned mesh is "
                       "posed by its animation file, which is looked for where the game keeps it; of an "
                       "animation file, the mesh is looked for. With --frames or --turntable, a sequence of "
                       "numbered pictures is drawn; with --each, many models into a folder; with "
                       "--sheet, small pictures of all of these onto one. ") +
            Terminal::drawingNeeds());
    line.option(
        {QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
        QStringLiteral("The picture; PNG unless its name says another format. Of a sequence, NAME.png "
                       "becomes NAME-0000.png and so on, and a folder gets pictures of the model's "
                       "name. With --each, the folder for the pictures."));
    line.flag(QStringLiteral("each"),
              QStringLiteral("Draw several files, and all meshes of folders and below them, each into "
                             "NAME.png."));
    line.flag(QStringLiteral("sheet"),
              QStringLiteral("Draw small pictures of several files, of all meshes of folders, or of a "
                             "sequence onto one, each above its name."));
    line.option({QStringLiteral("columns")}, QStringLiteral("number"),
                QStringLiteral("Of a sheet; 0 makes it about as wide as it is high."), QStringLiteral("0"));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace pictures that exist."));
    line.option({QStringLiteral("anim")}, QStringLiteral("file"),
                QStringLiteral("Animation file to pose by."));
    line.option({QStringLiteral("block")}, QStringLiteral("number"),
                QStringLiteral("Animation in the file, from 0."), QStringLiteral("0"));
    line.option({QStringLiteral("frame")}, QStringLiteral("number"), QStringLiteral("Frame of it, from 0."),
                QStringLiteral("0"));
    line.option({QStringLiteral("frames")}, QStringLiteral("range"),
                QStringLiteral("A picture of each of these frames, such as 0-24, or of \"all\", numbered as "
                               "they are. The camera has all of them in view and stands still."));
    line.option({QStringLiteral("step")}, QStringLiteral("number"),
                QStringLiteral("From one frame of them to the next."), QStringLiteral("1"));
    line.option({QStringLiteral("turntable")}, QStringLiteral("number"),
                QStringLiteral("So many pictures of a whole turn around the model, numbered from 0. With "
                               "--frames, the shorter of both begins anew until the longer ends."));
    line.option({QStringLiteral("size")}, QStringLiteral("WxH"),
                QStringLiteral("Width and height in pixels, or the side of a square; 192 on a sheet."),
                QStringLiteral("512x512"));
    line.option({QStringLiteral("background")}, QStringLiteral("color"),
                QStringLiteral("A color's name, #RRGGBB or \"transparent\"; white on a sheet."),
                QStringLiteral("transparent"));
    line.option({QStringLiteral("shading")}, QStringLiteral("kind"),
                QStringLiteral("textured, lit (by a lamp at the camera) or normals (in their colors)."),
                QStringLiteral("textured"));
    line.option(
        {QStringLiteral("yaw")}, QStringLiteral("degrees"),
        QStringLiteral("Where the camera stands around the model: 0 before its front, 90 at its left side."),
        QString::number(double(PictureWishes::UsualYaw)));
    line.option({QStringLiteral("pitch")}, QStringLiteral("degrees"),
                QStringLiteral("How far it looks down, -90 to 90."),
                QString::number(double(PictureWishes::UsualPitch)));
    line.option(
        {QStringLiteral("lens")}, QStringLiteral("degrees"),
        QStringLiteral("Vertical field of view, 1 to 120; what is parallel stays so with 1, or nearly."),
        QString::number(UsualStillLens));
    line.folderOptions(CommandLine::GameFolder::AroundFile);
    if (const auto end = line.parse(arguments, true))
        return *end;
    std::optional<PictureWishes> wishes = wishesOf(line);
    const std::optional<SequenceWishes> sequence = wishes ? sequenceOf(line) : std::nullopt;
    if (!sequence)
        return WrongUsage;
    const bool hasSequence = sequence->hasFrames || sequence->plan.turns > 0;
    const QString wrong = contradiction(line, hasSequence);
    if (!wrong.isEmpty())
        return line.refuse(wrong);
    if (line.isSet(QStringLiteral("sheet"))) {
        if (!line.isSet(QStringLiteral("size")))
            wishes->size = QSize(SheetSide, SheetSide);
        if (!line.isSet(QStringLiteral("background")))
            wishes->background = Qt::white;
        return renderSheet(line, *wishes, hasSequence ? &*sequence : nullptr);
    }
    if (hasSequence)
        return renderSequence(line, *wishes, *sequence);
    return line.isSet(QStringLiteral("each")) ? renderMany(line, *wishes) : renderOne(line, *wishes);
}
