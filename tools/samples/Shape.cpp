// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "Shape.h"

#include <QQuaternion>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <tuple>

namespace {
constexpr float Pi = 3.14159265f;

/// Places closer than a thousandth of a unit are one place.
using Place = std::array<int, 3>;
Place placeOf(const QVector3D &p)
{
    return {int(std::lround(p.x() * 1000.0f)), int(std::lround(p.y() * 1000.0f)),
            int(std::lround(p.z() * 1000.0f))};
}

/// Length is twice the triangle's area; points outwards for a clockwise triangle.
QVector3D areaNormal(const Shape &shape, size_t corner)
{
    const auto at = [&](size_t i) { return shape.vertices[size_t(shape.triangles[corner + i])].position; };
    return QVector3D::crossProduct(at(2) - at(0), at(1) - at(0));
}

/// Quads between the rows of a grid whose rows go downwards and whose columns go to the right, seen from
/// outside.
void addGridTriangles(Shape &shape, int first, int columns, int rows)
{
    for (int row = 0; row + 1 < rows; ++row) {
        for (int column = 0; column + 1 < columns; ++column) {
            const int topLeft = first + row * columns + column;
            const int bottomLeft = topLeft + columns;
            for (const auto &corners : {std::array<int, 3>{topLeft, topLeft + 1, bottomLeft + 1},
                                        std::array<int, 3>{topLeft, bottomLeft + 1, bottomLeft}})
                shape.triangles.insert(shape.triangles.end(), corners.begin(), corners.end());
        }
    }
}

/// Drops triangles without an area, such as those at a pole.
void dropFlatTriangles(Shape &shape)
{
    std::vector<int> kept;
    for (size_t corner = 0; corner < shape.triangles.size(); corner += 3) {
        if (areaNormal(shape, corner).length() > 1e-4f)
            kept.insert(kept.end(), shape.triangles.begin() + long(corner),
                        shape.triangles.begin() + long(corner) + 3);
    }
    shape.triangles = std::move(kept);
}
} // namespace

Shape &Shape::transform(const QMatrix4x4 &matrix)
{
    return deform([&](const QVector3D &p) { return matrix * p; });
}

Shape &Shape::move(float x, float y, float z)
{
    return deform([&](const QVector3D &p) { return p + QVector3D(x, y, z); });
}

Shape &Shape::turn(float x, float y, float z)
{
    QMatrix4x4 matrix;
    matrix.rotate(z, 0.0f, 0.0f, 1.0f);
    matrix.rotate(y, 0.0f, 1.0f, 0.0f);
    matrix.rotate(x, 1.0f, 0.0f, 0.0f);
    return transform(matrix);
}

Shape &Shape::deform(const std::function<QVector3D(QVector3D)> &map)
{
    for (ShapeVertex &vertex : vertices)
        vertex.position = map(vertex.position);
    return *this;
}

Shape &Shape::join(const Shape &other)
{
    const int firstVertex = int(vertices.size());
    const int firstChart = int(charts.size());
    for (ShapeVertex vertex : other.vertices) {
        vertex.chart += firstChart;
        vertices.push_back(vertex);
    }
    for (const int index : other.triangles)
        triangles.push_back(firstVertex + index);
    charts.insert(charts.end(), other.charts.begin(), other.charts.end());
    return *this;
}

Shape &Shape::finish(float creaseDegrees)
{
    dropFlatTriangles(*this);
    std::map<Place, std::vector<size_t>> trianglesAt;
    for (size_t i = 0; i < triangles.size(); ++i)
        trianglesAt[placeOf(vertices[size_t(triangles[i])].position)].push_back(i - i % 3);

    const float crease = std::cos(creaseDegrees * Pi / 180.0f);
    using Corner = std::tuple<Place, Place, float, float, int>;
    std::map<Corner, int> merged;
    std::vector<ShapeVertex> corners;
    std::vector<int> newTriangles;
    for (size_t i = 0; i < triangles.size(); ++i) {
        ShapeVertex vertex = vertices[size_t(triangles[i])];
        const QVector3D own = areaNormal(*this, i - i % 3).normalized();
        QVector3D sum;
        for (const size_t triangle : trianglesAt[placeOf(vertex.position)]) {
            const QVector3D normal = areaNormal(*this, triangle);
            if (QVector3D::dotProduct(normal.normalized(), own) > crease)
                sum += normal;
        }
        vertex.normal = sum.normalized();
        const Corner corner(placeOf(vertex.position), placeOf(vertex.normal), vertex.uv.x(), vertex.uv.y(),
                            vertex.chart);
        const auto [entry, isNew] = merged.emplace(corner, int(corners.size()));
        if (isNew)
            corners.push_back(vertex);
        newTriangles.push_back(entry->second);
    }
    triangles = std::move(newTriangles);
    vertices = std::move(corners);
    return *this;
}

