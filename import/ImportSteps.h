// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "WorkerJob.h"

#include <QString>
#include <QStringList>

/// Everything that can be chosen for an import.
struct ImportChoices
{
    bool isStatic = false;
    Arrival arrival = Arrival::AsStored;
    ReadyChoices ready; ///< what counts of a model that arrives ready for the game, beside where its files go
    QString modelPath;
    QString modFolder;
    QString kmatPath;                                   ///< relative to the mod folder
    QString textureFolder = QStringLiteral("textures"); ///< relative to the mod folder
    bool genNormals = true;
    bool flipUV = false;
    bool flipWindingOrder = false;
    bool copyTextures = false;
    bool createKMat = false;
    bool rotatePitch = true;
    float scale = 1.0f;
    qint32 meshVersion = 2;
    qint32 animVersion = 2;
};

/// The material file named after a model, relative to the mod folder. Surfaces name it in Latin-1: for
/// another name stands one in ASCII, which no other model's is.
QString defaultKMatPath(const QString &modelPath);

/// Why surfaces cannot refer to that file; empty when they can.
QString kmatPathProblem(const QString &path);

/// Surfaces refer to the material file by its name without the extension, which so has to be this one.
QString withKMatSuffix(const QString &path);

/// What the materials of that file begin with in a surface: "materials/mat_a" for "materials/mat_a.kmat".
QString materialFolder(const QString &kmatPath);

/// Which folders the import would need are not there, a line each.
QStringList outputProblems(const ImportChoices &choices);

WorkerJob importJob(const ImportChoices &choices);

/// Turns and scales what was read as it is stored, the last step of an import.
void transformImported(SkinnedMesh &mesh, const ImportChoices &choices);
void transformImported(StaticMesh &mesh, const ImportChoices &choices);
