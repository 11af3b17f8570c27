// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BoundingSphere.h"

#include "Framing.h"
#include "Transform.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double StrayFactor = 20.0; // how many times as far from the middle as all others
constexpr double MostStrays = 0.1;   // of the points; what there is more of belongs to the model

double coordinate(const QVector3D &point, int axis)
{
    return double(point[axis]);
}

double distanceOf(const QVector3D &a, const QVector3D &b)
{
    return std::hypot(coordinate(a, 0) - coordinate(b, 0), coordinate(a, 1) - coordinate(b, 1),
                      coordinate(a, 2) - coordinate(b, 2));
}

/// Where half of the finite points lie to either side.
QVector3D medianOf(const std::vector<QVector3D> &points)
{
    QVector3D median;
    std::vector<float> values(points.size());
    for (int axis = 0; axis < 3; ++axis) {
        std::transform(points.begin(), points.end(), values.begin(),
                       [axis](const QVector3D &point) { return point[axis]; });
        const auto half = values.begin() + std::ptrdiff_t(values.size() / 2);
        std::nth_element(values.begin(), half, values.end());
        median[axis] = *half;
    }
    return median;
}
} // namespace

BoundingSphere BoundingSphere::of(const std::vector<QVector3D> &points)
{
    BoundingSphere sphere;
    QVector3D low, high;
    bool any = false;
    for (const QVector3D &point : points) {
        if (!isFinite(point))
            continue;
        for (int axis = 0; axis < 3; ++axis) {
            low[axis] = any ? std::min(low[axis], point[axis]) : point[axis];
            high[axis] = any ? std::max(high[axis], point[axis]) : point[axis];
        }
        any = true;
    }
    sphere.middle = 0.5f * low + 0.5f * high;
    for (const QVector3D &point : points) {
        if (isFinite(point))
            sphere.radius = std::max(sphere.radius, float(distanceOf(point, sphere.middle)));
    }
    return sphere;
}

int dropStrays(std::vector<QVector3D> &points)
{
    const size_t all = points.size();
    points.erase(
        std::remove_if(points.begin(), points.end(), [](const QVector3D &point) { return !isFinite(point); }),
        points.end());
    if (points.empty())
        return int(all);
    const QVector3D median = medianOf(points);
    std::vector<double> distances(points.size());
    std::transform(points.begin(), points.end(), distances.begin(),
                   [&median](const QVector3D &point) { return distanceOf(point, median); });
    std::sort(distances.begin(), distances.end());
    const auto most = size_t(std::ceil((1.0 - MostStrays) * double(distances.size())));
    for (size_t i = std::max(most, size_t(2)); i < distances.size(); ++i) {
        const double reach = distances[i - 1];
        if (!(reach > 0.0) || distances[i] <= StrayFactor * reach)
            continue;
        points.erase(
            std::remove_if(points.begin(), points.end(),
                           [&](const QVector3D &point) { return distanceOf(point, median) > reach; }),
            points.end());
        break;
    }
    return int(all - points.size());
}