Shape Shape::mirrored() const
{
    Shape other = *this;
    for (ShapeVertex &vertex : other.vertices) {
        vertex.position.setX(-vertex.position.x());
        vertex.normal.setX(-vertex.normal.x());
    }
    for (size_t i = 0; i < other.triangles.size(); i += 3)
        std::swap(other.triangles[i + 1], other.triangles[i + 2]);
    return other;
}

Shape lathe(const std::vector<QVector2D> &profile, int segments, float scaleX, float scaleY)
{
    std::vector<float> along{0.0f};
    float widest = 0.0f;
    for (size_t row = 0; row < profile.size(); ++row) {
        widest = std::max(widest, profile[row].x());
        if (row > 0)
            along.push_back(along.back() + (profile[row] - profile[row - 1]).length());
    }
    Shape shape;
    shape.charts = {{2.0f * Pi * widest * 0.85f, along.back()}};
    for (size_t row = 0; row < profile.size(); ++row) {
        for (int column = 0; column <= segments; ++column) {
            // The last column lies exactly on the first.
            const float angle = 2.0f * Pi * float(column % segments) / float(segments);
            const QVector3D position(-std::sin(angle) * profile[row].x() * scaleX,
                                     std::cos(angle) * profile[row].x() * scaleY, profile[row].y());
            const QVector2D uv(float(column) / float(segments), along[row] / along.back());
            shape.vertices.push_back({position, {}, uv, 0});
        }
    }
    addGridTriangles(shape, 0, segments + 1, int(profile.size()));
    return shape;
}

std::vector<QVector2D> divided(const std::vector<QVector2D> &profile, float span)
{
    std::vector<QVector2D> result{profile.front()};
    for (size_t i = 1; i < profile.size(); ++i) {
        const QVector2D piece = profile[i] - profile[i - 1];
        const int count = std::max(1, int(std::ceil(piece.length() / span)));
        for (int k = 1; k <= count; ++k)
            result.push_back(k == count ? profile[i] : profile[i - 1] + piece * (float(k) / float(count)));
    }
    return result;
}

std::vector<QVector2D> ringProfile(float radius, float halfWidth, float halfHeight, int points)
{
    // Starts on the inside and goes over the top, so that the seam is hidden.
    std::vector<QVector2D> profile;
    for (int i = 0; i <= points; ++i) {
        const float angle = Pi - 2.0f * Pi * float(i % points) / float(points);
        profile.emplace_back(radius + std::cos(angle) * halfWidth, std::sin(angle) * halfHeight);
    }
    return profile;
}

Shape ball(float radius, int segments, int rings)
{
    std::vector<QVector2D> profile;
    for (int i = 0; i <= rings; ++i) {
        const float angle = Pi * float(i) / float(rings);
        profile.emplace_back(i == 0 || i == rings ? 0.0f : radius * std::sin(angle),
                             radius * std::cos(angle));
    }
    return lathe(profile, segments);
}

