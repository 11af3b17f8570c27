// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "CommandTable.h"

#include <QCoreApplication>

#include <vector>

/// A model turned about its axes, angles in degrees: pitch about x, then yaw about y, then roll about z. That
/// is not the one rotation by the three Euler angles, whose order is another. An angle that is fuzzily 0 is
/// left out.
template <typename Model>
Model rotated(Model model, float pitch, float roll, float yaw);

/// A model scaled about its origin.
template <typename Model>
Model scaled(Model model, float factor);

/// A rotation or a scaling of a whole model. The command holds the vertices and boxes that are not in the
/// model at the moment, the old ones or the new ones, and exchanges them: no inverse, which would round.
/// `RecordType`: the root of the model.
template <typename RecordType>
class TransformCommand : public UC_Base
{
public:
    using Place = RecordType;
    using Model = typename Place::Model;

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

/// See rotated().
template <typename Command, typename RecordType>
class RotateCommand : public TransformCommand<RecordType>
{
public:
    using typename TransformCommand<RecordType>::Model;

    RotateCommand(EditTarget<Model> target, float pitch, float roll, float yaw,
                  QUndoCommand *parent = nullptr)
        : TransformCommand<RecordType>(target, rotated(target.model(), pitch, roll, yaw), Command::undoText,
                                       parent)
    {}
};

/// See scaled().
template <typename Command, typename RecordType>
class ScaleCommand : public TransformCommand<RecordType>
{
public:
    using typename TransformCommand<RecordType>::Model;

    ScaleCommand(EditTarget<Model> target, float factor, QUndoCommand *parent = nullptr)
        : TransformCommand<RecordType>(target, scaled(target.model(), factor), Command::undoText, parent)
    {}
};
