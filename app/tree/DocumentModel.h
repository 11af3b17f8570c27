// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Document.h"

/// The model of a document that is of this kind.
template <typename Model>
const Model &modelOf(const Document &document)
{
    return static_cast<const ModelDocument<Model> &>(document).model();
}
