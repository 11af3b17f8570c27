// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QJsonObject>
#include <QMatrix4x4>
#include <QQuaternion>
#include <QString>
#include <QVector2D>
#include <QVector3D>
#include <QVector4D>

#include <memory>
#include <vector>

/// What a glTF file holds of a model. Every index is one of its list or -1, every number is finite, and the
/// nodes are trees.
struct GltfScene
{
    /// Triangles of one material.
    struct Primitive
    {
        int material = -1;
        std::vector<QVector3D> positions;
        std::vector<QVector3D> normals; ///< as many as positions, or none
        std::vector<QVector2D> uvs;     ///< as many as positions, or none; y down
        std::vector<int> joints;      ///< as many as positions, or none: in the skin's joints, -1: no weight
        std::vector<quint32> indices; ///< three a triangle, counter-clockwise seen from the front
        int sharedVertices = 0;       ///< that several joints move; `joints` has the strongest of each
    };

    struct Node
    {
        QString name;
        int parent = -1;
        int mesh = -1;
        int skin = -1;
        QVector3D translation;
        QQuaternion rotation; ///< of length 1
        QVector3D scale{1.0f, 1.0f, 1.0f};
        QMatrix4x4 matrix; ///< in place of these three where hasMatrix
        bool hasMatrix = false;
        QJsonObject extras;
    };

    struct Skin
    {
        std::vector<int> joints;              ///< nodes
        std::vector<QMatrix4x4> inverseBinds; ///< as many
    };

    struct Material
    {
        QString name;
        QJsonObject extras;
    };

    enum class Path { Translation, Rotation, Scale };
    enum class Interpolation { Linear, Step, CubicSpline };

    struct Channel
    {
        int node = -1;
        Path path = Path::Translation;
        Interpolation interpolation = Interpolation::Linear;
        std::shared_ptr<const std::vector<float>> times; ///< seconds, ascending, one or more
        /// Components of the keys, one after another: 4 for a rotation, else 3. Those of a cubic spline are
        /// in-tangent, value, out-tangent.
        std::shared_ptr<const std::vector<float>> values;
    };

    struct Animation
    {
        QString name;
        QJsonObject extras;
        std::vector<Channel> channels;
    };

    std::vector<Node> nodes;
    std::vector<int> order; ///< the nodes that the file's scene shows, each behind its parent
    std::vector<std::vector<Primitive>> meshes;
    std::vector<Skin> skins;
    std::vector<Material> materials;
    std::vector<Animation> animations;
    int otherPrimitives = 0; ///< points and lines, which were left out
};
