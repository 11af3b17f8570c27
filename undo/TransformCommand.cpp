// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TransformCommand.h"

#include "Fuzzy.h"

#include <algorithm>

namespace {
/// The corners of every box of a model.
std::vector<QVector3D *> corners(SkinnedMesh &mesh)
{
    std::vector<QVector3D *> all{&mesh.bbMin, &mesh.bbMax};
    for (SkinnedMeshNode &bone : mesh.nodes)
        all.insert(all.end(), {&bone.bbMin, &bone.bbMax});
    return all;
}

std::vector<QVector3D *> corners(StaticMesh &mesh)
{
    return {&mesh.bbMin, &mesh.bbMax};
}
} // namespace

template <typename Model>
Model rotated(Model model, float pitch, float roll, float yaw)
{
    if (!fuzzyEqual(pitch, 0.0f))
        model.rotate(pitch, 0.0f, 0.0f);
    if (!fuzzyEqual(yaw, 0.0f))
        model.rotate(0.0f, yaw, 0.0f);
    if (!fuzzyEqual(roll, 0.0f))
        model.rotate(0.0f, 0.0f, roll);
    return model;
}

template <typename Model>
Model scaled(Model model, float factor)
{
    model.scale(factor);
    return model;
}

template <typename RecordType>
TransformCommand<RecordType>::TransformCommand(EditTarget<Model> target, Model transformed,
                                               const char *undoText, QUndoCommand *parent)
    : UC_Base(QCoreApplication::translate("UndoCommands", undoText), parent)
    , m_target(target)
    , m_vertices(std::move(transformed.vertices))
{
    for (const QVector3D *corner : corners(transformed))
        m_corners.push_back(*corner);
}

template <typename RecordType>
void TransformCommand<RecordType>::exchange()
{
    Model &model = m_target.edit();
    model.vertices.swap(m_vertices);
    const std::vector<QVector3D *> current = corners(model);
    const size_t count = std::min(current.size(), m_corners.size());
    for (size_t i = 0; i < count; ++i)
        std::swap(*current[i], m_corners[i]);
    m_target.view().recordChanged({Place::kind, {}});
}

template SkinnedMesh rotated(SkinnedMesh, float, float, float);
template StaticMesh rotated(StaticMesh, float, float, float);
template SkinnedMesh scaled(SkinnedMesh, float);
template StaticMesh scaled(StaticMesh, float);
template class TransformCommand<Records::SkinnedMeshRoot>;
template class TransformCommand<Records::StaticMeshRoot>;
