// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "RecordField.h"

class QUndoStack;

namespace RecordFields {

/// The fields of a kind of record, in the order of their page; none for groups.
const QVector<const RecordField *> &of(RecordKind kind);
/// The field with that id or title, in any case and without regard to blanks, points and hyphens; null when
/// there is none.
const RecordField *find(RecordKind kind, const QString &name);

/// Makes these changes, whose fields are of the model, one undo step (those of animations' names are one of
/// the mesh): also of what has that value already, so that undo selects again what was edited. Returns
/// whether there is a step, which there is not when nothing is another value. An empty text calls the step as
/// its command, which is then to be the only one.
bool change(const QVector<FieldChange> &changes, const QString &stepText, EditTarget<SkinnedMesh> target,
            QUndoStack &stack);
bool change(const QVector<FieldChange> &changes, const QString &stepText, EditTarget<AnimFile> target,
            QUndoStack &stack);
bool change(const QVector<FieldChange> &changes, const QString &stepText, EditTarget<StaticMesh> target,
            QUndoStack &stack);

} // namespace RecordFields
