// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "Companions.h"
#include "FileNames.h"
#include "FrameChoice.h"
#include "GltfExport.h"
#include "GltfFiles.h"
#include "ImportMessages.h"
#include "MaterialFiles.h"
#include "Output.h"
#include "Playback.h"
#include "PosedMesh.h"
#include "PosedModel.h"
#include "StaticMeshExport.h"
#include "Verbs.h"
#include "WorkerRun.h"

#include <QDir>
#include <QFileInfo>

#include <climits>

namespace {
constexpr int TimeLimit = 600; // seconds

/// What is wanted of the model.
struct ExportWishes
{
    QString target;
    bool asGltf = false;
    bool posed = false;
    std::vector<int> blocks; ///< none named: all of them, or the first for a pose
    int frame = 0;
};

bool isObjName(const QString &path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("obj"), Qt::CaseInsensitive) == 0;
}

/// Reads the options; gives the exit code when they do not agree.
std::optional<int> readWishes(const CommandLine &line, ExportWishes &wishes)
{
    if (!line.isSet(QStringLiteral("output")))
        return line.refuse(QStringLiteral("-o FILE is missing."));
    wishes.target = line.value(QStringLiteral("output"));
    wishes.posed = line.isSet(QStringLiteral("pose"));
    wishes.asGltf = line.isSet(QStringLiteral("gltf")) || GltfFiles::isName(wishes.target);
    if (QFileInfo(wishes.target).isDir()) {
        const QString base = FileNames::portable(QFileInfo(line.operands().constFirst()).completeBaseName());
        wishes.target =
            QDir(wishes.target)
                .filePath(base + (wishes.asGltf ? QStringLiteral(".glb") : QStringLiteral(".obj")));
    }
    if (wishes.asGltf && wishes.posed)
        return line.refuse(QStringLiteral("--pose writes OBJ, not glTF."));
    if (wishes.asGltf ? !GltfFiles::isName(wishes.target) : !isObjName(wishes.target))
        return line.refuse(QStringLiteral("'%1' does not end in %2.")
                               .arg(wishes.target, wishes.asGltf ? QStringLiteral(".glb or .gltf")
                                                                 : QStringLiteral(".obj")));
    const QDir folder = QFileInfo(wishes.target).dir();
    if (!folder.exists())
        return line.refuseFolder(folder.path());
    for (const QString &text : line.values(QStringLiteral("block"))) {
        const auto block = line.integer(QStringLiteral("block"), text, 0, INT_MAX);
        if (!block)
            return WrongUsage;
        wishes.blocks.push_back(*block);
    }
    const auto frame = line.integer(QStringLiteral("frame"), 0, INT_MAX);
    if (!frame)
        return WrongUsage;
    wishes.frame = *frame;
    if (line.isSet(QStringLiteral("frame")) && !wishes.posed)
        return line.refuse(QStringLiteral("--frame goes with --pose."));
    if (wishes.posed && wishes.blocks.size() > 1)
        return line.refuse(QStringLiteral("--pose takes one --block."));
    return {};
}

/// Why this cannot be done with the model.
QString exportProblem(const PosedModel &model, const ExportWishes &wishes, bool framed)
{
    if (model.skinned() && !wishes.asGltf && !wishes.posed)
        return QStringLiteral(
                   "%1: A skinned mesh becomes OBJ in one pose only, with --pose; glTF has all of it.")
            .arg(model.meshPath);
    if (model.rigid() && (wishes.posed || !wishes.blocks.empty()))
        return QStringLiteral("%1: A static mesh has no animation.").arg(model.meshPath);
    for (const int block : wishes.blocks) {
        const QString problem = model.problem(block, wishes.frame);
        if (!problem.isEmpty())
            return problem;
    }
    return framed && wishes.blocks.empty() ? model.problem(0, wishes.frame) : QString();
}

