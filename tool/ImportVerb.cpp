// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "FileNames.h"
#include "ImportFilter.h"
#include "ImportOutput.h"
#include "ImportSteps.h"
#include "ImportedFiles.h"
#include "Output.h"
#include "ReadyOptions.h"
#include "Settings.h"
#include "UpdateImport.h"
#include "Verbs.h"
#include "WorkerRun.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {
constexpr int LongestTime = 3600; // seconds

void addOptions(CommandLine &line)
{
    line.option(
        {QStringLiteral("o"), QStringLiteral("output")}, QStringLiteral("folder"),
        QStringLiteral("Folder for the results, named after the model: NAME.skinnedmesh and, if the model "
                       "has animations, NAME.anim; or NAME.staticmesh."));
    line.flag(QStringLiteral("static"), QStringLiteral("Make a static mesh."));
    line.flag(QStringLiteral("force"),
              QStringLiteral("Replace files that exist, materials and textures too."));
    line.flag(QStringLiteral("keep-materials"),
              QStringLiteral("Keep the other materials of a material file that --force replaces."));
    line.flag(QStringLiteral("no-normals"),
              QStringLiteral("Generate no normals. A skinned mesh cannot do without."));
    line.flag(QStringLiteral("flip-uv"), QStringLiteral("Flip all UV coordinates along the y-axis."));
    line.flag(QStringLiteral("flip-winding"),
              QStringLiteral("Turn the order of the corners of all triangles."));
    line.flag(QStringLiteral("no-rotate"),
              QStringLiteral("Leave out the turn by 90 degrees that sets a y-up model "
                             "upright."));
    ReadyOptions::add(line);
    line.option(
        {QStringLiteral("mod-path")}, QStringLiteral("folder"),
        QStringLiteral("Mod folder that takes materials and textures; by default the one of the editor's "
                       "options."));
    line.flag(QStringLiteral("create-kmat"), QStringLiteral("Write the material file into the mod folder."));
    line.flag(QStringLiteral("copy-textures"),
              QStringLiteral("Copy the model's .png textures into the mod folder."));
    line.option({QStringLiteral("kmat")}, QStringLiteral("file"),
                QStringLiteral("The material file that the surfaces name, inside the mod folder; by default "
                               "materials/mat_NAME.kmat."));
    line.option({QStringLiteral("texture-folder")}, QStringLiteral("folder"),
                QStringLiteral("Folder for textures, inside the mod folder."), QStringLiteral("textures"));
    line.option({QStringLiteral("time-limit")}, QStringLiteral("seconds"),
                QStringLiteral("Give up after this long."), QStringLiteral("60"));
    addUpdateOptions(line);
}

/// Returns true when a path is wrong, which standard error then says.
bool choosePaths(ImportChoices &choices, const CommandLine &line)
{
    const auto inside = [&](QString &path, const QString &option, const QString &given) {
        path = pathInside(choices.modFolder, given);
        if (!path.isNull())
            return false;
        line.refuse(QStringLiteral("--%1 '%2' is not inside the mod folder.").arg(option, given));
        return true;
    };
    choices.modFolder = line.isSet(QStringLiteral("mod-path")) ? line.value(QStringLiteral("mod-path"))
                                                               : Settings::OutputDir.value();
    const QString kmat = line.isSet(QStringLiteral("kmat")) ? line.value(QStringLiteral("kmat"))
                                                            : defaultKMatPath(choices.modelPath);
    if (inside(choices.kmatPath, QStringLiteral("kmat"), withKMatSuffix(kmat)) ||
        inside(choices.textureFolder, QStringLiteral("texture-folder"),
               line.value(QStringLiteral("texture-folder"))))
        return true;
    const QString problem = kmatPathProblem(choices.kmatPath);
    if (!problem.isEmpty()) {
        line.refuse(QStringLiteral("--kmat: ") + problem);
        return true;
    }
    // Nothing goes into the mod folder otherwise, so there need not be one.
    if (!choices.copyTextures && !choices.createKMat)
        return false;
    const QStringList problems = outputProblems(choices);
    if (!problems.isEmpty())
        line.refuse(problems.join(QLatin1Char(' ')));
    return !problems.isEmpty();
}

/// What an import has given, and where it goes.
struct Results
{
    SkinnedMesh skinned;
    AnimFile anim;
    StaticMesh rigid;
    ModelNames names;
    QString target; ///< without the extension

    QString namesFile() const { return namesFileFor(names, target + QStringLiteral(".skinnedmesh")); }
};

