// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "MeshSource.h"
#include "Pose.h"
#include "ScreenMap.h"

#include <array>

/// The surface that a ray through a posed model meets first: triangles are tried one by one, and those whose
/// corners are no numbers are not met.
class SurfacePicker
{
public:
    static constexpr int None = -1;

    /// The ray is in the model's space. `frontOnly` passes over triangles that are counter-clockwise seen
    /// along it, as culling does. Vertices and palette outlive the picker.
    SurfacePicker(const std::vector<GLVertex> &vertices, const BonePalette &palette, const Ray &ray,
                  bool frontOnly);

    /// Tries a surface; its indexes are all below the vertex count.
    void tryTriangles(int surface, const std::vector<quint16> &indexes);

    int surface() const { return m_surface; }
    /// Where the ray meets it.
    QVector3D place() const { return m_ray.origin + m_distance * m_ray.direction; }

    /// The corner of the triangle that is nearest to that; there has to be one.
    quint16 vertex() const;

private:
    /// How far along the ray, in lengths of its direction; no number when its line does not meet the
    /// triangle.
    float distanceTo(const QVector3D &a, const QVector3D &b, const QVector3D &c) const;

    const std::vector<GLVertex> &m_vertices;
    const BonePalette &m_palette;
    Ray m_ray;
    bool m_frontOnly;
    int m_surface = None;
    float m_distance = 0.0f;
    std::array<quint16, 3> m_corners{};
};
