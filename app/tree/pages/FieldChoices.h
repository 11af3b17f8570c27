// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ChoiceList.h"
#include "FieldRow.h"

struct AnimFile;
struct SkinnedMesh;

/// What a field whose numbers stand for something can be given.
struct FieldChoices
{
    QString title; ///< what is chosen from
    QVector<Choice> choices;
};

namespace FieldChoice {

/// The rows of the table that names what a question asks for, ascending by number, as far as the field can
/// hold them. The names that `mesh`, if there is one, has for animations stand before those of the table.
/// None for what no table names.
FieldChoices named(QLatin1String question, const NumberRange &range, const SkinnedMesh *mesh);
/// The bones that a number of a record may stand for: as they hang from one another, where the mesh has them.
FieldChoices bones(Naming naming, const SkinnedMesh &model, const RecordIndex &index,
                   const SkinnedMesh *mesh);
FieldChoices bones(Naming naming, const AnimFile &model, const RecordIndex &index, const SkinnedMesh *mesh);

} // namespace FieldChoice
