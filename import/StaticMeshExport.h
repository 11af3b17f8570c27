// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "WorkerJob.h"

class ImportWorker;
class MaterialFiles;

/// The worker's job that exports `mesh` as OBJ, with the textures that its materials name. `meshPath` gives
/// the name of the OBJ file; a mesh that was never saved is "untitled". Adds an error when there is nothing
/// to export, and a warning for whatever texture is missing.
WorkerJob staticMeshExport(const StaticMesh &mesh, const QString &meshPath, MaterialFiles &materials,
                           ImportMessages &messages);

/// The names of the files that the job makes, textures aside.
QStringList exportedFiles(const WorkerJob &job);

/// Puts the files that `worker` has made for `job`, and the textures, into `folder`. Returns true on failure,
/// after an error line; a texture that cannot be copied is worth a warning only.
[[nodiscard]] bool placeExport(const ImportWorker &worker, const WorkerJob &job, const QString &folder,
                               ImportMessages &messages);
