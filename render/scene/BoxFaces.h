// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ScreenMap.h"
#include "Transform.h"

#include <optional>

/// The six faces of a box, two for each axis: the lower one, then the upper one.
namespace BoxFaces {
constexpr int Count = 6;

inline int axisOf(int face)
{
    return face / 2;
}
inline bool isUpper(int face)
{
    return face % 2 != 0;
}

/// The middle of a face, in the box's space.
QVector3D middle(const Box &box, int face);
/// Where the middle shows, for a box whose space stands so in that of the map; none where it does not, or
/// where the face would move towards the eye, which no mouse can show.
std::optional<QPointF> grip(const Box &box, int face, const QMatrix4x4 &toModel, const ScreenMap &map);
} // namespace BoxFaces

/// How far along a line its place nearest to a ray is, in lengths of `direction`; none where both run almost
/// the same way.
std::optional<float> alongLine(const QVector3D &from, const QVector3D &direction, const Ray &ray);

/// The step that a drag at a place snaps to: the least power of ten that is at least a pixel wide there.
double snapStep(const QVector3D &place, const ScreenMap &map);
/// The multiple of a step nearest to a number.
float snapped(float number, double step);
