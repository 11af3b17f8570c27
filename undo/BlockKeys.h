// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"

/// Other values for keys of an animation block's tracks and for the yaw of its frames, each at most once.
class BlockKeys
{
public:
    void setTranslation(int track, int frame, const QVector3D &key)
    {
        m_translations.push_back({track, frame, key});
    }
    void setRotation(int track, int frame, const QVector4D &key)
    {
        m_rotations.push_back({track, frame, key});
    }
    void setYaw(int frame, float radians) { m_yaws.push_back({0, frame, radians}); }

    bool isEmpty() const { return m_translations.empty() && m_rotations.empty() && m_yaws.empty(); }
    /// Leaves out what the block has already, bit for bit.
    void leaveOutSame(const AnimBlock &block);
    /// Stores them in the block, whose keys they are.
    void store(AnimBlock &block) const;
    /// Exchanges them with those of the block. Keys that it has no more are left alone.
    void exchange(AnimBlock &block);

private:
    template <typename Value>
    struct Key
    {
        int track;
        int frame;
        Value value;
    };
    template <typename Lists, typename Visit>
    static void visit(Lists &lists, Visit visit);

    std::vector<Key<QVector3D>> m_translations;
    std::vector<Key<QVector4D>> m_rotations;
    std::vector<Key<float>> m_yaws;
};
