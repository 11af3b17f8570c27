// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "KeptCompanions.h"
#include "ModelFile.h"
#include "ModelText.h"
#include "Output.h"
#include "PosedMesh.h"
#include "ReplacedFiles.h"
#include "TargetFiles.h"
#include "Transform.h"
#include "Verbs.h"

namespace {
/// What is to be fitted.
struct FitJob
{
    bool bones;
    bool model;
    bool isModelNamed; ///< it is a failure when the model's box cannot be fitted, as with an animation named
    QString anim;
    MaterialFolders chosen;
    KeptCompanions companions;
};

/// Returns whether the record had another box.
template <typename Boxed>
bool fit(Boxed &boxed, const Box &box)
{
    const bool isOther = boxed.bbMin != box.min || boxed.bbMax != box.max;
    boxed.bbMin = box.min;
    boxed.bbMax = box.max;
    return isOther;
}

void fitBones(SkinnedMesh &mesh, bool &changes)
{
    const std::vector<std::optional<Box>> boxes = boneBoxes(mesh);
    int changed = 0, empty = 0;
    for (size_t bone = 0; bone < boxes.size(); ++bone) {
        if (!boxes[bone])
            ++empty;
        else if (fit(mesh.nodes[bone], *boxes[bone]))
            ++changed;
    }
    changes = changes || changed > 0;
    Output::line(QStringLiteral("  bones: %1 of %2 boxes change")
                     .arg(QString::number(changed), QString::number(boxes.size())));
    if (empty > 0)
        Output::line(QStringLiteral("  bones without vertices, which keep theirs: %1").arg(empty));
}

/// The box around a skinned mesh at rest, as its animation says where the bones are. Returns why there is
/// none.
QString restBox(FitJob &job, const QString &path, const SkinnedMesh &mesh, std::optional<Box> &box)
{
    const QString animPath =
        job.anim.isEmpty() ? job.companions.in(foldersAround(path, job.chosen)).find(path).path : job.anim;
    FileContent content;
    const QString error = animPath.isEmpty() ? QString() : readFile(animPath, content);
    if (!error.isEmpty())
        return QStringLiteral("%1: %2").arg(animPath, error);
    Playback rest;
    rest.mesh = &mesh;
    rest.anim = std::get_if<AnimFile>(&content);
    if (!playableBlock(rest)) {
        const QString needs = QStringLiteral(
            "The model's box needs an animation that fits the model: it says where the bones rest.");
        return animPath.isEmpty()
                   ? needs
                   : QStringLiteral("%1: No animation fits the model. %2").arg(animPath, needs);
    }
    box = meshBox(posedMesh(mesh, rest));
    return {};
}

/// Fits what is wanted; `changes` becomes true where something was not so. Returns why it cannot be.
QString fitBoxesOf(FitJob &job, const QString &path, ModelJson::Model &model, bool &changes)
{
    auto *skinned = std::get_if<SkinnedMesh>(&model);
    auto *rigid = std::get_if<StaticMesh>(&model);
    if (!skinned && !rigid)
        return QStringLiteral("It is no mesh.");
    if (rigid && !job.model)
        return QStringLiteral("A static mesh has no bones.");
    if (skinned && job.bones)
        fitBones(*skinned, changes);
    if (!job.model)
        return {};
    std::optional<Box> box;
    if (rigid) {
        box = meshBox(*rigid);
    } else {
        const QString reason = restBox(job, path, *skinned, box);
        if (!reason.isEmpty() && (job.isModelNamed || !job.anim.isEmpty()))
            return reason;
        if (!reason.isEmpty()) {
            Output::complain(QStringLiteral("%1: warning: %2").arg(path, reason));
            return {};
        }
    }
    if (!box) {
        Output::line(QStringLiteral("  model: it has no vertices and keeps its box"));
        return {};
    }
    const bool isOther = rigid ? fit(*rigid, *box) : fit(*skinned, *box);
    changes = changes || isOther;
    Output::line(isOther ? QStringLiteral("  model: its box changes")
                         : QStringLiteral("  model: its box fits"));
    return {};
}

/// An empty target: nothing is written.
int fitFile(FitJob &job, const QString &path, const QString &target)
{
    ModelJson::Content content;
    QString note;
    bool changes = false;
    QString error = readWholeModel(path, content, note);
    if (error.isEmpty() && !target.isEmpty())
        error = wrongName(target, ModelJson::kindOf(content.model));
    if (error.isEmpty())
        error = fitBoxesOf(job, path, content.model, changes);
    if (!error.isEmpty()) {
        Output::complain(QStringLiteral("%1: %2").arg(path, error));
        return Failed;
    }
    if (!note.isEmpty())
        Output::complain(QStringLiteral("%1: warning: %2").arg(path, note));
    // A file that is to stay as it is keeps its bytes and its time.
    const bool writes = !target.isEmpty() && (changes || !isOneFile(path, target));
    return writes && writeWholeModel(target, content, false) ? Failed : Fine;
}
} // namespace

int fitBoxes(const QStringList &arguments)
{
    CommandLine line(
        QStringLiteral("fit-boxes"), QStringLiteral("FILE..."),
        QStringLiteral(
            "Makes the boxes of bones and of meshes as small as their vertices let them be, and says "
            "what changes. With neither -o nor --in-place nothing is written. A bone without vertices "
            "keeps its box. The box of a skinned mesh is that of the model at rest, as its animation "
            "says, which is looked for where the game keeps it."));
    TargetFiles::addOptions(line);
    line.flag(QStringLiteral("bones"), QStringLiteral("Only the boxes of the bones."));
    line.flag(QStringLiteral("model"), QStringLiteral("Only the box of the mesh itself."));
    line.option({QStringLiteral("anim")}, QStringLiteral("file"),
                QStringLiteral("Animation file that says where the bones rest."));
    line.folderOptions(CommandLine::GameFolder::AroundFile);
    if (const auto end = line.parse(arguments, true))
        return *end;
    const bool bones = line.isSet(QStringLiteral("bones")), model = line.isSet(QStringLiteral("model"));
    if (bones && !model && line.isSet(QStringLiteral("anim")))
        return line.refuse(QStringLiteral("--anim means nothing with --bones alone."));
    TargetFiles targets;
    if (const auto end = targets.read(line, line.operands()))
        return *end;
    FitJob job{
        bones || !model, model || !bones, model, line.value(QStringLiteral("anim")), chosenFolders(line), {}};
    return targets.forEach(
        [&job](const QString &file, const QString &target) { return fitFile(job, file, target); });
}
