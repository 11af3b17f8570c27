// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "FigureMesh.h"

#include <algorithm>

namespace {
struct Box
{
    QVector3D min, max;
    bool isEmpty = true;

    void add(const QVector3D &p)
    {
        for (int axis = 0; axis < 3; ++axis) {
            min[axis] = isEmpty ? p[axis] : std::min(min[axis], p[axis]);
            max[axis] = isEmpty ? p[axis] : std::max(max[axis], p[axis]);
        }
        isEmpty = false;
    }
};

qint8 symbolFlags(const Bone &bone)
{
    return qint8(quint8(int(bone.type) | (bone.right ? 4 : 0) | (bone.part << 6)));
}

/// Surfaces and vertices: what both kinds of mesh share. Files count v from the bottom.
template <typename Mesh, typename MakeVertex>
void addGeometry(Mesh &mesh, const Figure &figure, const QStringList &materialPaths,
                 const MakeVertex &makeVertex)
{
    for (const QString &path : materialPaths)
        mesh.surfaces.push_back({path, {}});
    for (const Part &part : figure.parts) {
        const auto first = int(mesh.vertices.size());
        for (const ShapeVertex &vertex : part.shape.vertices)
            mesh.vertices.push_back(makeVertex(part, vertex, QVector2D(vertex.uv.x(), 1.0f - vertex.uv.y())));
        auto &indexes = mesh.surfaces[size_t(part.material)].triangleIndexes;
        for (const int index : part.shape.triangles)
            indexes.push_back(quint16(first + index));
    }
}
} // namespace

SkinnedMesh toSkinnedMesh(const Figure &figure, const QStringList &materialPaths)
{
    SkinnedMesh mesh;
    mesh.version = 2;
    mesh.unknownA = 1;
    addGeometry(mesh, figure, materialPaths,
                [](const Part &part, const ShapeVertex &vertex, const QVector2D &uv) {
                    return SkinnedMeshVertex{vertex.position, uv, vertex.normal, quint16(part.bone)};
                });

    const std::vector<QMatrix4x4> matrices = figure.restMatrices();
    std::vector<Box> boneBoxes(figure.bones.size());
    Box whole;
    for (const SkinnedMeshVertex &vertex : mesh.vertices) {
        boneBoxes[vertex.nodeIndex].add(vertex.position);
        whole.add(matrices[vertex.nodeIndex] * vertex.position);
    }
    mesh.bbMin = whole.min;
    mesh.bbMax = whole.max;
    mesh.nodes.resize(figure.bones.size());
    for (size_t i = 0; i < figure.bones.size(); ++i) {
        const Bone &bone = figure.bones[i];
        SkinnedMeshNode &node = mesh.nodes[i];
        node.bbMin = boneBoxes[i].min;
        node.bbMax = boneBoxes[i].max;
        node.impactType = bone.impactType;
        node.symbolFlags = symbolFlags(bone);
        node.flags = boneBoxes[i].isEmpty ? 0 : 1;
        if (bone.parent >= 0) {
            node.parentNode = quint8(bone.parent);
            mesh.nodes[size_t(bone.parent)].childNodes.push_back(quint16(i));
        }
    }
    return mesh;
}

StaticMesh toStaticMesh(const Figure &figure, const QStringList &materialPaths)
{
    StaticMesh mesh;
    mesh.version = 2;
    addGeometry(mesh, figure, materialPaths,
                [](const Part &, const ShapeVertex &vertex, const QVector2D &uv) {
                    return StaticMeshVertex{vertex.position, uv, vertex.normal};
                });
    Box box;
    for (const StaticMeshVertex &vertex : mesh.vertices)
        box.add(vertex.position);
    mesh.bbMin = box.min;
    mesh.bbMax = box.max;
    return mesh;
}
