// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportMessages.h"
#include "KMat.h"
#include "ReplacedFiles.h"

#include <QStringList>

enum class Copied { Yes, NotRead, NotWritten };

/// Copies a file over what stands at `target`, in one step: a failure leaves the old file.
[[nodiscard]] Copied copyWhole(const QString &source, const QString &target);

/// Copies a texture over what stands at `target`, in one step: a failure leaves the old file. A file copied
/// onto itself is left alone. Returns true on failure, after a warning line.
bool copyTexture(const QString &source, const QString &target, ImportMessages &messages);

/// The copies that put something into the folder, with a line for each that gets another name than its
/// source.
std::vector<FileCopy> distinctCopies(const std::vector<FileCopy> &textures, ImportMessages &messages);

/// Copies textures; gives the line that says how that ended.
[[nodiscard]] QString copyTextures(const std::vector<FileCopy> &textures, ImportMessages &messages);

/// The materials of these names, which the surfaces of an imported mesh refer to. `textures` are the file
/// names for those that have one, in their order; the materials name them in `textureFolder`.
MaterialTable materialsOf(const QStringList &names, const QStringList &textures,
                          const QString &textureFolder);

/// Writes the material file; gives the line that says how that ended, after a warning line if it failed.
/// `keepsOthers`: what a file that stands there has of other materials stays in it.
[[nodiscard]] QString createKMat(const QString &path, const MaterialTable &materials, bool keepsOthers,
                                 ImportMessages &messages);

/// Where `path` stands inside `folder`, with forward slashes; null when it stands outside and
/// empty for the folder itself. Both are compared
/// by their parts: "/mod2/x" is not inside "/mod".
QString pathInside(const QString &folder, const QString &path);
