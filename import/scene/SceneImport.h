// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "ImportMessages.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"

#include <QStringList>

/// Reads the model file `modelPath` of any format that the reading library knows into `mesh` and `anim`,
/// both fresh. The mesh keeps the coordinates of its source, the animations have 256 units to one of the
/// source. It has succeeded when no error line was added.
///
/// `kmatPath` is the material file that the surfaces shall refer to, `flags` see ImportFlags. `textures`
/// receives the distinct texture files (.png beside the model), one for each surface that has one, in their
/// order. `anim` has no blocks when the file has no animation.
///
/// The reading library may crash, hang or exhaust the memory with a damaged file: call this only in a process
/// that may die.
void importSkinnedMesh(const QString &modelPath, const QString &kmatPath, quint32 flags,
                       QStringList &textures, SkinnedMesh &mesh, AnimFile &anim, ImportMessages &messages);

/// The same for a rigid model: bones and animations are left out, normals of the source are kept.
[[nodiscard]] StaticMesh importStaticMesh(const QString &modelPath, const QString &kmatPath, quint32 flags,
                                          QStringList &textures, ImportMessages &messages);
