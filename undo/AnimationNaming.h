// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordField.h"

#include <functional>
#include <memory>
#include <optional>

class QUndoStack;

/// The names of animations, which the mesh beside them has: one for each id. For the GUI thread.
namespace AnimationNaming {
/// The document with the names.
struct Mesh
{
    EditTarget<SkinnedMesh> target;
    QUndoStack *stack;
    std::function<bool()> isOpen;
};
/// Which one that is in this process, until it is another one, or none.
void setMesh(const std::optional<Mesh> &mesh);

/// A block's name as a field of the block. It cannot be stored by a command of the block's document: what
/// changes it goes through change().
std::unique_ptr<ModelField<AnimFile>> field();
/// Makes those of the changes that are of that field one undo step of the mesh. Returns whether there is one.
bool change(const QVector<FieldChange> &changes, const AnimFile &file);
/// Whether a change is one of these.
bool isName(const FieldChange &change);
} // namespace AnimationNaming
