// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "ClipSampler.h"
#include "ModelNames.h"
#include "ReadyChoices.h"
#include "ReadySkeleton.h"
#include "SceneParts.h"
#include "SceneReading.h"
#include "SkinnedMesh.h"

#include <functional>

/// Makes animation blocks of the clips of a scene.
class ReadyClips
{
public:
    /// Takes those clips that were chosen, with a warning for each that is not there.
    ReadyClips(const SceneSource &source, const SceneNodes &nodes, const ReadyChoices &choices);

    /// Marks the nodes that any clip of the scene moves, taken or not: so the bones depend on the file alone.
    std::vector<bool> moved() const;
    bool isEmpty() const { return m_taken.empty(); }
    void clear() { m_taken.clear(); }
    /// How far each bone's own movement takes what hangs on it from where its parent alone would, at most
    /// over all taken clips: an upper bound, in parts of the model's size.
    std::vector<double> movements(const ReadySkeleton &skeleton, const SceneParts &parts) const;

    /// How many frames the blocks of all taken clips have.
    qint64 frames() const;
    /// Calls look(world, pose) for every `step`-th frame of every taken clip: where those nodes stand that
    /// `wanted` marks with all above them, and the bones.
    using Look = std::function<void(const std::vector<Matrix4> &world, const SkeletonPose &pose)>;
    void eachPose(const ReadySkeleton &skeleton, const std::vector<bool> &wanted, int step,
                  const Look &look) const;
    /// Where all nodes stand at rest.
    std::vector<Matrix4> restWorld() const;

    /// Appends a block for each taken clip, for `mesh`, which stands in `rest`, and names them. Without any
    /// it is one block of one frame, for the rest pose stands nowhere else. Gives how many bones change their
    /// size in the clips, which blocks do not hold.
    qint64 addBlocks(const ReadySkeleton &skeleton, const SkeletonPose &rest, const SkinnedMesh &mesh,
                     AnimFile &file, ModelNames &names) const;

private:
    struct Taken
    {
        ReadyClip choice;
        QString name;
        qint32 id;
        double rate;
        int frames;
    };

    void number();
    int frameCount(int clip, double rate) const;
    double rateOf(const ClipSampler &clip) const;
    void warnOfCut(int clip, int frames) const;
    void eachPose(const Taken &taken, const ReadySkeleton &skeleton, const std::vector<bool> &wanted,
                  int step, const Look &look) const;
    AnimBlock makeBlock(const Taken &taken, const ReadySkeleton &skeleton, const SkeletonPose &rest,
                        const SkinnedMesh &mesh, std::vector<bool> &isStretched) const;

    const SceneSource &m_source;
    const SceneNodes &m_nodes;
    const ReadyChoices &m_choices;
    std::vector<ClipSampler> m_clips; ///< of the scene
    std::vector<Taken> m_taken;
};
