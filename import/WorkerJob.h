// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "ImportMessages.h"
#include "ModelNames.h"
#include "ReadyChoices.h"
#include "SceneSummary.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "TextureSearch.h"
#include "UpdateAccount.h"

#include <QCoreApplication>
#include <QStringList>

#include <vector>

/// What the worker process is asked to do. The job, the answer and the models travel as files of one
/// temporary folder, the models in the game's own formats.
struct WorkerJob
{
    enum class Task {
        ImportSkinnedMesh,
        ImportStaticMesh,
        ExportObj,
        Summarize,
        ImportReadySkinnedMesh,
        ImportReadyStaticMesh,
        UpdateSkinnedMesh,
        UpdateStaticMesh
    };

    Task task = Task::ImportSkinnedMesh;
    int memoryLimitMiB = 4096; ///< of address space
    int secondsLimit = 0;      ///< of processor time; none below 1

    // Import. An update takes the models that are open out of the folder and leaves what becomes of them.
    QString modelPath;
    QString kmatPath;  ///< relative to the mod folder; surfaces refer to it
    quint32 flags = 0; ///< see ImportFlags
    qint32 meshVersion = 2;
    qint32 animVersion = 2;
    ReadyChoices ready;                        ///< for what arrives ready for the game
    QHash<QString, QString> texturesElsewhere; ///< see TexturesElsewhere

    // Export. `mesh` travels in the task's model file; the result is OBJ and MTL text.
    QString objName;                      ///< of the file to be made, as "crate.obj"
    QStringList textures;                 ///< distinct file paths, one material each
    std::vector<qint32> textureOfSurface; ///< index into `textures`, -1: none

    /// The error line for a job that could not be done.
    QString failure(const QString &reason) const
    {
        return task == Task::ExportObj
                   ? QCoreApplication::translate("Import", "%1 Could not write file. %2").arg(objName, reason)
                   : QCoreApplication::translate("Import", "%1 Could not read file. %2")
                         .arg(modelPath, reason);
    }
};

struct WorkerAnswer
{
    QVector<ImportMessage> messages;
    QStringList textures;       ///< distinct, in the order of the surfaces that have one
    ModelNames names;           ///< of a skinned mesh that arrives ready for the game
    SceneSummary summary;       ///< of a file that was only looked at
    UpdateAccount update;       ///< of an open model
    QStringList wantedTextures; ///< see TexturesElsewhere
    QStringList lacking;        ///< what the system lacks that would keep the worker from doing harm
};

/// The files of one job in `folder`. All functions return true on failure.
class WorkerFolder
{
public:
    explicit WorkerFolder(const QString &folder)
        : m_folder(folder)
    {}

    QString path(const QString &name) const { return m_folder + QLatin1Char('/') + name; }
    QString skinnedMesh() const { return path(QStringLiteral("model.skinnedmesh")); }
    QString anim() const { return path(QStringLiteral("model.anim")); }
    QString staticMesh() const { return path(QStringLiteral("model.staticmesh")); }

    [[nodiscard]] bool write(const WorkerJob &job) const;
    [[nodiscard]] bool read(WorkerJob &job) const;
    [[nodiscard]] bool write(const WorkerAnswer &answer) const;
    [[nodiscard]] bool read(WorkerAnswer &answer) const;

private:
    QString m_folder;
};
