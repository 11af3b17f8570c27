// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "Rigid.h"

#include <QStringList>

#include <vector>

/// How far two keys may be from each other and still be the same: what arithmetic on the way to another
/// program and back makes of one.
class KeyTolerance
{
public:
    explicit KeyTolerance(double modelSize);

    bool isSamePlace(const Rigid &a, const Rigid &b) const;
    bool isSameTurn(const Rigid &a, const Rigid &b) const;
    bool isSame(const Rigid &a, const Rigid &b) const { return isSamePlace(a, b) && isSameTurn(a, b); }

private:
    double m_place; ///< units
};

/// How rotations between two keys are made: along the arc, as the view does it, or along the chord, as other
/// programs do.
enum class Between { Slerp, Nlerp };

/// Where a bone of a block stands in its parent's space without any key, and at a frame, which may lie
/// between two.
Rigid initialLocal(const AnimNode &node);
Rigid localAt(const AnimBlock &block, size_t bone, double frame, Between between);
AnimNode initialNode(const Rigid &local);
/// What of a block that has become shorter says something of frames that it does not have.
QStringList beyondEnd(const AnimBlock &block);

/// Puts keys of another program into the tracks of a block, where they say something else.
///
/// The program may have taken its keys at times of its own. So what is compared is the block at these times
/// with the keys, which says for certain that a track was left alone; only a track that was not is given keys
/// at the block's frames, and of those the ones that are the same keep their bits.
class BlockTracks
{
public:
    struct Sampling
    {
        std::vector<double> keyFrames; ///< where the program's keys are, in frames of the block
        int firstFrame = 0;            ///< the first and last frame that these reach
        int lastFrame = 0;
        double gap = 1.0; ///< frames between two keys
    };
    using Locals = std::vector<std::vector<Rigid>>; ///< by time and bone, in the space of each bone's parent

    BlockTracks(AnimBlock &block, const KeyTolerance &tolerance);

    /// A block that is longer than it was holds its last keys until they are updated.
    void setFrameCount(int count);
    void setSampling(Sampling sampling);
    /// Compares a bone at the keys and, where need be, sets its tracks from the frames.
    void update(size_t bone, const Locals &atKeys, const Locals &atFrames);
    /// The same for the turn of the model, radians about z.
    void updateYaw(const std::vector<double> &atKeys, const std::vector<double> &atFrames);

    int changedBones() const { return m_changedBones; }
    bool yawChanged() const { return m_yawChanged; }
    /// Whether no bone moves.
    bool holdsStill(const Locals &locals) const;
    /// Whether the last pose is about the first one.
    bool isLoop(const Locals &locals) const;

private:
    bool isSampledDensely() const;
    template <typename Same>
    bool isUnchanged(size_t keys, Same isSameAtKey, bool sameAtFrames) const;
    bool setInitial(size_t bone, const Rigid &local);
    bool setPlaces(size_t bone, const Locals &atFrames);
    bool setTurns(size_t bone, const Locals &atFrames);
    template <typename Key>
    bool setTrack(TrackTable<Key> &table, quint16 AnimNode::*index, size_t bone, const std::vector<Key> &keys,
                  int ownTracks);

    AnimBlock &m_block;
    const AnimBlock m_old;
    KeyTolerance m_tolerance;
    Sampling m_sampling;
    int m_changedBones = 0;
    bool m_yawChanged = false;
};
