// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Occlusion.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr int RayCount = 32;
constexpr size_t ClusterSize = 6;
/// What lies further away, in units, takes no light.
constexpr float Reach = 26.0f;

// Qt's own are calls into the library, which would be most of the time here.
float dot(const QVector3D &a, const QVector3D &b)
{
    return a.x() * b.x() + a.y() * b.y() + a.z() * b.z();
}

QVector3D cross(const QVector3D &a, const QVector3D &b)
{
    return {a.y() * b.z() - a.z() * b.y(), a.z() * b.x() - a.x() * b.z(), a.x() * b.y() - a.y() * b.x()};
}
} // namespace

/// Along the ray, or Reach when it passes the triangle.
float Occlusion::distanceTo(const Triangle &triangle, const QVector3D &from, const QVector3D &direction)
{
    const QVector3D p = cross(direction, triangle.edge2);
    const float determinant = dot(triangle.edge1, p);
    if (std::abs(determinant) < 1e-7f)
        return Reach;
    const QVector3D offset = from - triangle.corner;
    const float u = dot(offset, p) / determinant;
    if (u < 0.0f || u > 1.0f)
        return Reach;
    const QVector3D q = cross(offset, triangle.edge1);
    const float v = dot(direction, q) / determinant;
    if (v < 0.0f || u + v > 1.0f)
        return Reach;
    const float distance = dot(triangle.edge2, q) / determinant;
    return distance > 0.0f ? distance : Reach;
}

Occlusion::Occlusion(const Figure &figure)
{
    const std::vector<QMatrix4x4> matrices = figure.restMatrices();
    for (const Part &part : figure.parts) {
        const auto place = [&](size_t corner) {
            const ShapeVertex &vertex = part.shape.vertices[size_t(part.shape.triangles[corner])];
            return matrices[size_t(part.bone)] * vertex.position;
        };
        std::vector<Triangle> triangles;
        for (size_t i = 0; i < part.shape.triangles.size(); i += 3) {
            triangles.push_back({place(i), place(i + 1) - place(i), place(i + 2) - place(i)});
            if (triangles.size() == ClusterSize)
                addCluster(std::exchange(triangles, {}));
        }
        if (!triangles.empty())
            addCluster(std::move(triangles));
    }
    // A sunflower's spiral on the disc below the half sphere gives the density of diffuse light.
    for (int i = 0; i < RayCount; ++i) {
        const float radius = std::sqrt((float(i) + 0.5f) / float(RayCount));
        const float angle = 2.39996323f * float(i);
        m_directions.emplace_back(radius * std::cos(angle), radius * std::sin(angle),
                                  std::sqrt(1.0f - radius * radius));
    }
}

void Occlusion::addCluster(std::vector<Triangle> triangles)
{
    Cluster cluster;
    const auto centroid = [](const Triangle &t) { return t.corner + (t.edge1 + t.edge2) / 3.0f; };
    for (const Triangle &triangle : triangles)
        cluster.centre += centroid(triangle) / float(triangles.size());
    for (const Triangle &triangle : triangles) {
        for (const QVector3D &edge : {QVector3D(), triangle.edge1, triangle.edge2})
            cluster.radius = std::max(cluster.radius, (triangle.corner + edge - cluster.centre).length());
    }
    cluster.triangles = std::move(triangles);
    m_clusters.push_back(std::move(cluster));
}

float Occlusion::openness(const QVector3D &position, const QVector3D &normal) const
{
    const QVector3D z = normal.normalized();
    const QVector3D x =
        cross(std::abs(z.x()) < 0.7f ? QVector3D(1, 0, 0) : QVector3D(0, 1, 0), z).normalized();
    const QVector3D y = cross(z, x);
    const QVector3D from = position + z * 0.4f;
    std::vector<const Cluster *> near;
    for (const Cluster &cluster : m_clusters) {
        const QVector3D offset = cluster.centre - from;
        if (offset.length() < Reach + cluster.radius && dot(offset, z) > -cluster.radius)
            near.push_back(&cluster);
    }
    float hidden = 0.0f;
    for (const QVector3D &local : m_directions) {
        const QVector3D direction = x * local.x() + y * local.y() + z * local.z();
        float distance = Reach;
        for (const Cluster *cluster : near) {
            const QVector3D offset = cluster->centre - from;
            const float along = dot(offset, direction);
            const float aside = dot(offset, offset) - along * along;
            if (aside > cluster->radius * cluster->radius || along < -cluster->radius ||
                along > distance + cluster->radius)
                continue;
            for (const Triangle &triangle : cluster->triangles)
                distance = std::min(distance, distanceTo(triangle, from, direction));
        }
        if (direction.z() < 0.0f)
            distance = std::min(distance, std::max(0.0f, from.z()) / -direction.z());
        hidden += std::max(0.0f, 1.0f - distance / Reach);
    }
    return 1.0f - 0.72f * hidden / float(RayCount);
}
