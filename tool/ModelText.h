// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelJson.h"
#include "ModelNames.h"

/// Reads a model with all its bytes, and the names beside it. Returns why that failed; `note` says what
/// writing it would change.
[[nodiscard]] QString readWholeModel(const QString &path, ModelJson::Content &content, QString &note);

/// Why a file may not be called `path` that holds a model, or, where `kind` is empty, a text. Empty when it
/// may.
[[nodiscard]] QString wrongName(const QString &path, const QString &kind);

/// The names that a model has for its bones and animations; none but of a skinned mesh.
ModelNames namesOf(const ModelJson::Content &content);
/// The file that the model's names would replace beside `path`, which holds others than these or the `known`
/// ones; empty when there is none.
QString replacedNames(const QString &path, const ModelJson::Content &content, const ModelNames &known = {});

/// Writes a model with all its bytes in one step, and its names beside it where `withNames`; says so or why
/// not. Returns true on failure.
[[nodiscard]] bool writeWholeModel(const QString &path, const ModelJson::Content &content, bool withNames);
