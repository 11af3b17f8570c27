// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ScreenMap.h"

#include <algorithm>
#include <utility>

ScreenMap::ScreenMap(const QMatrix4x4 &projection, const QMatrix4x4 &toEye, const QSizeF &size)
    : m_toEye(toEye)
    , m_size(std::max(1.0, size.width()), std::max(1.0, size.height()))
    , m_scaleX(projection(0, 0))
    , m_scaleY(projection(1, 1))
    , m_near(projection(2, 3) / (projection(2, 2) - 1.0f))
{}

QPointF ScreenMap::pixel(const QVector3D &inEye) const
{
    const float x = m_scaleX * inEye.x() / -inEye.z();
    const float y = m_scaleY * inEye.y() / -inEye.z();
    return {0.5 * (1.0 + double(x)) * m_size.width(), 0.5 * (1.0 - double(y)) * m_size.height()};
}

bool ScreenMap::clip(QVector3D &a, QVector3D &b) const
{
    if (!isVisible(a))
        std::swap(a, b);
    if (!isVisible(a))
        return false;
    if (!isVisible(b))
        b = a + (b - a) * ((-m_near - a.z()) / (b.z() - a.z()));
    return isVisible(b) || -b.z() > 0.5f * m_near;
}

Ray ScreenMap::ray(const QPointF &pixel) const
{
    const QVector3D inEye(float(2.0 * pixel.x() / m_size.width() - 1.0) / m_scaleX,
                          float(1.0 - 2.0 * pixel.y() / m_size.height()) / m_scaleY, -1.0f);
    const QMatrix4x4 back = m_toEye.inverted();
    return {back.map(inEye * m_near), back.mapVector(inEye)};
}
