// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "BlockKeys.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace {
/// What stands in a block where a key belongs; null where there is no such key.
template <typename Block, typename Key>
auto *placeIn(Block &block, const Key &key)
{
    using Value = decltype(key.value);
    if constexpr (std::is_same_v<Value, float>) {
        const bool isThere = key.frame >= 0 && key.frame < block.frameCount();
        return isThere ? &block.frames[size_t(key.frame)].yawOffset : nullptr;
    } else {
        auto &table = [&block]() -> auto &
        {
            if constexpr (std::is_same_v<Value, QVector3D>)
                return block.translations;
            else
                return block.rotations;
        }
        ();
        return table.contains(key.track, key.frame) ? &table.at(key.track, key.frame) : nullptr;
    }
}

template <typename Value>
bool isSameBits(const Value &a, const Value &b)
{
    const void *ours = &a, *theirs = &b;
    return std::memcmp(ours, theirs, sizeof a) == 0;
}
} // namespace

template <typename Lists, typename Visit>
void BlockKeys::visit(Lists &lists, Visit visit)
{
    visit(lists.m_translations);
    visit(lists.m_rotations);
    visit(lists.m_yaws);
}

void BlockKeys::leaveOutSame(const AnimBlock &block)
{
    visit(*this, [&block](auto &list) {
        const auto isSame = [&block](const auto &key) {
            const auto *stored = placeIn(block, key);
            return stored && isSameBits(*stored, key.value);
        };
        list.erase(std::remove_if(list.begin(), list.end(), isSame), list.end());
    });
}

void BlockKeys::store(AnimBlock &block) const
{
    visit(*this, [&block](const auto &list) {
        for (const auto &key : list) {
            if (auto *stored = placeIn(block, key))
                *stored = key.value;
        }
    });
}

void BlockKeys::exchange(AnimBlock &block)
{
    visit(*this, [&block](auto &list) {
        for (auto &key : list) {
            if (auto *stored = placeIn(block, key))
                std::swap(*stored, key.value);
        }
    });
}
