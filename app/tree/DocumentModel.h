// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"
#include "RecordFields.h"

/// The model of a document that is of this kind.
template <typename Model>
const Model &modelOf(const Document &document)
{
    return static_cast<const ModelDocument<Model> &>(document).model();
}

/// What a field of a document's record holds.
inline FieldValue fieldValue(const Document &document, const RecordField &field, const RecordIndex &index)
{
    const auto in = [&](const auto &model) {
        using Model = std::decay_t<decltype(model)>;
        return static_cast<const ModelField<Model> &>(field).value(model, index);
    };
    switch (document.kind().type) {
    case DocumentType::SkinnedMesh:
        return in(modelOf<SkinnedMesh>(document));
    case DocumentType::Anim:
        return in(modelOf<AnimFile>(document));
    case DocumentType::StaticMesh:
        break;
    }
    return in(modelOf<StaticMesh>(document));
}
