// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QPointF>
#include <QSizeF>
#include <QVector3D>

/// A half line; `direction` has any length.
struct Ray
{
    QVector3D origin;
    QVector3D direction;
    float begin = 0.0f; ///< lengths of `direction` from the origin; below 0: before it
};

inline bool isOrthographic(const QMatrix4x4 &projection)
{
    return projection(3, 2) == 0.0f;
}

/// Where a view shows places, and what lies under its pixels, in perspective or orthographic. Pixels count
/// from the upper left corner.
class ScreenMap
{
public:
    ScreenMap() = default;
    /// `toEye` is a rotation with a translation, `size` that of the picture.
    ScreenMap(const QMatrix4x4 &projection, const QMatrix4x4 &toEye, const QSizeF &size);

    /// A place in the space of the eye, which looks along -z.
    QVector3D toEye(const QVector3D &place) const { return m_toEye.map(place); }
    /// Whether a place in that space lies before the near plane; false for what is no place.
    bool isVisible(const QVector3D &inEye) const { return -inEye.z() >= m_near; }
    /// The pixel of a place in that space that is visible.
    QPointF pixel(const QVector3D &inEye) const;
    /// Cuts the line between two places in that space off at the near plane. False when nothing is left.
    bool clip(QVector3D &a, QVector3D &b) const;

    /// From the near plane through a pixel, in the space of the places. Its direction is 1 deep in the eye's.
    Ray ray(const QPointF &pixel) const;
    /// How wide a pixel is at a place in the eye's space that is visible.
    float unitsPerPixel(const QVector3D &inEye) const;
    /// The way that a place in the eye's space is looked at, in that space; of any length.
    QVector3D sightTo(const QVector3D &inEye) const;

private:
    QMatrix4x4 m_toEye;
    QSizeF m_size{1.0, 1.0};
    float m_scaleX = 1.0f;
    float m_scaleY = 1.0f;
    float m_near = 0.0f;
    bool m_isOrthographic = false;
};
