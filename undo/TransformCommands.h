// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "DocumentView.h"
#include "UC_Base.h"

#include <vector>

/// A rotation or a scaling of a whole model. The command holds the vertices and boxes that are not in the
/// model at the moment, the old ones or the new ones, and exchanges them: no inverse, which would round.
template <typename ModelType>
class TransformCommand : public UC_Base
{
public:
    using Model = ModelType;

    void undo() override { exchange(); }
    void redo() override { exchange(); }

protected:
    /// `transformed`: what the model is to become.
    TransformCommand(EditTarget<Model> target, Model transformed, const char *undoText, QUndoCommand *parent);

private:
    void exchange();

    EditTarget<Model> m_target;
    decltype(Model::vertices) m_vertices;
    std::vector<QVector3D> m_corners;
};

/// Turns a model about the model's axes, angles in degrees: pitch about x, then yaw about y, then roll about
/// z. That is not the one rotation by the three Euler angles, whose order is another. An angle that is
/// fuzzily 0 is left out.
template <typename Command, typename Model>
class RotateCommand : public TransformCommand<Model>
{
public:
    RotateCommand(EditTarget<Model> target, float pitch, float roll, float yaw,
                  QUndoCommand *parent = nullptr);
};

/// Scales a model about its origin.
template <typename Command, typename Model>
class ScaleCommand : public TransformCommand<Model>
{
public:
    ScaleCommand(EditTarget<Model> target, float factor, QUndoCommand *parent = nullptr);
};

#define KORVANE_TRANSFORM_COMMAND(Class, Kind, ModelType, Text)                                              \
    class Class final : public Kind<Class, ModelType>                                                        \
    {                                                                                                        \
    public:                                                                                                  \
        static constexpr const char *name = #Class;                                                          \
        static constexpr const char *undoText = QT_TRANSLATE_NOOP("UndoCommands", Text);                     \
        using Kind::Kind;                                                                                    \
    };

// clang-format off
#define KORVANE_TRANSFORMS(ROW) \
    ROW(UC_SkinnedMeshRotate, RotateCommand, SkinnedMesh, "Rotate Vertices") \
    ROW(UC_SkinnedMeshScale, ScaleCommand, SkinnedMesh, "Scale Vertices") \
    ROW(UC_StaticMeshRotate, RotateCommand, StaticMesh, "Rotate Vertices") \
    ROW(UC_StaticMeshScale, ScaleCommand, StaticMesh, "Scale Vertices")
// clang-format on

KORVANE_TRANSFORMS(KORVANE_TRANSFORM_COMMAND)
