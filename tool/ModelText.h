// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ModelJson.h"

/// Reads a model with all its bytes. Returns why that failed; `note` says what writing it would change.
[[nodiscard]] QString readWholeModel(const QString &path, ModelJson::Content &content, QString &note);

/// Why a file may not be called `path` that holds a model, or, where `kind` is empty, a text. Empty when it
/// may.
[[nodiscard]] QString wrongName(const QString &path, const QString &kind);

/// Writes a model with all its bytes in one step, and says so or why not. Returns true on failure.
[[nodiscard]] bool writeWholeModel(const QString &path, const ModelJson::Content &content);
