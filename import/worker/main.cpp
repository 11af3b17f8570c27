// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
//
// Reads and writes foreign model files for the editor, in a process of its own: the library that does it is
// killed by some damaged files and never returns from others.
#include "Confinement.h"
#include "GltfReader.h"
#include "Language.h"
#include "ModelUpdate.h"
#include "ObjExport.h"
#include "ReadyImport.h"
#include "SceneImport.h"
#include "SceneSurvey.h"
#include "WorkerJob.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <exception>

namespace {
/// Hands a model over, if there is one. Returns true on failure.
bool handOver(const SkinnedMesh &mesh, const AnimFile &anim, const WorkerFolder &folder,
              const ImportMessages &messages)
{
    // A file of no animation cannot be written: none stands for it.
    return !messages.hasError() &&
           (mesh.write(folder.skinnedMesh()) || (!anim.blocks.empty() && anim.write(folder.anim())));
}

bool handOver(const StaticMesh &mesh, const WorkerFolder &folder, const ImportMessages &messages)
{
    return !messages.hasError() && mesh.write(folder.staticMesh());
}

/// The models that are open become what the file makes of them, unless they could not be read.
template <typename... Models>
bool update(bool unread, const WorkerJob &job, const WorkerFolder &folder, WorkerAnswer &answer,
            ImportMessages &messages, Models &...models)
{
    GltfScene scene;
    QString reason;
    if (unread)
        return true;
    if (readGltf(job.modelPath, scene, reason) || updateModel(scene, models..., answer.update, reason))
        messages.addError(job.failure(reason));
    return handOver(models..., folder, messages);
}

void work(const WorkerJob &job, const WorkerFolder &folder, WorkerAnswer &answer, ImportMessages &messages)
{
    TexturesElsewhere elsewhere{job.texturesElsewhere, {}};
    const ReadySource ready{job.modelPath, job.kmatPath, folder.path(QStringLiteral("textures")), job.ready,
                            &elsewhere};
    SkinnedMesh skinned;
    AnimFile anim;
    StaticMesh rigid;
    skinned.version = job.meshVersion;
    anim.version = job.animVersion;
    bool failed = false;
    switch (job.task) {
    case WorkerJob::Task::ImportSkinnedMesh:
        importSkinnedMesh(job.modelPath, job.kmatPath, job.flags, answer.textures, skinned, anim, messages);
        failed = handOver(skinned, anim, folder, messages);
        break;
    case WorkerJob::Task::ImportStaticMesh:
        rigid = importStaticMesh(job.modelPath, job.kmatPath, job.flags, answer.textures, messages);
        rigid.version = job.meshVersion;
        failed = handOver(rigid, folder, messages);
        break;
    case WorkerJob::Task::ImportReadySkinnedMesh:
        importReadySkinnedMesh(ready, answer.textures, skinned, anim, answer.names, messages);
        failed = handOver(skinned, anim, folder, messages);
        break;
    case WorkerJob::Task::ImportReadyStaticMesh:
        rigid = importReadyStaticMesh(ready, answer.textures, messages);
        rigid.version = job.meshVersion;
        failed = handOver(rigid, folder, messages);
        break;
    case WorkerJob::Task::ExportObj:
        failed = rigid.read(folder.staticMesh());
        if (!failed)
            exportObj(rigid, job.textures, job.textureOfSurface, folder.path(job.objName), messages);
        break;
    case WorkerJob::Task::Summarize:
        answer.summary = surveyScene(job.modelPath, messages);
        break;
    case WorkerJob::Task::UpdateSkinnedMesh:
        failed = skinned.read(folder.skinnedMesh()) ||
                 (QFileInfo::exists(folder.anim()) && anim.read(folder.anim()));
        failed = update(failed, job, folder, answer, messages, skinned, anim);
        answer.names = ModelNames::of(skinned);
        break;
    case WorkerJob::Task::UpdateStaticMesh:
        failed = update(rigid.read(folder.staticMesh()), job, folder, answer, messages, rigid);
        break;
    }
    answer.wantedTextures = elsewhere.wanted;
    if (failed)
        messages.addError(
            job.failure(QCoreApplication::translate("Import", "The model could not be handed over.")));
}
} // namespace

int main(int argc, char *argv[])
{
    closeInherited();
    QCoreApplication application(argc, argv);
    // Importers of the library read numbers as the locale writes them.
    std::setlocale(LC_NUMERIC, "C");
    const QStringList arguments = QCoreApplication::arguments();
    Language::install(Language::resolve(qEnvironmentVariable("KORVANE_LANGUAGE", QStringLiteral("en"))));
    WorkerJob job;
    if (arguments.size() != 2 || WorkerFolder(arguments.at(1)).read(job)) {
        std::fputs("korvane-import-worker reads model files for Korvane, which starts it.\n", stderr);
        return EXIT_FAILURE;
    }
    const WorkerFolder folder(arguments.at(1));
    WorkerAnswer answer;
    ImportMessages messages;
    answer.lacking = confine({arguments.at(1), job.modelPath, job.texturesElsewhere.values(),
                              job.memoryLimitMiB, job.secondsLimit});
    try {
        work(job, folder, answer, messages);
    } catch (const std::exception &exception) {
        messages.addError(job.failure(QLatin1String(exception.what())));
    }
    messages.foldWarnings();
    answer.messages = messages.lines;
    return folder.write(answer) ? EXIT_FAILURE : EXIT_SUCCESS;
}
