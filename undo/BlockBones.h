// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <QVector>

#include <optional>

/// The bones of animation blocks, and the numbers by which key frame actions name them. All blocks that have
/// as many bones as one of them are for the same mesh: their bones are edited together.
class BlockBones
{
public:
    /// Of the blocks with as many bones as `block` has.
    BlockBones(const AnimFile &file, int block);

    /// How many blocks these are.
    int blockCount() const { return int(m_blocks.size()); }

    /// Lets the blocks have other bones: for each place the number of the bone that stands there now, or
    /// -1 - i for a new one. `added` are the new ones of the block that was named. In the others, which have
    /// tracks of their own, a new bone is a copy of its own bone number `copied.at(i)`, or where there is
    /// none to copy, keeps the pose that `added` has it begin with. Gives the reason, for the user, why that
    /// cannot be: then nothing is done.
    QString arrange(const std::vector<int> &places, const std::vector<AnimNode> &added,
                    const QVector<int> &copied);

    /// As ExchangeCommand wants it.
    bool fits(const AnimFile &file, const RecordIndex &) const;
    void exchange(AnimFile &file, const RecordIndex &);

private:
    struct Block
    {
        int number;
        std::vector<AnimNode> bones;
        std::vector<quint16> actionBones;
    };

    int m_named;
    size_t m_replaced; ///< how many bones there are where these come in
    std::vector<Block> m_blocks;
};
