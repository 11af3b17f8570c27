// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UvMap.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
/// Twice the area of a triangle, negative where it runs the other way around.
double turn(const QPointF &a, const QPointF &b, const QPointF &c)
{
    return (b.x() - a.x()) * (c.y() - a.y()) - (b.y() - a.y()) * (c.x() - a.x());
}

bool isBeyond(const QPointF &place)
{
    // What a float leaves of a corner of the texture is in it.
    constexpr double Tolerance = 1e-5;
    return place.x() < -Tolerance || place.x() > 1 + Tolerance || place.y() < -Tolerance ||
           place.y() > 1 + Tolerance;
}
} // namespace

UvMap::UvMap(const std::vector<QVector2D> &uvs, const std::vector<quint16> &indexes)
    : m_has(uvs.size(), false)
{
    m_places.reserve(uvs.size());
    for (const QVector2D &uv : uvs)
        m_places.emplace_back(double(uv.x()), 1.0 - double(uv.y()));
    const auto isThere = [&](quint16 index) {
        return index < m_places.size() && std::isfinite(m_places[index].x()) &&
               std::isfinite(m_places[index].y());
    };
    for (size_t i = 0; i + 2 < indexes.size(); i += 3) {
        const Triangle triangle{indexes[i], indexes[i + 1], indexes[i + 2]};
        if (m_triangles.size() == MostTriangles || !std::all_of(triangle.begin(), triangle.end(), isThere)) {
            ++m_leftOut;
            continue;
        }
        m_triangles.push_back(triangle);
        m_beyond += std::any_of(triangle.begin(), triangle.end(),
                                [this](quint16 index) { return isBeyond(m_places[index]); });
        for (const quint16 index : triangle)
            m_has[index] = true;
    }
    for (size_t i = 0; i < m_has.size(); ++i) {
        if (m_has[i])
            m_vertices.push_back(int(i));
    }
    if (!m_vertices.empty()) {
        QPointF low = place(m_vertices.front()), high = low;
        for (const int vertex : m_vertices) {
            const QPointF at = place(vertex);
            low = {std::min(low.x(), at.x()), std::min(low.y(), at.y())};
            high = {std::max(high.x(), at.x()), std::max(high.y(), at.y())};
        }
        m_bounds = QRectF(low, high);
    }
    collectEdges();
}

void UvMap::collectEdges()
{
    std::vector<std::pair<quint16, quint16>> pairs;
    pairs.reserve(m_triangles.size() * 3);
    for (const Triangle &triangle : m_triangles) {
        for (size_t i = 0; i < 3; ++i)
            pairs.push_back(std::minmax(quint16(triangle[i]), quint16(triangle[(i + 1) % 3])));
    }
    std::sort(pairs.begin(), pairs.end());
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());
    m_edges.reserve(pairs.size());
    for (const auto &[from, to] : pairs)
        m_edges.emplace_back(place(from), place(to));
}

// All that is asked for under the mouse are these plain walks: 60,000 triangles take a fraction of a
// millisecond, so nothing is kept to look places up in.

std::vector<int> UvMap::verticesAt(const QPointF &at, const QSizeF &reach) const
{
    std::vector<std::pair<double, int>> found;
    for (const int vertex : m_vertices) {
        const QPointF away = place(vertex) - at;
        const double distance = std::hypot(away.x() / reach.width(), away.y() / reach.height());
        if (distance <= 1.0)
            found.emplace_back(distance, vertex);
    }
    std::sort(found.begin(), found.end());
    std::vector<int> vertices(found.size());
    std::transform(found.begin(), found.end(), vertices.begin(),
                   [](const auto &each) { return each.second; });
    return vertices;
}

std::vector<int> UvMap::trianglesAt(const QPointF &at) const
{
    std::vector<int> found;
    for (size_t i = 0; i < m_triangles.size(); ++i) {
        const auto &[a, b, c] = m_triangles[i];
        const double turns[] = {turn(m_places[a], m_places[b], at), turn(m_places[b], m_places[c], at),
                                turn(m_places[c], m_places[a], at)};
        const auto [low, high] = std::minmax_element(std::begin(turns), std::end(turns));
        // A triangle without area covers nothing.
        if ((*low >= 0 || *high <= 0) && *low != *high)
            found.push_back(int(i));
    }
    return found;
}

std::vector<int> UvMap::verticesIn(const QRectF &area) const
{
    std::vector<int> found;
    std::copy_if(m_vertices.begin(), m_vertices.end(), std::back_inserter(found),
                 [&](int vertex) { return area.contains(place(vertex)); });
    return found;
}
