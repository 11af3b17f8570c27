// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldPatch.h"
#include "RecordSearch.h"

#include <memory>

class Companions;

/// A value that was replaced; its place names it as the tool does.
struct ReplacedField : PatchedField
{
    RecordRef record;
    const RecordField *field;
};

/// The records of a model that meet a condition, and other values for them. The model is whole in memory, and
/// nobody looks at it.
struct FoundRecords
{
    Condition condition;
    /// Has the names of bones and animations: the model itself, or the one that an animation belongs to. Null
    /// where the condition asks for none.
    std::shared_ptr<const SkinnedMesh> mesh;
    std::vector<RecordRef> records;

    /// Looks through the model of `file`. Returns why that cannot be; empty when it can.
    [[nodiscard]] QString find(const QString &text, const QString &file, const ModelJson::Model &model,
                               Companions &companions);

    /// Gives the field that `word` stands for in the records that were found a value, which may be a name:
    /// see replacementOf(). Returns why that cannot be, with the model as it was; empty when it can.
    /// `changes` grows by what is another value now.
    [[nodiscard]] QString replace(ModelJson::Model &model, const QString &word, const QString &text,
                                  std::vector<ReplacedField> &changes) const;
};

/// The mesh that a file is, or that an animation belongs to, with its names; null when there is none, or no
/// telling which.
std::shared_ptr<const SkinnedMesh> namedMesh(const QString &file, const ModelJson::Model &model,
                                             Companions &companions);

std::unique_ptr<RecordValues> valuesOf(const ModelJson::Model &model);
