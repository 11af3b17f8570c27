// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "OverlayCanvas.h"

#include <QtMath>

#include <cmath>

namespace {
constexpr double Rim = 0.5; // half of what fades out, in pixels

QRgb faded(QRgb color)
{
    return color & 0x00ffffff;
}
} // namespace

void OverlayCanvas::add(const QPointF &place, QRgb color)
{
    m_vertices.push_back(
        {float(place.x()),
         float(place.y()),
         {quint8(qRed(color)), quint8(qGreen(color)), quint8(qBlue(color)), quint8(qAlpha(color))}});
}

/// The first two corners have the first colour.
void OverlayCanvas::quad(const QPointF (&corners)[4], QRgb first, QRgb second)
{
    add(corners[0], first);
    add(corners[1], first);
    add(corners[2], second);
    add(corners[0], first);
    add(corners[2], second);
    add(corners[3], second);
}

void OverlayCanvas::line(const QPointF &from, const QPointF &to, float width, QRgb color)
{
    const QPointF along = to - from;
    const double length = std::hypot(along.x(), along.y());
    if (!(length > 1e-6) || !std::isfinite(length))
        return;
    const QPointF across(-along.y() / length, along.x() / length);
    const QPointF inner = across * (0.5 * double(width) - Rim);
    const QPointF outer = across * (0.5 * double(width) + Rim);
    quad({from - inner, to - inner, to + inner, from + inner}, color, color);
    quad({from + inner, to + inner, to + outer, from + outer}, color, faded(color));
    quad({to - inner, from - inner, from - outer, to - outer}, color, faded(color));
}

void OverlayCanvas::shape(const QPointF &centre, float radius, int sides, QRgb color)
{
    const auto corner = [&](int number, double distance) {
        const double angle = 2.0 * M_PI * (number % sides) / sides;
        return centre + QPointF(std::cos(angle), std::sin(angle)) * distance;
    };
    for (int i = 0; i < sides; ++i) {
        const QPointF from = corner(i, double(radius) - Rim), to = corner(i + 1, double(radius) - Rim);
        add(centre, color);
        add(from, color);
        add(to, color);
        quad({from, to, corner(i + 1, double(radius) + Rim), corner(i, double(radius) + Rim)}, color,
             faded(color));
    }
}
