// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "GltfScene.h"
#include "SkinnedMesh.h"
#include "StaticMesh.h"
#include "UpdateAccount.h"

/// What the bytes of a file say of where it comes from: a look at them takes no time, and may be wrong.
struct ExportTraces
{
    bool hasNames = false;   ///< bones are called as exports call them
    bool hasRecords = false; ///< there are the extras of an export
    bool isSkinned = false;  ///< these are of a skinned mesh
    bool isStatic = false;   ///< these are of a static mesh

    bool mayComeBack() const { return hasNames || hasRecords; }
};
ExportTraces exportTraces(const QString &path);

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
