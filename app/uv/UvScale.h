// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>
#include <QTransform>

/// Where the places of a texture stand in a widget: how large, and from where on.
class UvScale
{
public:
    /// In texels: what a place of 1, 1 stands for.
    const QSize &textureSize() const { return m_textureSize; }
    void setTextureSize(const QSize &size) { m_textureSize = size; }

    /// Pixels a texel.
    double scale() const { return m_scale; }
    /// From places to pixels.
    QTransform toPixels() const
    {
        return {m_textureSize.width() * m_scale,
                0,
                0,
                m_textureSize.height() * m_scale,
                m_origin.x(),
                m_origin.y()};
    }
    QPointF toMap(const QPointF &pixel) const
    {
        const QSizeF size = sizeOf(1.0);
        return {(pixel.x() - m_origin.x()) * size.width(), (pixel.y() - m_origin.y()) * size.height()};
    }
    /// What so many pixels are in the map.
    QSizeF sizeOf(double pixels) const
    {
        return {pixels / (m_textureSize.width() * m_scale), pixels / (m_textureSize.height() * m_scale)};
    }

    void moveBy(const QPointF &pixels) { m_origin += pixels; }
    /// So many times as large, within reason; the pixel stays over its place.
    void zoom(double factor, const QPointF &at);
    /// Brings an area of the map into a widget's middle, as large as there is room.
    void bring(const QRectF &area, const QSize &widget);

private:
    QSize m_textureSize{1, 1};
    double m_scale = 1.0;
    QPointF m_origin; ///< where the texture's upper left corner stands
};
