// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "ModelPlaces.h"

#include "GLMesh.h"
#include "PosedVertices.h"
#include "SkinnedMesh.h"

namespace {
template <typename List>
bool has(const List &list, int index)
{
    return index >= 0 && size_t(index) < list.size();
}

QVector3D joint(const QMatrix4x4 &bone)
{
    return bone.column(3).toVector3D();
}

/// Vertices of which each is to be taken once.
class Vertices
{
public:
    explicit Vertices(const GLMesh &model)
        : m_model(model)
        , m_taken(model.vertices().vertices.size(), false)
    {}

    void take(size_t vertex)
    {
        if (m_taken[vertex])
            return;
        m_taken[vertex] = true;
        places.push_back(posedPlace(m_model.vertices().vertices[vertex], m_model.palette));
    }
    void takeSurface(int surface)
    {
        for (const quint16 index : m_model.indexes(surface))
            take(index);
    }

    std::vector<QVector3D> places;

private:
    const GLMesh &m_model;
    std::vector<bool> m_taken;
};
} // namespace

std::vector<QVector3D> cornersOf(const GLMesh &model)
{
    Vertices corners(model);
    for (int surface = 0; surface < model.surfaceCount(); ++surface)
        corners.takeSurface(surface);
    if (corners.places.empty()) {
        for (const QMatrix4x4 &bone : model.palette)
            corners.places.push_back(joint(bone));
    }
    return std::move(corners.places);
}

std::vector<QVector3D> placesOf(const GLMesh &model, const SkinnedMesh *mesh, const ModelSelection &selection)
{
    const std::vector<GLVertex> &vertices = model.vertices().vertices;
    Vertices selected(model);
    for (const int surface : selection.surfaces) {
        if (surface >= 0 && surface < model.surfaceCount())
            selected.takeSurface(surface);
    }
    for (const int vertex : selection.vertices) {
        if (has(vertices, vertex))
            selected.take(size_t(vertex));
    }

    std::vector<bool> isSelected(model.palette.size(), false);
    for (const int bone : selection.bones) {
        if (!has(model.palette, bone))
            continue;
        isSelected[size_t(bone)] = true;
        selected.places.push_back(joint(model.palette[size_t(bone)]));
    }
    for (size_t vertex = 0; !selection.bones.empty() && vertex < vertices.size(); ++vertex) {
        if (has(isSelected, vertices[vertex].boneId) && isSelected[size_t(vertices[vertex].boneId)])
            selected.take(vertex);
    }

    for (const int number : selection.hotPoints) {
        if (!mesh || !has(mesh->hotPoints, number))
            continue;
        const SkinnedMeshHotPoint &point = mesh->hotPoints[size_t(number)];
        selected.places.push_back(
            has(model.palette, point.nodeId) ? model.palette[point.nodeId].map(point.origin) : point.origin);
    }
    return std::move(selected.places);
}
