// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Picking.h"

#include "PosedVertices.h"

#include <algorithm>
#include <limits>

SurfacePicker::SurfacePicker(const std::vector<GLVertex> &vertices, const BonePalette &palette,
                             const Ray &ray, bool frontOnly)
    : m_vertices(vertices)
    , m_palette(palette)
    , m_ray(ray)
    , m_frontOnly(frontOnly)
{}

void SurfacePicker::tryTriangles(int surface, const std::vector<quint16> &indexes)
{
    const auto place = [&](size_t i) { return posedPlace(m_vertices[indexes[i]], m_palette); };
    for (size_t i = 0; i + 2 < indexes.size(); i += 3) {
        const float distance = distanceTo(place(i), place(i + 1), place(i + 2));
        if (distance >= m_ray.begin && (m_surface == None || distance < m_distance)) {
            m_surface = surface;
            m_distance = distance;
            m_corners = {indexes[i], indexes[i + 1], indexes[i + 2]};
        }
    }
}

quint16 SurfacePicker::vertex() const
{
    const auto distance = [this](quint16 corner) {
        return (posedPlace(m_vertices[corner], m_palette) - place()).lengthSquared();
    };
    return *std::min_element(m_corners.begin(), m_corners.end(),
                             [&](quint16 a, quint16 b) { return distance(a) < distance(b); });
}

// Moeller and Trumbore's test. Whatever is no number fails one of the comparisons.
float SurfacePicker::distanceTo(const QVector3D &a, const QVector3D &b, const QVector3D &c) const
{
    constexpr float Missed = std::numeric_limits<float>::quiet_NaN();
    const QVector3D ab = b - a, ac = c - a;
    const QVector3D across = QVector3D::crossProduct(m_ray.direction, ac);
    const float area = QVector3D::dotProduct(ab, across); // positive when counter-clockwise
    if (m_frontOnly ? !(area < 0.0f) : !(area < 0.0f || area > 0.0f))
        return Missed;
    const QVector3D from = m_ray.origin - a;
    const float u = QVector3D::dotProduct(from, across) / area;
    if (!(u >= 0.0f && u <= 1.0f))
        return Missed;
    const QVector3D up = QVector3D::crossProduct(from, ab);
    const float v = QVector3D::dotProduct(m_ray.direction, up) / area;
    if (!(v >= 0.0f && u + v <= 1.0f))
        return Missed;
    return QVector3D::dotProduct(ac, up) / area;
}
