// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoxFaces.h"

#include <cmath>

namespace {
/// Of the angle between a line and a ray, beyond which the mouse would have to go too far.
constexpr float MostCosine = 0.985f;
constexpr float LeastStepPixels = 1.0f;
} // namespace

QVector3D BoxFaces::middle(const Box &box, int face)
{
    QVector3D place = 0.5f * (box.min + box.max);
    place[axisOf(face)] = (isUpper(face) ? box.max : box.min)[axisOf(face)];
    return place;
}

std::optional<QPointF> BoxFaces::grip(const Box &box, int face, const QMatrix4x4 &toModel,
                                      const ScreenMap &map)
{
    QVector3D axis;
    axis[axisOf(face)] = 1.0f;
    const QVector3D place = toModel.map(middle(box, face));
    const QVector3D inEye = map.toEye(place);
    if (!map.isVisible(inEye))
        return {};
    const QPointF pixel = map.pixel(inEye);
    if (!alongLine(place, toModel.mapVector(axis), map.ray(pixel)))
        return {};
    return pixel;
}

std::optional<float> alongLine(const QVector3D &from, const QVector3D &direction, const Ray &ray)
{
    const QVector3D between = from - ray.origin;
    const float line = QVector3D::dotProduct(direction, direction);
    const float sight = QVector3D::dotProduct(ray.direction, ray.direction);
    const float both = QVector3D::dotProduct(direction, ray.direction);
    if (!(both * both < MostCosine * MostCosine * line * sight))
        return {};
    return (both * QVector3D::dotProduct(ray.direction, between) -
            sight * QVector3D::dotProduct(direction, between)) /
           (line * sight - both * both);
}

double snapStep(const QVector3D &place, const ScreenMap &map)
{
    const QVector3D inEye = map.toEye(place);
    if (!map.isVisible(inEye))
        return 1.0;
    const float least = LeastStepPixels * map.unitsPerPixel(inEye);
    return least > 0.0f && std::isfinite(least) ? std::pow(10.0, std::ceil(std::log10(double(least)))) : 1.0;
}

float snapped(float number, double step)
{
    return float(std::round(double(number) / step) * step);
}
