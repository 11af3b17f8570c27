// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelJson.h"

/// A value that a patch has changed.
struct PatchedField
{
    QString place; ///< such as "block 3 speed"
    QByteArray before;
    QByteArray after; ///< both as JSON
};

/// Sets fields of a model by words. A path names records by kind and number, and then the field, as the JSON
/// does or as people do: "block 3 speed", "hot point 2 origin x", "block 0 action 1 arg1", "bone 4 damage
/// scale". In place of a number stand a range ("2-5"), all of them ("*"), or a block's own ("block id 1000
/// speed"). A skinned mesh's names are set by "bone 4 name" and "animation 12 name"; an empty
/// text takes one away.
///
/// A value is what the field holds: a number, a list of them, a text; or an Expression, which x and i stand
/// in for the old value and the record's place among those that the path names.
///
/// Returns why that cannot be, with the model partly changed; empty when it can. `changes` grows by what is
/// another value now.
[[nodiscard]] QString patchModel(ModelJson::Model &model, const QString &path, const QString &value,
                                 std::vector<PatchedField> &changes);
