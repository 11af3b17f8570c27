// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FixedMeshes.h"

#include "MaterialTextures.h"
#include "StaticMesh.h"

#include <QtMath>

#include <cmath>

namespace {
constexpr float GroundHalfSize = 2500.0f;
constexpr int ArrowSegments = 20;

/// The outline of an arrow along its axis: (radius, distance), turned about the axis.
constexpr float ArrowProfile[][2] = {{0.0f, 0.0f}, {0.9f, 0.0f}, {0.9f, 17.0f}, {2.6f, 17.0f}, {0.0f, 24.0f}};

QImage image(const char *name)
{
    return MaterialTextures::resourceImage(QStringLiteral(":/Images/textures/") + QLatin1String(name));
}

MeshSource quad(float halfSize, const char *texture)
{
    const auto corner = [halfSize](float u, float v) {
        return GLVertex{{(2.0f * u - 1.0f) * halfSize, (1.0f - 2.0f * v) * halfSize, 0.0f},
                        {u, v},
                        {0.0f, 0.0f, 1.0f},
                        0};
    };
    MeshSource source;
    source.vertices.assign({corner(0, 1), corner(0, 0), corner(1, 0), corner(1, 1)});
    source.indexes = {{0, 1, 2, 0, 2, 3}};
    source.images = {image(texture)};
    return source;
}

/// Appends an arrow along `axis` (0 to 2) and returns its triangles.
std::vector<quint16> appendArrow(std::vector<GLVertex> &vertices, int axis)
{
    const auto ringPoint = [axis](const float(&profile)[2], int segment) {
        const float angle = float(2.0 * M_PI) * float(segment % ArrowSegments) / float(ArrowSegments);
        GLVertex vertex{{}, {0.5f, 0.5f}, {}, 0};
        // Turning the axes round in a cycle keeps the winding.
        vertex.position[axis] = profile[1];
        vertex.position[(axis + 1) % 3] = profile[0] * std::cos(angle);
        vertex.position[(axis + 2) % 3] = profile[0] * std::sin(angle);
        return vertex;
    };
    std::vector<quint16> indexes;
    for (size_t ring = 0; ring + 1 < std::size(ArrowProfile); ++ring) {
        for (int segment = 0; segment < ArrowSegments; ++segment) {
            const auto first = quint16(vertices.size());
            vertices.push_back(ringPoint(ArrowProfile[ring], segment));
            vertices.push_back(ringPoint(ArrowProfile[ring + 1], segment));
            vertices.push_back(ringPoint(ArrowProfile[ring + 1], segment + 1));
            vertices.push_back(ringPoint(ArrowProfile[ring], segment + 1));
            for (int offset : {0, 1, 2, 0, 2, 3})
                indexes.push_back(quint16(first + offset));
        }
    }
    return indexes;
}
} // namespace

MeshSource FixedMeshes::placeholder()
{
    MeshSource source;
    source.vertices.assign(std::vector<GLVertex>());
    source.images = {image("red.png")};
    return source;
}

MeshSource FixedMeshes::ground()
{
    return quad(GroundHalfSize, "ground.png");
}

MeshSource FixedMeshes::redQuad()
{
    return quad(1.0f, "red.png");
}

MeshSource FixedMeshes::axisGizmo()
{
    MeshSource source;
    std::vector<GLVertex> vertices;
    for (int axis = 0; axis < 3; ++axis)
        source.indexes.push_back(appendArrow(vertices, axis));
    source.vertices.assign(std::move(vertices));
    source.images = {image("red.png"), image("green.png"), image("blue.png")};
    return source;
}

MeshSource FixedMeshes::wireSphere()
{
    StaticMesh sphere;
    if (sphere.read(QStringLiteral(":/models/spherewire.staticmesh")))
        sphere = StaticMesh();
    return MeshSource::from(sphere, image("green.png"));
}
