// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <random>

/// What one step draws. Each step has dice of its own, thrown by the run's generator, so that a step that
/// draws more often than in the run before leaves the following ones as they were.
class Dice
{
public:
    explicit Dice(quint64 seed)
        : m_engine(seed)
    {}

    quint64 next() { return m_engine(); }
    /// From 0 to `count` - 1; 0 when there is nothing to choose from. The standard's distributions are each
    /// library's own.
    int below(int count) { return count > 0 ? int(m_engine() % quint64(count)) : 0; }
    int between(int least, int most) { return least + below(most - least + 1); }
    bool chance(int percent) { return below(100) < percent; }
    /// One of a list that is not empty.
    template <typename List>
    auto pick(const List &list)
    {
        return *(std::begin(list) + below(int(std::size(list))));
    }

private:
    std::mt19937_64 m_engine;
};
