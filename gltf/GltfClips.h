// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>
#include <vector>

class GltfWriter;
class ImportMessages;
struct AnimBlock;
struct AnimFile;
struct GltfSkeleton;
struct ModelNames;

/// A block of an animation file that becomes a clip of a glTF file.
struct GltfClip
{
    int block = 0; ///< its number
    QString name;  ///< "walk [12]", or "[12]" where the animation has no name
};

/// The clips for blocks of these numbers, which are there. Each has a name that no other has.
std::vector<GltfClip> clipsFor(const AnimFile &anim, const std::vector<int> &blocks, const ModelNames &names);

/// Whether a pose of the block turns the whole model in one of its frames.
bool turnsModel(const AnimBlock &block);

/// Adds the clips, poses as the view shows them: one key a frame, in seconds of play time from 0. Whatever a
/// clip moves has keys in each of them, so that none leaves its pose to another; what rests all through a
/// clip has its first and last key only. Returns early when `isCancelled` says so; `tellDone` learns what
/// part is done, from 0 to 1.
void addClips(GltfWriter &writer, const GltfSkeleton &skeleton, const AnimFile &anim,
              const std::vector<GltfClip> &clips, ImportMessages &messages,
              const std::function<bool()> &isCancelled, const std::function<void(double)> &tellDone);
