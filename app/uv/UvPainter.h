// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "UvMap.h"
#include "UvScale.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

/// Draws a map over its texture.
class UvPainter
{
public:
    /// A null texture is a checkered one. `scale` gets its size.
    void setMap(UvMap map, QImage texture, UvScale &scale);
    const UvMap &map() const { return m_map; }
    const QImage &texture() const { return m_texture; }

    /// Draws texture and edges in an area of the widget.
    void drawStill(QPainter &painter, const QRectF &area, const UvScale &scale, const QPalette &palette);
    /// Draws over it what is marked, ascending, and the vertex under the mouse, -1 where there is none.
    void drawMarked(QPainter &painter, const QRectF &area, const UvScale &scale,
                    const std::vector<int> &marked, int hovered) const;

    /// Around a vertex: pixels.
    static constexpr double Reach = 6.0;

private:
    void drawTexture(QPainter &painter, const QRectF &area, const UvScale &scale, const QPalette &palette);
    void drawEdges(QPainter &painter, const QRectF &area, const UvScale &scale) const;

    UvMap m_map;
    QImage m_texture;
    QImage m_fewer;          ///< the same with less texels, for the pixels that it has
    double m_meanEdge = 0.0; ///< texels
};
