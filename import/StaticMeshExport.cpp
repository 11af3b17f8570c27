// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "StaticMeshExport.h"

#include "FileNames.h"
#include "Files.h"
#include "ImportOutput.h"
#include "ImportWorker.h"
#include "MaterialFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>

namespace {
Q_LOGGING_CATEGORY(exportLog, "korvane.export", QtInfoMsg)

/// The file of a texture in the first folder that has it; in the last one when none has.
QString textureFile(const QString &texture, const MaterialFiles &materials, ImportMessages &messages)
{
    const QStringList paths = materials.candidates(texture);
    const auto found = std::find_if(paths.begin(), paths.end(), Files::isFile);
    if (found != paths.end())
        return *found;
    const QString path = paths.isEmpty() ? texture : paths.last();
    messages.addWarning(
        QCoreApplication::translate("Import", "[Static Mesh Export] Texture not found '%1'").arg(path));
    return path;
}
} // namespace

WorkerJob staticMeshExport(const StaticMesh &mesh, const QString &meshPath, MaterialFiles &materials,
                           ImportMessages &messages)
{
    WorkerJob job;
    job.task = WorkerJob::Task::ExportObj;
    const QString base = QFileInfo(meshPath).completeBaseName();
    job.objName =
        FileNames::portable((base.isEmpty() ? QStringLiteral("untitled") : base) + QStringLiteral(".obj"));
    if (mesh.surfaces.empty()) {
        messages.addError(QCoreApplication::translate("Import", "[Static Mesh Export] Mesh has no surfaces"));
        return job;
    }
    QStringList names;
    for (const StaticMeshSurface &surface : mesh.surfaces) {
        const MaterialFiles::Lookup found = materials.find(surface.materialPath);
        qCDebug(exportLog, "[Static Mesh Export] %s", qUtf8Printable(found.texture));
        for (const QString &problem : {found.error, found.warning}) {
            if (!problem.isEmpty())
                messages.addWarning(QStringLiteral("[Static Mesh Export] %1").arg(problem));
        }
        if (found.texture.isEmpty() || found.texture == MaterialFiles::Blank) {
            job.textureOfSurface.push_back(-1);
            continue;
        }
        if (!names.contains(found.texture)) {
            names.append(found.texture);
            job.textures.append(textureFile(found.texture, materials, messages));
        }
        job.textureOfSurface.push_back(qint32(names.indexOf(found.texture)));
    }
    return job;
}

ExportedFiles::ExportedFiles(const WorkerJob &job, const QString &folder)
    : m_job(job)
    , m_folder(folder)
    , m_textures(copiesInto(folder, job.textures))
{}

QStringList ExportedFiles::made() const
{
    // The materials first, so that an OBJ file never stands without them.
    return {QFileInfo(m_job.objName).completeBaseName() + QStringLiteral(".mtl"), m_job.objName};
}

QStringList ExportedFiles::replaced() const
{
    QStringList files;
    for (const QString &name : made()) {
        if (isTaken(path(name)))
            files += path(name);
    }
    return files + replacedTargets(m_textures);
}

void ExportedFiles::useFreeNames()
{
    const QFileInfo wanted(m_job.objName);
    const auto isFree = [this] {
        const QStringList names = made();
        return std::none_of(names.begin(), names.end(),
                            [this](const QString &name) { return isTaken(path(name)); });
    };
    for (int number = 2; !isFree(); ++number)
        m_job.objName = QStringLiteral("%1_%2.%3")
                            .arg(wanted.completeBaseName(), QString::number(number), wanted.suffix());
    useFreeTargets(m_textures);
}

WorkerJob ExportedFiles::job() const
{
    WorkerJob job = m_job;
    job.textures.clear();
    std::vector<qint32> newIndex;
    for (const FileCopy &texture : m_textures) {
        if (!job.textures.contains(texture.target))
            job.textures += texture.target;
        newIndex.push_back(qint32(job.textures.indexOf(texture.target)));
    }
    for (qint32 &texture : job.textureOfSurface)
        texture = texture < 0 ? texture : newIndex[size_t(texture)];
    return job;
}

bool ExportedFiles::place(const ImportWorker &worker, ImportMessages &messages) const
{
    for (const QString &name : made()) {
        if (copyWhole(worker.madeFile(name), path(name)) != Copied::Yes) {
            messages.addError(
                QCoreApplication::translate("Import", "[Static Mesh Export] %1 Could not write file.")
                    .arg(QDir::toNativeSeparators(path(name))));
            return true;
        }
    }
    bool failed = false;
    for (const FileCopy &texture : distinctCopies(m_textures, messages))
        failed = (Files::isFile(texture.source) && copyTexture(texture.source, texture.target, messages)) ||
                 failed;
    if (failed)
        messages.addError(
            QCoreApplication::translate("Import", "[Static Mesh Export] Not all textures could be copied."));
    return failed;
}
