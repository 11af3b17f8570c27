// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Records.h"

#include <utility>

/// An animation block that takes the place of what it was made of, all its lists included.
class WholeBlock
{
public:
    WholeBlock(const AnimBlock &replaced, AnimBlock block)
        : m_block(std::move(block))
        , m_replaced(sizesOf(replaced))
    {}

    /// As ExchangeCommand wants it.
    bool fits(const AnimFile &file, const RecordIndex &index) const
    {
        const AnimBlock *block = Records::Block::find(file, index);
        return block && sizesOf(*block) == m_replaced;
    }
    void exchange(AnimFile &file, const RecordIndex &index)
    {
        m_replaced = sizesOf(m_block);
        std::swap(m_block, *Records::Block::find(file, index));
    }

private:
    /// What changes when lists change without an undo step.
    using Sizes = std::array<size_t, 5>;
    static Sizes sizesOf(const AnimBlock &block)
    {
        return {block.nodes.size(), block.frames.size(), size_t(block.translations.trackCount()),
                size_t(block.rotations.trackCount()), block.actions.size()};
    }

    AnimBlock m_block;
    Sizes m_replaced; ///< of the block where this comes in
};
