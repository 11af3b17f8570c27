// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "TransformCommands.h"

#include "Fuzzy.h"

#include <QCoreApplication>

#include <algorithm>

namespace {
constexpr RecordKind rootKind(const SkinnedMesh &)
{
    return RecordKind::SkinnedMesh;
}

constexpr RecordKind rootKind(const StaticMesh &)
{
    return RecordKind::StaticMesh;
}

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
} // namespace

template <typename ModelType>
TransformCommand<ModelType>::TransformCommand(EditTarget<Model> target, Model transformed,
                                              const char *undoText, QUndoCommand *parent)
    : UC_Base(QCoreApplication::translate("UndoCommands", undoText), parent)
    , m_target(target)
    , m_vertices(std::move(transformed.vertices))
{
    for (const QVector3D *corner : corners(transformed))
        m_corners.push_back(*corner);
}

template <typename ModelType>
void TransformCommand<ModelType>::exchange()
{
    m_target.model.vertices.swap(m_vertices);
    const std::vector<QVector3D *> current = corners(m_target.model);
    const size_t count = std::min(current.size(), m_corners.size());
    for (size_t i = 0; i < count; ++i)
        std::swap(*current[i], m_corners[i]);
    m_target.view.recordChanged({rootKind(m_target.model), {}});
}

template <typename Command, typename Model>
RotateCommand<Command, Model>::RotateCommand(EditTarget<Model> target, float pitch, float roll, float yaw,
                                             QUndoCommand *parent)
    : TransformCommand<Model>(target, rotated(target.model, pitch, roll, yaw), Command::undoText, parent)
{}

template <typename Command, typename Model>
ScaleCommand<Command, Model>::ScaleCommand(EditTarget<Model> target, float factor, QUndoCommand *parent)
    : TransformCommand<Model>(target, scaled(target.model, factor), Command::undoText, parent)
{}

#define KORVANE_INSTANTIATE(Class, Kind, ModelType, Text) template class Kind<Class, ModelType>;
template class TransformCommand<SkinnedMesh>;
template class TransformCommand<StaticMesh>;
KORVANE_TRANSFORMS(KORVANE_INSTANTIATE)
