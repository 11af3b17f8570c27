// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UvScale.h"

#include <algorithm>

namespace {
constexpr double Margin = 12.0;                      // pixels around what is brought into view
constexpr double LeastSide = 8.0, MostTexel = 128.0; // pixels of a whole texture, of a texel
} // namespace

void UvScale::zoom(double factor, const QPointF &at)
{
    const double longSide = std::max(m_textureSize.width(), m_textureSize.height());
    const double scale = std::clamp(m_scale * factor, LeastSide / longSide, MostTexel);
    m_origin = at - (at - m_origin) * (scale / m_scale);
    m_scale = scale;
}

void UvScale::bring(const QRectF &area, const QSize &widget)
{
    const QSizeF room(std::max(1.0, widget.width() - 2 * Margin),
                      std::max(1.0, widget.height() - 2 * Margin));
    // A texel at least.
    const double across = std::max(area.width() * m_textureSize.width(), 1.0);
    const double down = std::max(area.height() * m_textureSize.height(), 1.0);
    m_scale = 1.0;
    m_origin = {};
    zoom(std::min(room.width() / across, room.height() / down), {});
    m_origin = QRectF({}, widget).center() - toPixels().map(area.center());
}