/// The models that the import would replace.
QStringList replacedModels(const Results &results, bool isStatic)
{
    QStringList files{results.target +
                      (isStatic ? QStringLiteral(".staticmesh") : QStringLiteral(".skinnedmesh"))};
    if (!results.anim.blocks.empty())
        files += results.target + QStringLiteral(".anim");
    if (!isStatic && !results.namesFile().isEmpty())
        files += results.namesFile();
    files.erase(
        std::remove_if(files.begin(), files.end(), [](const QString &file) { return !isTaken(file); }),
        files.end());
    return files;
}

/// What may be replaced.
struct Replacing
{
    bool allowed;
    bool keepsMaterials; ///< that a material file has beside the new ones
};

/// Takes the last steps with what the worker has read. Returns true on failure.
bool finish(const ImportWorker &worker, const ImportChoices &choices, Results &results, Replacing replacing)
{
    if (choices.isStatic ? worker.read(results.rigid) : worker.read(results.skinned, results.anim)) {
        Output::complain(QStringLiteral("%1: The result was damaged.").arg(choices.modelPath));
        return true;
    }
    results.names = worker.names();
    ImportedFiles files = choices.isStatic ? ImportedFiles(choices, results.rigid, worker.textures())
                                           : ImportedFiles(choices, results.skinned, worker.textures());
    if (!replacing.allowed &&
        Output::refuseToReplace(replacedModels(results, choices.isStatic) + files.replaced()))
        return true;
    if (replacing.keepsMaterials)
        files.keepOtherMaterials();

    ImportMessages messages = worker.messages();
    const QString outcome = files.write(messages);
    bool failed = false;
    if (choices.isStatic) {
        transformImported(results.rigid, choices);
        failed = Output::writeModel(results.rigid, results.target + QStringLiteral(".staticmesh"));
    } else {
        transformImported(results.skinned, choices);
        failed = Output::writeModel(results.skinned, results.target + QStringLiteral(".skinnedmesh"));
        if (!results.anim.blocks.empty())
            failed = Output::writeModel(results.anim, results.target + QStringLiteral(".anim")) || failed;
        if (!results.namesFile().isEmpty())
            failed = writeNames(results.names, results.namesFile()) || failed;
    }
    Output::tell(messages);
    for (const QString &text : outcome.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        const bool isFailure = text.startsWith(QLatin1String("Failed"));
        failed = failed || isFailure;
        if (isFailure)
            Output::complain(text);
        else
            Output::line(text);
    }
    return failed;
}
} // namespace

int importModel(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("import"), QStringLiteral("MODEL"),
        QStringLiteral("Turns a model of another program (OBJ, Collada, FBX, glTF and others) into a "
                       "skinned mesh with its animations, or into a static mesh."));
    addOptions(line);
    if (const auto end = line.parse(arguments, false))
        return *end;
    if (const auto end = checkUpdateOptions(line))
        return *end;
    const auto timeLimit = line.integer(QStringLiteral("time-limit"), 1, LongestTime);
    if (!timeLimit)
        return WrongUsage;
    if (!line.isSet(QStringLiteral("output")))
        return line.refuse(QStringLiteral("-o FOLDER is missing."));
    const QDir folder(line.value(QStringLiteral("output")));
    if (!folder.exists())
        return line.refuseFolder(folder.path());
    if (line.isSet(QStringLiteral("update")))
        return updateFromFile(line, *timeLimit);

    ImportChoices choices;
    choices.isStatic = line.isSet(QStringLiteral("static"));
    choices.modelPath = line.operands().constFirst();
    choices.genNormals = !line.isSet(QStringLiteral("no-normals"));
    choices.flipUV = line.isSet(QStringLiteral("flip-uv"));
    choices.flipWindingOrder = line.isSet(QStringLiteral("flip-winding"));
    choices.copyTextures = line.isSet(QStringLiteral("copy-textures"));
    choices.createKMat = line.isSet(QStringLiteral("create-kmat"));
    choices.rotatePitch = !line.isSet(QStringLiteral("no-rotate"));
    if (const auto end = ReadyOptions::read(line, choices))
        return *end;
    if (choosePaths(choices, line))
        return WrongUsage;
    if (!QFileInfo(choices.modelPath).isFile()) {
        Output::complain(QStringLiteral("%1: There is no such file.").arg(choices.modelPath));
        return Failed;
    }
    if (const auto end = ReadyOptions::lookUp(line, *timeLimit, choices))
        return *end;

    ImportWorker worker;
    runJob(worker, *timeLimit, QStringLiteral("--time-limit grants more."), importJob(choices));
    if (worker.messages().hasError()) {
        Output::tell(worker.messages());
        return Failed;
    }
    Results results;
    results.target = folder.filePath(FileNames::portable(QFileInfo(choices.modelPath).completeBaseName()));
    const Replacing replacing{line.isSet(QStringLiteral("force")),
                              line.isSet(QStringLiteral("keep-materials"))};
    return finish(worker, choices, results, replacing) ? Failed : Fine;
}
