// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfWriter.h"
#include "ModelNames.h"

#include <functional>

class ImportMessages;
struct AnimFile;
struct SkinnedMesh;
struct StaticMesh;

/// What an export as glTF is to know beside the model.
struct GltfSource
{
    QString name;      ///< of the model, without an extension
    ModelNames names;  ///< of bones and animations
    QString gamePath;  ///< where materials and textures are looked for first
    QString outputDir; ///< and where then; an empty folder is not searched
    std::function<bool()> isCancelled = [] { return false; };
    std::function<void(double)> tellDone = [](double) {}; ///< what part of the work is, from 0 to 1
};

/// A skinned mesh as a glTF file: bones and hot points as joints, one primitive for each surface, the blocks
/// of these numbers as clips. The animation file may be null, or have another number of bones than the mesh;
/// then there are no clips, and the bones stand in the model's middle. Everything hangs on one node that
/// turns the game's z up to the format's y up. Says what could not be written as it is; an error line means
/// that the result is none. A cancelled export gives anything.
GltfWriter exportGltf(const SkinnedMesh &mesh, const AnimFile *anim, const std::vector<int> &blocks,
                      const GltfSource &source, ImportMessages &messages);

/// A static mesh likewise; its vertices themselves are turned.
GltfWriter exportGltf(const StaticMesh &mesh, const GltfSource &source, ImportMessages &messages);

/// The numbers of all blocks.
std::vector<int> allBlocks(const AnimFile &anim);

/// What the bones and animations of a model are called: by the model's own names, and animations that have
/// none there by the reference tables. Main thread only.
ModelNames namesFor(ModelNames names, const AnimFile *anim);
