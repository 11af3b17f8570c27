// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportSteps.h"

#include "Fuzzy.h"
#include "ImportFlags.h"
#include "ImportOutput.h"
#include "Transform.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

Q_LOGGING_CATEGORY(importStepsLog, "korvane.import", QtInfoMsg)

namespace {
constexpr float PitchOfSkinnedMesh = 90.0f;
constexpr float PitchOfStaticMesh = -90.0f;

template <typename Mesh>
QString outputsOf(const ImportChoices &choices, const Mesh &mesh, const QStringList &textures,
                  ImportMessages &messages)
{
    const QString root = choices.modFolder + QLatin1Char('/');
    QString outcome;
    if (choices.copyTextures)
        outcome += copyTextures(textures, root + choices.textureFolder, messages);
    if (choices.createKMat) {
        qCDebug(importStepsLog, "[Write to .kmat] %s", qUtf8Printable(root + choices.kmatPath));
        outcome += createKMat(root + choices.kmatPath,
                              materialsOf(mesh.surfaces, textures, choices.textureFolder), messages);
    }
    return outcome;
}

template <typename Mesh>
void scaleImported(Mesh &mesh, float factor)
{
    if (!fuzzyEqual(factor, 1.0f))
        mesh.scale(factor);
}
} // namespace

QString defaultKMatPath(const QString &modelPath)
{
    return QStringLiteral("materials/mat_%1.kmat").arg(QFileInfo(modelPath).completeBaseName());
}

QString withKMatSuffix(const QString &path)
{
    const QString suffix = QStringLiteral(".kmat");
    return path.endsWith(suffix) ? path : path + suffix;
}

QStringList outputProblems(const ImportChoices &choices)
{
    const auto native = [](const QString &path) { return QDir::toNativeSeparators(path); };
    const QString root = choices.modFolder + QLatin1Char('/');
    const QString kmatFolder = QFileInfo(root + choices.kmatPath).path();
    const QString textureFolder = root + choices.textureFolder;
    QStringList problems;
    if (choices.modFolder.isEmpty() || !QFileInfo(choices.modFolder).isDir())
        problems += QCoreApplication::translate("ImportDialog", "Turok 2 Folder '%1' doesn't exist.")
                        .arg(native(choices.modFolder));
    if (choices.createKMat && !QFileInfo(kmatFolder).isDir())
        problems +=
            QCoreApplication::translate("ImportDialog", "Turok 2 Folder + kmat Path '%1' doesn't exist.")
                .arg(native(kmatFolder));
    if (choices.copyTextures && !QFileInfo(textureFolder).isDir())
        problems +=
            QCoreApplication::translate("ImportDialog", "Turok 2 Folder + Texture Folder '%1' doesn't exist.")
                .arg(native(textureFolder));
    return problems;
}

WorkerJob importJob(const ImportChoices &choices)
{
    WorkerJob job;
    job.task = choices.isStatic ? WorkerJob::Task::ImportStaticMesh : WorkerJob::Task::ImportSkinnedMesh;
    job.modelPath = choices.modelPath;
    job.kmatPath = choices.kmatPath;
    job.flags = (choices.isStatic ? ImportFlags::StaticMesh : ImportFlags::SkinnedMesh) |
                (choices.genNormals ? ImportFlags::GenerateNormals : 0) |
                (choices.flipUV ? ImportFlags::FlipUV : 0) |
                (choices.flipWindingOrder ? ImportFlags::FlipWindingOrder : 0);
    job.meshVersion = choices.meshVersion;
    job.animVersion = choices.animVersion;
    return job;
}

QString writeOutputs(const ImportChoices &choices, const SkinnedMesh &mesh, const QStringList &textures,
                     ImportMessages &messages)
{
    return outputsOf(choices, mesh, textures, messages);
}

QString writeOutputs(const ImportChoices &choices, const StaticMesh &mesh, const QStringList &textures,
                     ImportMessages &messages)
{
    return outputsOf(choices, mesh, textures, messages);
}

void transformImported(SkinnedMesh &mesh, const ImportChoices &choices)
{
    if (choices.rotatePitch) {
        mesh.rotate(PitchOfSkinnedMesh, 0.0f, 0.0f);
        boundVertices(mesh);
    }
    scaleImported(mesh, choices.scale);
}

void transformImported(StaticMesh &mesh, const ImportChoices &choices)
{
    if (choices.rotatePitch)
        mesh.rotate(PitchOfStaticMesh, 0.0f, 0.0f);
    scaleImported(mesh, choices.scale);
}
