// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLineF>
#include <QRectF>
#include <QVector2D>

#include <array>
#include <vector>

/// The triangles of one surface laid flat over its texture. Places are in the picture: x to the right and y
/// down, from 0 to 1 for all of it, beyond where it is repeated. That is (u, 1 - v) of the file, as the game
/// and the view read it.
class UvMap
{
public:
    /// More triangles than that are no surface of a game: the rest is left out.
    static constexpr size_t MostTriangles = 200000;

    /// Numbers of vertices in the model.
    using Triangle = std::array<quint16, 3>;

    UvMap() = default;
    /// `uvs` as the file has them, one a vertex of the model; three `indexes` a triangle. Triangles that name
    /// a vertex that is not there, or one that is nowhere (NaN, infinity), are left out.
    UvMap(const std::vector<QVector2D> &uvs, const std::vector<quint16> &indexes);

    const std::vector<Triangle> &triangles() const { return m_triangles; }
    /// The sides of the triangles, each once.
    const std::vector<QLineF> &edges() const { return m_edges; }
    /// The vertices of the triangles, ascending.
    const std::vector<int> &vertices() const { return m_vertices; }
    bool has(int vertex) const
    {
        return vertex >= 0 && size_t(vertex) < m_has.size() && m_has[size_t(vertex)];
    }
    /// Where one of the vertices of the triangles lies.
    QPointF place(int vertex) const { return m_places[size_t(vertex)]; }
    /// Around all triangles; null when there are none.
    QRectF bounds() const { return m_bounds; }
    /// How many triangles reach beyond the texture's edges, and how many are left out.
    int beyondCount() const { return m_beyond; }
    int leftOutCount() const { return m_leftOut; }

    /// The vertices around a place, the nearest first; `reach` in x and in y.
    std::vector<int> verticesAt(const QPointF &place, const QSizeF &reach) const;
    /// The triangles, by their numbers in triangles(), that cover a place.
    std::vector<int> trianglesAt(const QPointF &place) const;
    /// The vertices in a rectangle, ascending.
    std::vector<int> verticesIn(const QRectF &area) const;

private:
    void collectEdges();

    std::vector<QPointF> m_places; ///< one a vertex of the model
    std::vector<bool> m_has;       ///< the same: whether a triangle has it
    std::vector<Triangle> m_triangles;
    std::vector<QLineF> m_edges;
    std::vector<int> m_vertices;
    QRectF m_bounds;
    int m_beyond = 0;
    int m_leftOut = 0;
};
