// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MaterialFaults.h"
#include "Transform.h"
#include "ValidationParts.h"

using namespace Validation;

namespace {
void check(FindingCollector &found, const StaticMesh &mesh)
{
    constexpr int NoTerminator = -1;
    const RecordRef root{RecordKind::StaticMesh, {}};
    if (mesh.surfaces.empty()) {
        found.add(Rule::NoSurfaces, root, [] {
            return Texts::tr("The mesh has no surfaces: there is nothing to show, and it cannot be saved. "
                             "Import the model again.");
        });
    }
    checkFinite(found, root, std::pair(Field::boundingBox, mesh.bbMin),
                std::pair(Field::boundingBox, mesh.bbMax));
    if (isInverted(mesh.bbMin, mesh.bbMax))
        addInvertedBox(found, root, aroundVertices(meshBox(mesh).has_value()));
    checkTriangles(found, mesh, RecordKind::StaticSurface, RecordKind::StaticTriangleIndex, NoTerminator);
    checkVertices(found, mesh, RecordKind::StaticVertex);
    checkTexts(found, materialPaths(mesh), RecordKind::StaticSurface);
}
} // namespace

std::vector<Finding> validate(const StaticMesh &mesh, const MaterialFolders &folders, int listed)
{
    MaterialFaults materials(folders);
    return validate(mesh, materials, listed);
}

std::vector<Finding> validate(const StaticMesh &mesh, MaterialFaults &materials, int listed)
{
    FindingCollector found(listed);
    check(found, mesh);
    checkEnd(found, {RecordKind::StaticMesh, {}}, mesh.bytesBehind);
    checkMaterials(found, materialPaths(mesh), RecordKind::StaticSurface, materials);
    return found.take();
}

std::vector<RecordRef> repairablePlaces(Rule rule, const StaticMesh &mesh, int most)
{
    FindingCollector found(rule, most);
    check(found, mesh);
    return found.takePlaces();
}
