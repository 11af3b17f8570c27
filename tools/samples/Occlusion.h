// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Figure.h"

/// Tells how much of the sky a point of the figure at rest sees.
class Occlusion
{
public:
    explicit Occlusion(const Figure &figure);

    /// 1 in the open, less in corners and close to the floor (z = 0). Model space.
    float openness(const QVector3D &position, const QVector3D &normal) const;

private:
    struct Triangle
    {
        QVector3D corner;
        QVector3D edge1, edge2; ///< from there to the other two
    };
    static float distanceTo(const Triangle &triangle, const QVector3D &from, const QVector3D &direction);

    /// Neighbouring triangles in a ball.
    struct Cluster
    {
        QVector3D centre;
        float radius = 0.0f;
        std::vector<Triangle> triangles;
    };

    void addCluster(std::vector<Triangle> triangles);

    std::vector<Cluster> m_clusters;
    std::vector<QVector3D> m_directions; ///< over the half sphere around z, denser towards z
};
