// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QVector2D>
#include <QVector3D>

#include <functional>
#include <vector>

/// A rectangle of the surface that is laid out flat in the texture.
struct Chart
{
    float width = 1.0f; ///< model units
    float height = 1.0f;
};

struct ShapeVertex
{
    QVector3D position;
    QVector3D normal;
    QVector2D uv; ///< 0 to 1 across the chart, v downwards
    int chart = 0;
};

/// A closed piece of a model. Space: z up, the front looks along -y. Triangles are clockwise seen from
/// outside.
struct Shape
{
    std::vector<ShapeVertex> vertices;
    std::vector<int> triangles;
    std::vector<Chart> charts;

    Shape &transform(const QMatrix4x4 &matrix);
    Shape &move(float x, float y, float z);
    /// Turns by degrees about x, then y, then z.
    Shape &turn(float x, float y, float z);
    Shape &deform(const std::function<QVector3D(QVector3D)> &map);
    /// Takes over another shape's triangles and charts.
    Shape &join(const Shape &other);

    /// Gives every corner the mean normal of those triangles around its place that meet its own at less than
    /// `creaseDegrees`, and merges equal corners. To be called once, when the shape is complete.
    Shape &finish(float creaseDegrees = 50.0f);

    /// The other side's piece: x negated, the same charts.
    Shape mirrored() const;
};

/// Turns a profile (radius, z), given from top to bottom, about z. The seam is at the back. A closed profile
/// (a ring) repeats its first point at the end.
Shape lathe(const std::vector<QVector2D> &profile, int segments, float scaleX = 1.0f, float scaleY = 1.0f);

/// The same profile with its long pieces divided: light is baked at the corners of triangles.
std::vector<QVector2D> divided(const std::vector<QVector2D> &profile, float span);

/// A closed profile for lathe(): an ellipse at `radius` from the axis.
std::vector<QVector2D> ringProfile(float radius, float halfWidth, float halfHeight, int points);

/// A ball as a lathe.
Shape ball(float radius, int segments, int rings);

/// A box centred on the origin with rounded edges; `steps` rows of quads make a rounding. Flat spans longer
/// than `span` are divided: light is baked at the corners of triangles.
Shape roundedBox(const QVector3D &halfSize, float radius, int steps, float span = 1000.0f);

/// A bulging plate that faces -y, its front laid out as seen: |x/halfWidth|^e + |z/halfHeight|^e <= 1. Its
/// middle stands `bulge` in front of its border, which goes `depth` back.
struct PlateSize
{
    float halfWidth;
    float halfHeight;
    float exponent;
    float bulge;
    float depth;
};
Shape plate(const PlateSize &size, int segments, int rings);

/// A round bar along a path, flat at its ends.
Shape tube(const std::vector<QVector3D> &path, float radius, int segments);
