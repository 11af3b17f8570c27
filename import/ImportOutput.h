// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ImportMessages.h"
#include "KMat.h"

#include <QStringList>

/// Copies a file over what stands at `target`, in one step: a failure leaves the old file. A file copied
/// onto itself is left alone. Returns true on failure, after a warning line.
bool copyTexture(const QString &source, const QString &target, ImportMessages &messages);

/// Warns of files of one name, of which only one can stand in a folder.
void warnOfSharedNames(const QStringList &files, ImportMessages &messages);

/// Copies textures into a folder; gives the line that says how that ended.
[[nodiscard]] QString copyTextures(const QStringList &textures, const QString &folder,
                                   ImportMessages &messages);

/// The materials that the surfaces of an imported mesh refer to. `textures` are those of the surfaces that
/// have one, in their order; the materials name them in `textureFolder`.
template <typename Surfaces>
MaterialTable materialsOf(const Surfaces &surfaces, const QStringList &textures,
                          const QString &textureFolder);

/// Writes the material file; gives the line that says how that ended, after a warning line if it failed.
[[nodiscard]] QString createKMat(const QString &path, const MaterialTable &materials,
                                 ImportMessages &messages);

/// Where `path` stands inside `folder`, with forward slashes; null when it stands outside and
/// empty for the folder itself. Both are compared
/// by their parts: "/mod2/x" is not inside "/mod".
QString pathInside(const QString &folder, const QString &path);
