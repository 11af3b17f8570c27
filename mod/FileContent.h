// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "KMat.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QStringList>

#include <variant>

/// What a file holds; nothing when it could not be read.
using FileContent = std::variant<std::monostate, SkinnedMesh, AnimFile, StaticMesh, MaterialTable>;

/// The extensions of the files that can be read, without the dot.
const QStringList &readableSuffixes();
bool isReadable(const QString &path);
/// Whether the extension is that of a mesh.
bool isMesh(const QString &path);

/// Reads a file of the kind that its extension says. Returns why that failed, without the file's name; an
/// empty text means success.
[[nodiscard]] QString readFile(const QString &path, FileContent &content);
