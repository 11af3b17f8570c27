// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ScreenMap.h"

#include <algorithm>
#include <cmath>
#include <utility>

ScreenMap::ScreenMap(const QMatrix4x4 &projection, const QMatrix4x4 &toEye, const QSizeF &size)
    : m_toEye(toEye)
    , m_size(std::max(1.0, size.width()), std::max(1.0, size.height()))
    , m_scaleX(projection(0, 0))
    , m_scaleY(projection(1, 1))
    , m_isOrthographic(isOrthographic(projection))
{
    const float reach = projection(2, 3), scale = projection(2, 2);
    m_near = m_isOrthographic ? (reach + 1.0f) / scale : reach / (scale - 1.0f);
}

QPointF ScreenMap::pixel(const QVector3D &inEye) const
{
    const float depth = m_isOrthographic ? 1.0f : -inEye.z();
    const float x = m_scaleX * inEye.x() / depth;
    const float y = m_scaleY * inEye.y() / depth;
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
    return isVisible(b) || -b.z() > m_near - 0.5f * std::fabs(m_near);
}

Ray ScreenMap::ray(const QPointF &pixel) const
{
    const QVector3D inEye(float(2.0 * pixel.x() / m_size.width() - 1.0) / m_scaleX,
                          float(1.0 - 2.0 * pixel.y() / m_size.height()) / m_scaleY, -1.0f);
    const QMatrix4x4 back = m_toEye.inverted();
    // From beside the eye: from as far behind it as it begins it would be inexact.
    if (m_isOrthographic)
        return {back.map(QVector3D(inEye.x(), inEye.y(), 0.0f)), back.mapVector({0.0f, 0.0f, -1.0f}), m_near};
    return {back.map(inEye * m_near), back.mapVector(inEye)};
}

float ScreenMap::unitsPerPixel(const QVector3D &inEye) const
{
    return 2.0f / (m_scaleX * float(m_size.width())) * (m_isOrthographic ? 1.0f : -inEye.z());
}

QVector3D ScreenMap::sightTo(const QVector3D &inEye) const
{
    return m_isOrthographic ? QVector3D(0.0f, 0.0f, -1.0f) : inEye;
}
