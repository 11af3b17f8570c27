// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ImportSteps.h"

#include "BinaryFileWriter.h"
#include "FileNames.h"
#include "Fuzzy.h"
#include "ImportFlags.h"
#include "Transform.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

namespace {
constexpr float PitchOfSkinnedMesh = 90.0f;
constexpr float PitchOfStaticMesh = -90.0f;

/// What there is of it in ASCII, without accents, and a number that only this name gives.
QString asciiName(const QString &name)
{
    QString ascii;
    for (const QChar each : name.normalized(QString::NormalizationForm_KD)) {
        if (each.unicode() >= ' ' && each.unicode() < 127)
            ascii += each;
    }
    const QByteArray hash = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1);
    return (QStringList(ascii.trimmed()) << QString::fromLatin1(hash.left(3).toHex()))
        .join(ascii.trimmed().isEmpty() ? QString() : QStringLiteral("_"));
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
    const QString name = FileNames::portable(
        QFileInfo(modelPath).completeBaseName().normalized(QString::NormalizationForm_C)); // é in one
    return QStringLiteral("materials/mat_%1.kmat")
        .arg(BinaryFileWriter::canWrite(name) ? name : asciiName(name));
}

QString kmatPathProblem(const QString &path)
{
    if (BinaryFileWriter::canWrite(path))
        return FileNames::problem(path);
    return QCoreApplication::translate("ImportDialog",
                                       "A model cannot name '%1': it holds characters outside of Latin-1.")
        .arg(path);
}

QString withKMatSuffix(const QString &path)
{
    const QString suffix = QStringLiteral(".kmat");
    return path.endsWith(suffix) ? path : path + suffix;
}

QString materialFolder(const QString &kmatPath)
{
    const QFileInfo kmat(kmatPath);
    const QString folder = kmat.path() == QLatin1String(".") ? QString() : kmat.path() + QLatin1Char('/');
    return folder + kmat.completeBaseName();
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
    const bool isReady = choices.arrival == Arrival::Ready;
    job.task = choices.isStatic
                   ? (isReady ? WorkerJob::Task::ImportReadyStaticMesh : WorkerJob::Task::ImportStaticMesh)
                   : (isReady ? WorkerJob::Task::ImportReadySkinnedMesh : WorkerJob::Task::ImportSkinnedMesh);
    job.modelPath = choices.modelPath;
    job.kmatPath = choices.kmatPath;
    job.flags = (choices.isStatic ? ImportFlags::StaticMesh : ImportFlags::SkinnedMesh) |
                (choices.genNormals ? ImportFlags::GenerateNormals : 0) |
                (choices.flipUV ? ImportFlags::FlipUV : 0) |
                (choices.flipWindingOrder ? ImportFlags::FlipWindingOrder : 0);
    job.meshVersion = choices.meshVersion;
    job.animVersion = choices.animVersion;
    job.ready = choices.ready;
    return job;
}

void transformImported(SkinnedMesh &mesh, const ImportChoices &choices)
{
    if (choices.arrival == Arrival::Ready)
        return;
    if (choices.rotatePitch) {
        mesh.rotate(PitchOfSkinnedMesh, 0.0f, 0.0f);
        boundVertices(mesh);
    }
    scaleImported(mesh, choices.scale);
}

void transformImported(StaticMesh &mesh, const ImportChoices &choices)
{
    if (choices.arrival == Arrival::Ready)
        return;
    if (choices.rotatePitch)
        mesh.rotate(PitchOfStaticMesh, 0.0f, 0.0f);
    scaleImported(mesh, choices.scale);
}
