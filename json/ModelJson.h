// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "JsonProblem.h"
#include "JsonWriter.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <variant>

/// Models of the three kinds as JSON: one text for one model, the same bytes again from it.
namespace ModelJson {
/// Grows when a text of before cannot be read any more.
constexpr int Schema = 1;

using Model = std::variant<SkinnedMesh, AnimFile, StaticMesh>;

/// All of a file.
struct Content
{
    Model model;
    QByteArray behind; ///< the bytes behind the last record, which no record owns
};

/// What the file of a model holds; empty where the model refuses.
[[nodiscard]] QByteArray storedBytes(const Content &content);

/// Writes a model whole; see the schema. A skinned mesh that names bones or animations has these names behind
/// it.
void write(const Content &content, const JsonWriter::Sink &sink);

/// Reads what write() writes. The problem has no text when there is none; else `content` is to be thrown
/// away.
[[nodiscard]] JsonProblem read(const QByteArray &text, Content &content);

/// The kind of a model, as its file's extension: "skinnedmesh", "anim" or "staticmesh".
QString kindOf(const Model &model);
QStringList kinds();

/// The JSON Schema (2020-12) of the texts of one of the kinds.
QByteArray schema(const QString &kind);
} // namespace ModelJson
