// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UpdateImport.h"

#include "CommandLine.h"
#include "Companions.h"
#include "Output.h"
#include "PosedModel.h"
#include "ReplacedFiles.h"
#include "Settings.h"
#include "Validation.h"
#include "Verbs.h"
#include "WholeFile.h"
#include "WorkerRun.h"

#include <QDir>
#include <QFileInfo>

namespace {
const QString TimeAdvice = QStringLiteral("--time-limit grants more.");

QString lineText(const UpdateLine &line)
{
    switch (line.kind) {
    case UpdateLine::Changed:
        return QStringLiteral("changed: ") + line.text;
    case UpdateLine::New:
        return QStringLiteral("new: ") + line.text;
    case UpdateLine::Missing:
        return QStringLiteral("missing: ") + line.text;
    case UpdateLine::Note:
        break;
    }
    return line.text;
}

/// Adds what the model is called already, which `added` stands beside. Returns true on failure.
bool addOwnNames(ModelNames &added, const QString &meshPath)
{
    ModelNames names;
    QString reason;
    if (names.read(ModelNames::pathFor(meshPath), &reason)) {
        Output::complain(reason);
        return true;
    }
    for (auto it = added.bones.cbegin(); it != added.bones.cend(); ++it)
        names.bones.insert(it.key(), it.value());
    for (auto it = added.animations.cbegin(); it != added.animations.cend(); ++it)
        names.animations.insert(it.key(), it.value());
    added = names;
    return false;
}
} // namespace

QString namesFileFor(const ModelNames &names, const QString &mesh)
{
    const QString path = ModelNames::pathFor(mesh);
    ModelNames there;
    const bool isStale = !there.read(path) && !there.isEmpty();
    return names.isEmpty() && !isStale ? QString() : path;
}

bool writeNames(const ModelNames &names, const QString &path)
{
    const QString reason = writeWholeFile(path, names.toJson());
    return Output::outcome(path, !reason.isEmpty(), reason);
}

void addUpdateOptions(CommandLine &line)
{
    line.option(
        {QStringLiteral("update")}, QStringLiteral("mesh"),
        QStringLiteral("Bring a glTF file back over the mesh that it was exported from: what the game's "
                       "records say stays, vertices, triangles and keys come from the file. The results "
                       "have the names of the mesh and of its animation."));
    line.option(
        {QStringLiteral("anim")}, QStringLiteral("file"),
        QStringLiteral("With --update, the animation of the mesh; by default the one that belongs to it."));
    line.flag(QStringLiteral("drop-missing"),
              QStringLiteral("With --update, remove the animations that the file does not have any more."));
}

std::optional<int> checkUpdateOptions(const CommandLine &line)
{
    const bool isUpdate = line.isSet(QStringLiteral("update"));
    if (!isUpdate && (line.isSet(QStringLiteral("anim")) || line.isSet(QStringLiteral("drop-missing"))))
        return line.refuse(QStringLiteral("--anim and --drop-missing need --update."));
    for (const char *option : {"static", "keep-materials", "no-normals", "flip-uv", "flip-winding",
                               "no-rotate", "ready", "scale", "up", "extra-bones", "rate", "clips",
                               "mod-path", "create-kmat", "copy-textures", "kmat", "texture-folder"}) {
        if (isUpdate && line.isSet(QLatin1String(option)))
            return line.refuse(
                QStringLiteral("--%1 means nothing with --update.").arg(QLatin1String(option)));
    }
    return {};
}

int updateFromFile(const CommandLine &line, int timeLimit)
{
    const QString meshFile = line.value(QStringLiteral("update"));
    PosedModel model;
    Companions companions({Settings::GamePath.value(), Settings::OutputDir.value()});
    const QString error = model.read(meshFile, line.value(QStringLiteral("anim")), companions);
    if (!error.isEmpty()) {
        Output::complain(error);
        return Failed;
    }
    const QDir folder(line.value(QStringLiteral("output")));
    const auto target = [&folder](const QString &file) {
        return folder.filePath(QFileInfo(file).fileName());
    };
    QStringList targets{target(model.meshPath)};
    if (model.animFile())
        targets += target(model.animPath);
    QStringList taken;
    for (const QString &each : targets) {
        if (isTaken(each))
            taken += each;
    }
    if (!line.isSet(QStringLiteral("force")) && Output::refuseToReplace(taken))
        return Failed;

    WorkerJob job;
    job.task = model.rigid() ? WorkerJob::Task::UpdateStaticMesh : WorkerJob::Task::UpdateSkinnedMesh;
    job.modelPath = line.operands().constFirst();
    ImportWorker worker;
    if (model.rigid())
        runJob(worker, timeLimit, TimeAdvice, job, *model.rigid());
    else
        runJob(worker, timeLimit, TimeAdvice, job, *model.skinned(),
               model.animFile() ? *model.animFile() : AnimFile());
    StaticMesh rigid;
    SkinnedMesh skinned;
    AnimFile anim;
    ImportMessages messages = worker.messages();
    if (!messages.hasError() && (model.rigid() ? worker.read(rigid) : worker.read(skinned, anim)))
        messages.addError(job.failure(QStringLiteral("The result was damaged.")));
    Output::tell(messages);
    if (messages.hasError())
        return Failed;
    const UpdateAccount account = worker.update();
    const QString name = QFileInfo(meshFile).completeBaseName();
    if (!account.model.isEmpty() && account.model != name)
        Output::complain(QStringLiteral("warning: %1: The file was exported from '%2', not from '%3'.")
                             .arg(job.modelPath, account.model, name));
    if (line.isSet(QStringLiteral("drop-missing")))
        account.dropMissing(anim);
    for (const UpdateLine &each : account.lines)
        Output::line(lineText(each));
    if (model.rigid())
        return Output::writeModel(rigid, targets[0]) ? Failed : Fine;
    ModelNames names = worker.names();
    if (addOwnNames(names, model.meshPath))
        return Failed;
    const QString namesFile = namesFileFor(names, targets[0]);
    if (!namesFile.isEmpty() && !line.isSet(QStringLiteral("force")) && isTaken(namesFile) &&
        Output::refuseToReplace({namesFile}))
        return Failed;
    bool failed = !namesFile.isEmpty() && writeNames(names, namesFile);
    failed = Output::writeModel(skinned, targets[0]) || failed;
    return (model.animFile() && Output::writeModel(anim, targets[1])) || failed ? Failed : Fine;
}
