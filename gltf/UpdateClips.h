// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "GltfExtras.h"
#include "GltfPose.h"
#include "UpdateAccount.h"
#include "UpdateBones.h"

/// Gives an animation file the clips of a glTF file: blocks keep their numbers, ids, blends, loops and
/// actions, keys come from the file wherever they are others than the block's. A clip of which the animation
/// has no block becomes one.
class UpdateClips
{
public:
    UpdateClips(const GltfScene &scene, const UpdateBones &bones,
                const std::optional<GltfExtras::Model> &model, AnimFile &anim, UpdateAccount &account);

    /// Returns true on failure, which error() explains.
    [[nodiscard]] bool run();
    const QString &error() const { return m_error; }
    /// What the new animations are called, by id; only those that have a name.
    const QHash<qint32, QString> &names() const { return m_names; }

private:
    /// The times of a clip, and how far it reaches, in seconds from the beginning of its block.
    struct Timing
    {
        std::vector<float> keys; ///< of all channels, ascending, each once; in the file's time
        float start = 0.0f;      ///< in the file's time: where the block's frame 0 is
        float first = 0.0f;
        float last = 0.0f;
        float gap = 0.0f; ///< between two keys of the channel that has the most
    };
    /// Where the bones are at some times, in the space of each bone's parent, and how far the model is
    /// turned.
    struct Poses
    {
        std::vector<std::vector<Rigid>> locals; ///< by time and bone
        std::vector<double> yaws;
    };

    void matchClips();
    bool wasExported(size_t block) const;
    int blockNamed(const QString &name) const;
    int blockNow(int number) const;
    void moveInitialPoses();
    void addBones();
    Timing timingOf(const GltfScene::Animation &animation) const;
    std::vector<Rigid> localsOf(const std::vector<Rigid> &frames) const;
    Poses posesAt(const GltfScene::Animation &animation, const std::vector<float> &times,
                  const AnimBlock *block, float start);
    bool updateBlock(size_t number, const GltfScene::Animation &animation);
    bool addBlock(const GltfScene::Animation &animation);
    bool spendFrames(int count);

    const GltfScene &m_scene;
    const UpdateBones &m_bones;
    const std::optional<GltfExtras::Model> &m_model;
    AnimFile &m_anim;
    UpdateAccount &m_account;
    GltfPose m_pose;
    std::vector<size_t> m_order;     ///< bones, each behind its parent
    std::vector<Rigid> m_restLocals; ///< in their parents' spaces
    std::vector<int> m_clipOfBlock;  ///< animations of the file, -1: none
    std::vector<bool> m_isMatched;   ///< animations of the file
    int m_scaledBones = 0;           ///< that a clip scales
    const int m_mostFrames;          ///< of all clips, keys as well
    int m_framesLeft;
    QHash<qint32, QString> m_names; ///< of new blocks
    QString m_error;
};