/// Returns true when nothing was written.
bool writeGltf(const PosedModel &model, const ExportWishes &wishes, const MaterialFolders &folders,
               bool force, ImportMessages &messages)
{
    GltfSource source;
    source.name = QFileInfo(model.meshPath).completeBaseName();
    QString reason;
    if (!model.meshPath.isEmpty() && source.names.read(ModelNames::pathFor(model.meshPath), &reason))
        messages.addWarning(QStringLiteral("[glTF Export] %1").arg(reason));
    source.names = namesFor(source.names, model.animFile());
    source.gamePath = folders.gamePath;
    source.outputDir = folders.outputDir;
    const AnimFile *anim = model.animFile();
    const std::vector<int> blocks = anim && wishes.blocks.empty() ? allBlocks(*anim) : wishes.blocks;
    const GltfFiles files(model.rigid() ? exportGltf(*model.rigid(), source, messages)
                                        : exportGltf(*model.skinned(), anim, blocks, source, messages),
                          wishes.target);
    if (messages.hasError() || (!force && Output::refuseToReplace(files.replaced())) || files.write(messages))
        return true;
    Output::line(files.path());
    return false;
}

bool writeObj(const StaticMesh &mesh, const QString &target, const MaterialFolders &folders, bool force,
              ImportMessages &messages)
{
    MaterialFiles materials(folders.gamePath, folders.outputDir);
    const ExportedFiles files(staticMeshExport(mesh, target, materials, messages),
                              QFileInfo(target).dir().path());
    if (messages.hasError() || (!force && Output::refuseToReplace(files.replaced())))
        return true;
    ImportWorker worker;
    runJob(worker, TimeLimit, {}, files.job(), mesh);
    messages.lines += worker.messages().lines;
    if (messages.hasError() || files.place(worker, messages))
        return true;
    Output::line(files.objPath());
    return false;
}

StaticMesh poseOf(const PosedModel &model, const ExportWishes &wishes)
{
    Playback state;
    state.mesh = model.skinned();
    state.anim = model.animFile();
    state.blockIndex = wishes.blocks.empty() ? 0 : wishes.blocks.front();
    state.playState = PlayState::Paused;
    if (const AnimBlock *block = playableBlock(state))
        state.time = float(wishes.frame) / playRate(block->speed);
    return posedMesh(*model.skinned(), state);
}
} // namespace

int exportModel(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("export"), QStringLiteral("FILE"),
        QStringLiteral(
            "Writes a mesh for other programs: as glTF, a skinned one with its animations, which "
            "are looked for where the game keeps them; or as OBJ with an MTL file, a skinned one in "
            "one pose. Textures come along."));
    line.option({QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("file"),
                QStringLiteral("The file, whose name ends in .glb, .gltf or .obj, or a folder for it."));
    line.flag(QStringLiteral("gltf"), QStringLiteral("Into a folder, write NAME.glb instead of NAME.obj."));
    line.option({QStringLiteral("anim")}, QStringLiteral("file"),
                QStringLiteral("Animation file of the skinned mesh."));
    line.option(
        {QStringLiteral("block")}, QStringLiteral("number"),
        QStringLiteral("Animation in the file, from 0; more than once for several. Otherwise glTF has "
                       "all of them, and a pose is of the first."));
    line.flag(QStringLiteral("pose"), QStringLiteral("Write a skinned mesh as OBJ, in the pose of a frame."));
    line.option({QStringLiteral("frame")}, QStringLiteral("number"),
                QStringLiteral("Frame of that pose, from 0."), QStringLiteral("0"));
    line.flag(QStringLiteral("force"), QStringLiteral("Replace files that exist, textures too."));
    line.folderOptions(CommandLine::GameFolder::AroundFile);
    if (const auto end = line.parse(arguments, false))
        return *end;
    ExportWishes wishes;
    if (const auto end = readWishes(line, wishes))
        return *end;

    const QString file = line.operands().constFirst();
    const MaterialFolders folders = foldersAround(file, chosenFolders(line));
    Companions companions(folders);
    PosedModel model;
    QString error = model.read(file, line.value(QStringLiteral("anim")), companions);
    if (error.isEmpty())
        error = exportProblem(model, wishes, line.isSet(QStringLiteral("frame")));
    if (!error.isEmpty()) {
        Output::complain(error);
        return Failed;
    }
    ImportMessages messages;
    const bool force = line.isSet(QStringLiteral("force"));
    const bool failed = wishes.asGltf ? writeGltf(model, wishes, folders, force, messages)
                                      : writeObj(wishes.posed ? poseOf(model, wishes) : *model.rigid(),
                                                 wishes.target, folders, force, messages);
    Output::tell(messages);
    return failed ? Failed : Fine;
}
