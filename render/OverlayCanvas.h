// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointF>

#include <array>
#include <vector>

/// Lines and marks on a picture, in its pixels, as triangles whose rims fade out: they look the same on every
/// graphics card and need no smoothing by it. Keeps its memory.
class OverlayCanvas
{
public:
    struct Vertex
    {
        float x;
        float y;
        quint8 color[4]; ///< red, green, blue, alpha
    };
    static_assert(sizeof(Vertex) == 12, "the layout is the vertex buffer's");

    void clear() { m_vertices.clear(); }
    void line(const QPointF &from, const QPointF &to, float width, QRgb color);
    void disc(const QPointF &centre, float radius, QRgb color) { shape(centre, radius, DiscSides, color); }
    /// What four corners span.
    void face(const std::array<QPointF, 4> &corners, QRgb color)
    {
        quad({corners[0], corners[1], corners[2], corners[3]}, color, color);
    }
    /// A square on its corner.
    void diamond(const QPointF &centre, float radius, QRgb color) { shape(centre, radius, 4, color); }

    /// Three for each triangle.
    const std::vector<Vertex> &vertices() const { return m_vertices; }

private:
    static constexpr int DiscSides = 12;

    void shape(const QPointF &centre, float radius, int sides, QRgb color);
    void quad(const QPointF (&corners)[4], QRgb first, QRgb second);
    void add(const QPointF &place, QRgb color);

    std::vector<Vertex> m_vertices;
};
