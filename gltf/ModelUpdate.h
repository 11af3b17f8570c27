// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "GltfScene.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "UpdateAccount.h"

/// Whether a file may be an export that can come back: a look at its bytes, which takes no time.
bool mayComeBack(const QString &path);

/// Brings a glTF file back over the model that it was exported from: what the game's records say stays by
/// number, vertices, triangles and keys come from the file, bones and clips that are new there are appended,
/// what is missing there stays. What is the same within what arithmetic does to it keeps its bits. A `mesh`
/// without a file of animations has an empty `anim`, and then gets none.
///
/// Both return true on failure, which `reason` then explains; the model is to be thrown away.
[[nodiscard]] bool updateModel(const GltfScene &scene, SkinnedMesh &mesh, AnimFile &anim,
                               UpdateAccount &account, QString &reason);
[[nodiscard]] bool updateModel(const GltfScene &scene, StaticMesh &mesh, UpdateAccount &account,
                               QString &reason);
