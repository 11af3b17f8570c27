// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "UvPainter.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace {
constexpr QSize CheckerSize{256, 256}; // texels that a missing texture counts
constexpr int CheckerSide = 32;
constexpr double RepeatOpacity = 0.35; // of the texture where it is repeated
constexpr size_t SmoothEdges = 4000;   // more of them are drawn plainly
constexpr double CalmEdge = 16.0;      // pixels of an edge that hides nothing
constexpr double LeastOpacity = 0.15;
constexpr QRgb EdgeColor = 0xffffffff, EdgeShadow = 0xa0000000;
constexpr QRgb MarkColor = 0xffff8c00, MarkFill = 0x60ff8c00; // as the view marks what is selected

QPixmap checker(const QPalette &palette)
{
    QPixmap tile(2 * CheckerSide, 2 * CheckerSide);
    tile.fill(palette.color(QPalette::Mid));
    QPainter painter(&tile);
    const QColor &other = palette.color(QPalette::Dark);
    painter.fillRect(0, 0, CheckerSide, CheckerSide, other);
    painter.fillRect(CheckerSide, CheckerSide, CheckerSide, CheckerSide, other);
    return tile;
}
} // namespace

void UvPainter::setMap(UvMap map, QImage texture, UvScale &scale)
{
    m_map = std::move(map);
    m_texture = std::move(texture);
    m_fewer = {};
    const QSize size = m_texture.isNull() ? CheckerSize : m_texture.size();
    scale.setTextureSize(size);
    m_meanEdge = 0.0;
    for (const QLineF &edge : m_map.edges())
        m_meanEdge +=
            std::hypot(edge.dx() * size.width(), edge.dy() * size.height()) / double(m_map.edges().size());
}

void UvPainter::drawStill(QPainter &painter, const QRectF &area, const UvScale &scale,
                          const QPalette &palette)
{
    painter.fillRect(area, palette.color(QPalette::Base));
    drawTexture(painter, area, scale, palette);
    drawEdges(painter, area, scale);
}

void UvPainter::drawTexture(QPainter &painter, const QRectF &area, const UvScale &scale,
                            const QPalette &palette)
{
    const QTransform pixels = scale.toPixels();
    const QRectF whole = pixels.mapRect(QRectF(0, 0, 1, 1));
    // Near texels have edges; far ones are made fewer, as one would be taken for many otherwise.
    const bool isFar = scale.scale() < 1.0 && !m_texture.isNull();
    const QSize fewer = whole.size().toSize().expandedTo({1, 1});
    if (isFar && m_fewer.size() != fewer)
        m_fewer = m_texture.scaled(fewer, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QBrush brush(m_texture.isNull() ? QBrush(checker(palette)) : QBrush(isFar ? m_fewer : m_texture));
    const QSizeF size = isFar ? m_fewer.size() : scale.textureSize();
    brush.setTransform(QTransform::fromScale(1 / size.width(), 1 / size.height()) * pixels);
    painter.setOpacity(RepeatOpacity);
    painter.fillRect(area, brush);
    painter.setOpacity(1.0);
    const QRectF inside = whole & area;
    if (!inside.isEmpty()) {
        painter.fillRect(inside, palette.color(QPalette::Base));
        painter.fillRect(inside, brush);
    }
    painter.setPen(QPen(palette.color(QPalette::Text), 0));
    painter.drawRect(whole);
}

void UvPainter::drawEdges(QPainter &painter, const QRectF &area, const UvScale &scale) const
{
    const QTransform pixels = scale.toPixels();
    const QRectF seen = area.adjusted(-3, -3, 3, 3); // lines have their width
    QVector<QLineF> lines;
    lines.reserve(int(m_map.edges().size()));
    for (const QLineF &edge : m_map.edges()) {
        const QLineF line = pixels.map(edge);
        if (std::max(line.x1(), line.x2()) >= seen.left() && std::min(line.x1(), line.x2()) <= seen.right() &&
            std::max(line.y1(), line.y2()) >= seen.top() && std::min(line.y1(), line.y2()) <= seen.bottom())
            lines.append(line);
    }
    // The same for every part of the picture, however many of them are in it. Many in one place would hide
    // the texture.
    painter.setOpacity(std::clamp(m_meanEdge * scale.scale() / CalmEdge, LeastOpacity, 1.0));
    if (m_map.edges().size() <= SmoothEdges) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(QColor::fromRgba(EdgeShadow), 2.5));
        painter.drawLines(lines);
        painter.setPen(QPen(QColor::fromRgba(EdgeColor), 1.0));
        painter.drawLines(lines);
        painter.setRenderHint(QPainter::Antialiasing, false);
    } else {
        painter.setPen(QPen(QColor::fromRgba(EdgeColor), 0));
        painter.drawLines(lines);
    }
    painter.setOpacity(1.0);
}

void UvPainter::drawMarked(QPainter &painter, const QRectF &area, const UvScale &scale,
                           const std::vector<int> &marked, int hovered) const
{
    const QTransform pixels = scale.toPixels();
    std::vector<bool> isMarked(size_t(m_map.vertices().empty() ? 0 : m_map.vertices().back() + 1), false);
    for (const int vertex : marked) {
        if (m_map.has(vertex))
            isMarked[size_t(vertex)] = true;
    }
    painter.setPen(QPen(QColor::fromRgba(MarkColor), 0));
    painter.setBrush(QColor::fromRgba(MarkFill));
    for (const UvMap::Triangle &triangle : m_map.triangles()) {
        if (marked.size() >= 3 && isMarked[triangle[0]] && isMarked[triangle[1]] && isMarked[triangle[2]])
            painter.drawPolygon(pixels.map(
                QPolygonF({m_map.place(triangle[0]), m_map.place(triangle[1]), m_map.place(triangle[2])})));
    }
    const QRectF seen = area.adjusted(-Reach, -Reach, Reach, Reach);
    const auto square = [&painter](const QPointF &middle, double radius, QRgb color) {
        painter.fillRect(QRectF(middle.x() - radius, middle.y() - radius, 2 * radius, 2 * radius),
                         QColor::fromRgba(color));
    };
    for (const int vertex : marked) {
        if (!m_map.has(vertex) || !seen.contains(pixels.map(m_map.place(vertex))))
            continue;
        square(pixels.map(m_map.place(vertex)), 3.5, EdgeShadow);
        square(pixels.map(m_map.place(vertex)), 2.5, MarkColor);
    }
    if (hovered < 0)
        return;
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor::fromRgba(MarkColor), 1.5));
    painter.drawEllipse(pixels.map(m_map.place(hovered)), Reach, Reach);
    painter.setRenderHint(QPainter::Antialiasing, false);
}
