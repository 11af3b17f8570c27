// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MarkerSphere.h"

#include <cmath>

namespace {
constexpr int Segments = 48;
constexpr int Rings = 12;
/// Wide enough for a pixel or two at the sizes the viewport draws markers in.
constexpr float EdgeWidth = 0.02f;

/// A point of the unit sphere; ring 0 is the north pole, ring 12 the south pole.
QVector3D globePoint(int segment, int ring)
{
    const double longitude = 2.0 * M_PI * segment / Segments;
    const double polar = M_PI * ring / Rings;
    return {float(std::sin(polar) * std::cos(longitude)), float(std::sin(polar) * std::sin(longitude)),
            float(std::cos(polar))};
}

void addEdge(StaticMesh &mesh, const QVector3D &from, const QVector3D &to)
{
    const QVector3D outward = (from + to).normalized();
    const QVector3D side = QVector3D::crossProduct(to - from, outward).normalized() * (EdgeWidth / 2);
    const auto first = quint16(mesh.vertices.size());
    mesh.vertices.push_back({from - side, {0.0f, 0.0f}, from});
    mesh.vertices.push_back({to - side, {1.0f, 0.0f}, to});
    mesh.vertices.push_back({to + side, {1.0f, 1.0f}, to});
    mesh.vertices.push_back({from + side, {0.0f, 1.0f}, from});
    // Clockwise seen from outside.
    for (const int corner : {0, 1, 2, 0, 2, 3})
        mesh.surfaces[0].triangleIndexes.push_back(quint16(first + corner));
}
} // namespace

StaticMesh makeMarkerSphere()
{
    StaticMesh mesh;
    mesh.version = 2;
    mesh.surfaces.push_back({QStringLiteral("_white"), {}});
    for (int segment = 0; segment < Segments; ++segment) {
        for (int ring = 0; ring < Rings; ++ring)
            addEdge(mesh, globePoint(segment, ring), globePoint(segment, ring + 1));
        for (int ring = 1; ring < Rings; ++ring)
            addEdge(mesh, globePoint(segment, ring), globePoint((segment + 1) % Segments, ring));
    }
    return mesh;
}
