// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMatrix4x4>
#include <QQuaternion>
#include <QVector3D>

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

/// The rotation by Euler angles in degrees: roll about z first, then pitch about x, then yaw about y.
inline QMatrix4x4 eulerRotation(float pitch, float yaw, float roll)
{
    QMatrix4x4 matrix;
    matrix.rotate(QQuaternion::fromEulerAngles(pitch, yaw, roll));
    return matrix;
}

/// Rotates position, normal and a pair of box corners in place. Corners are mapped as points and not put
/// in order again: afterwards a minimum may be greater than its maximum.
template <typename Vertex>
void rotateVertices(const QMatrix4x4 &rotation, std::vector<Vertex> &vertices)
{
    for (Vertex &vertex : vertices) {
        vertex.position = rotation * vertex.position;
        vertex.normal = rotation * vertex.normal;
    }
}

template <typename Boxed>
void rotateBox(const QMatrix4x4 &rotation, Boxed &boxed)
{
    boxed.bbMin = rotation * boxed.bbMin;
    boxed.bbMax = rotation * boxed.bbMax;
}

/// Scales positions only; normals and texture coordinates stay.
template <typename Vertex>
void scaleVertices(float factor, std::vector<Vertex> &vertices)
{
    for (Vertex &vertex : vertices)
        vertex.position *= factor;
}

template <typename Boxed>
void scaleBox(float factor, Boxed &boxed)
{
    boxed.bbMin *= factor;
    boxed.bbMax *= factor;
}

/// Whether a place is one: all its coordinates are finite.
inline bool isFinite(const QVector3D &place)
{
    return std::isfinite(place.x()) && std::isfinite(place.y()) && std::isfinite(place.z());
}

/// The smallest box around points.
struct Box
{
    QVector3D min;
    QVector3D max;
};

/// Widens the box, or makes it. A point that is nowhere changes nothing.
inline void widen(std::optional<Box> &box, const QVector3D &point)
{
    if (!isFinite(point))
        return;
    if (!box)
        box = Box{point, point};
    for (int axis = 0; axis < 3; ++axis) {
        box->min[axis] = std::min(box->min[axis], point[axis]);
        box->max[axis] = std::max(box->max[axis], point[axis]);
    }
}

/// The box between two corners, whichever of them is the lower one along an axis.
inline Box boxBetween(const QVector3D &corner, const QVector3D &other)
{
    Box box{corner, other};
    for (int axis = 0; axis < 3; ++axis) {
        if (corner[axis] > other[axis]) {
            box.min[axis] = other[axis];
            box.max[axis] = corner[axis];
        }
    }
    return box;
}

/// The box around the vertices of a mesh as they are stored, which for a skinned mesh is in the spaces of
/// their bones; none without.
template <typename Mesh>
std::optional<Box> meshBox(const Mesh &mesh)
{
    std::optional<Box> box;
    for (const auto &vertex : mesh.vertices)
        widen(box, vertex.position);
    return box;
}

/// For each bone the box around its vertices.
template <typename Mesh>
std::vector<std::optional<Box>> boneBoxes(const Mesh &mesh)
{
    std::vector<std::optional<Box>> boxes(mesh.nodes.size());
    for (const auto &vertex : mesh.vertices) {
        if (vertex.nodeIndex < boxes.size())
            widen(boxes[vertex.nodeIndex], vertex.position);
    }
    return boxes;
}

/// Makes the box of a mesh the smallest one around its vertices; without vertices it is left as it is.
template <typename Mesh>
void boundVertices(Mesh &mesh)
{
    if (mesh.vertices.empty())
        return;
    mesh.bbMin = mesh.bbMax = mesh.vertices.front().position;
    for (const auto &vertex : mesh.vertices) {
        for (int axis = 0; axis < 3; ++axis) {
            mesh.bbMin[axis] = std::min(mesh.bbMin[axis], vertex.position[axis]);
            mesh.bbMax[axis] = std::max(mesh.bbMax[axis], vertex.position[axis]);
        }
    }
}