Shape roundedBox(const QVector3D &halfSize, float radius, int steps, float span)
{
    struct Side
    {
        QVector3D outward, right, down;
    };
    const QVector3D x(1, 0, 0), y(0, 1, 0), z(0, 0, 1);
    const Side sides[] = {{-y, x, -z}, {y, -x, -z}, {x, y, -z}, {-x, -y, -z}, {z, x, -y}, {-z, x, y}};
    const auto extent = [&](const QVector3D &axis) {
        return std::abs(QVector3D::dotProduct(axis, halfSize));
    };
    const auto stops = [&](float half) {
        std::vector<float> values;
        for (int i = 0; i <= steps; ++i)
            values.push_back(-half + radius -
                             radius * std::tan(Pi / 4.0f * (1.0f - float(i) / float(steps))));
        const float flat = half - radius;
        const int pieces = std::max(1, int(std::ceil(2.0f * flat / span)));
        for (int i = 1; i < pieces; ++i)
            values.push_back(-flat + 2.0f * flat * float(i) / float(pieces));
        for (int i = steps; i >= 0; --i)
            values.push_back(-values[size_t(i)]);
        return values;
    };
    const QVector3D core = halfSize - QVector3D(radius, radius, radius);
    Shape shape;
    for (const Side &side : sides) {
        const std::vector<float> columns = stops(extent(side.right));
        const std::vector<float> rows = stops(extent(side.down));
        const int first = int(shape.vertices.size());
        const int chart = int(shape.charts.size());
        shape.charts.push_back({2.0f * extent(side.right), 2.0f * extent(side.down)});
        for (const float row : rows) {
            for (const float column : columns) {
                const QVector3D onBox =
                    side.outward * extent(side.outward) + side.right * column + side.down * row;
                const QVector3D inner(std::clamp(onBox.x(), -core.x(), core.x()),
                                      std::clamp(onBox.y(), -core.y(), core.y()),
                                      std::clamp(onBox.z(), -core.z(), core.z()));
                const QVector2D uv(0.5f + column / (2.0f * extent(side.right)),
                                   0.5f + row / (2.0f * extent(side.down)));
                shape.vertices.push_back({inner + (onBox - inner).normalized() * radius, {}, uv, chart});
            }
        }
        addGridTriangles(shape, first, int(columns.size()), int(rows.size()));
    }
    return shape;
}

Shape plate(const PlateSize &size, int segments, int rings)
{
    Shape shape;
    shape.charts = {{2.0f * size.halfWidth, 2.0f * size.halfHeight}};
    // Rows go from the middle outwards; one more than `rings` is the border's back edge.
    for (int row = 0; row <= rings + 1; ++row) {
        const float reach = std::min(1.0f, float(row) / float(rings));
        for (int column = 0; column <= segments; ++column) {
            // Against the clock, so that rows that go outwards face the viewer.
            const float angle = 2.0f * Pi * float(column % segments) / float(segments);
            const float c = std::cos(angle), s = std::sin(angle);
            const float border =
                std::pow(std::pow(std::abs(c), size.exponent) + std::pow(std::abs(s), size.exponent),
                         -1.0f / size.exponent);
            const float across = c * border * reach, up = s * border * reach;
            const float forward = row > rings ? -size.depth : size.bulge * (1.0f - reach * reach);
            shape.vertices.push_back({QVector3D(across * size.halfWidth, -forward, up * size.halfHeight),
                                      {},
                                      QVector2D(0.5f + across / 2.0f, 0.5f - up / 2.0f),
                                      0});
        }
    }
    addGridTriangles(shape, 0, segments + 1, rings + 2);
    return shape;
}

Shape tube(const std::vector<QVector3D> &path, float radius, int segments)
{
    Shape shape;
    float length = 0.0f;
    for (size_t i = 1; i < path.size(); ++i)
        length += (path[i] - path[i - 1]).length();
    shape.charts = {{2.0f * Pi * radius, length + 2.0f * radius}};
    QVector3D down = (path[1] - path[0]).normalized();
    QVector3D side =
        QVector3D::crossProduct(down, std::abs(down.x()) < 0.7f ? QVector3D(1, 0, 0) : QVector3D(0, 0, 1))
            .normalized();
    float along = 0.0f;
    const auto addRow = [&](const QVector3D &centre, float rowRadius, float v) {
        const QVector3D other = QVector3D::crossProduct(down, side);
        for (int column = 0; column <= segments; ++column) {
            const float angle = 2.0f * Pi * float(column % segments) / float(segments);
            shape.vertices.push_back({centre + (side * std::cos(angle) - other * std::sin(angle)) * rowRadius,
                                      {},
                                      QVector2D(float(column) / float(segments), v),
                                      0});
        }
    };
    const float total = length + 2.0f * radius;
    addRow(path.front(), 0.0f, 0.0f);
    for (size_t i = 0; i < path.size(); ++i) {
        const QVector3D before = (path[i] - path[i == 0 ? 0 : i - 1]).normalized();
        const QVector3D after = (path[std::min(i + 1, path.size() - 1)] - path[i]).normalized();
        const QVector3D direction = (before + after).normalized();
        side = QQuaternion::rotationTo(down, direction).rotatedVector(side);
        down = direction;
        if (i > 0)
            along += (path[i] - path[i - 1]).length();
        addRow(path[i], radius, (radius + along) / total);
    }
    addRow(path.back(), 0.0f, 1.0f);
    addGridTriangles(shape, 0, segments + 1, int(path.size()) + 2);
    return shape;
}
