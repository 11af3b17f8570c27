// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ValidationParts.h"

using namespace Validation;

std::vector<Finding> validate(const StaticMesh &mesh, const MaterialFolders &folders, int listed)
{
    constexpr int NoTerminator = -1;
    FindingCollector found(listed);
    const RecordRef root{RecordKind::StaticMesh, {}};
    if (mesh.surfaces.empty()) {
        found.add(Rule::NoSurfaces, root, [] {
            return Texts::tr("The mesh has no surfaces: there is nothing to show, and it cannot be saved. "
                             "Import the model again.");
        });
    }
    checkFinite(found, root, std::pair(Field::boundingBox, mesh.bbMin),
                std::pair(Field::boundingBox, mesh.bbMax));
    checkTriangles(found, mesh, RecordKind::StaticSurface, RecordKind::StaticTriangleIndex, NoTerminator);
    checkVertices(found, mesh, RecordKind::StaticVertex);
    checkMaterials(found, materialPaths(mesh), RecordKind::StaticSurface, folders);
    return found.take();
}
