// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ReplacedFiles.h"
#include "WorkerJob.h"

class ImportWorker;
class MaterialFiles;

/// The worker's job that exports `mesh` as OBJ, with the textures that its materials name. `meshPath` gives
/// the name of the OBJ file; a mesh that was never saved is "untitled". Adds an error when there is nothing
/// to export, and a warning for whatever texture is missing.
WorkerJob staticMeshExport(const StaticMesh &mesh, const QString &meshPath, MaterialFiles &materials,
                           ImportMessages &messages);

/// The files that such a job puts into a folder: OBJ and MTL, which the worker makes, and the textures.
class ExportedFiles
{
public:
    ExportedFiles(const WorkerJob &job, const QString &folder);

    /// Those whose content would be lost.
    QStringList replaced() const;
    /// What would replace something gets a name at which nothing stands, OBJ and MTL one.
    void useFreeNames();

    /// The job that makes them as they are called.
    WorkerJob job() const;
    QString objPath() const { return path(m_job.objName); }

    /// Puts them there. Returns true on failure, after an error line; a texture that was not found is worth a
    /// warning only.
    [[nodiscard]] bool place(const ImportWorker &worker, ImportMessages &messages) const;

private:
    QString path(const QString &name) const { return m_folder + QLatin1Char('/') + name; }
    QStringList made() const;

    WorkerJob m_job;
    QString m_folder;
    std::vector<FileCopy> m_textures;
};
