// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"

#include <QCoreApplication>
#include <QStringList>

#include <atomic>

namespace Motion {
/// What a change of a block did that is not to be seen by comparing it with the block before.
struct BlockAccount
{
    int actionsMoved = 0;
    int actionsDropped = 0;
    QStringList notes; ///< for the user
    /// Set by another thread when nobody waits for the change any more; null when somebody always does. What
    /// has been made by then is not to be used.
    const std::atomic_bool *cancelled = nullptr;
    bool isCancelled() const { return cancelled && *cancelled; }
};

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Motion)
};

/// The number of a bone that follows no track, of an action at no bone, and of a loop frame that is none.
constexpr quint16 None = 0xFFFF;
/// A 16-bit number names as many frames, or tracks, and one that is none.
constexpr int MostFrames = 65535;
constexpr int MostTracks = 65535;
/// Of keys that a command makes: so that a small file asks for no more memory than there is.
constexpr qint64 MostBytes = 256 << 20;

/// Frames per second, as the game plays the block: one at least.
double rateOf(const AnimBlock &block);

/// What the block takes in its file.
qint64 fileBytes(const AnimBlock &block);

/// In words what differs between a block and what became of it, a line for each thing; none when nothing
/// does.
QStringList differences(const AnimBlock &before, const AnimBlock &after, const BlockAccount &account);

/// Whether the blocks are the same bit for bit.
bool isSame(const AnimBlock &a, const AnimBlock &b);
} // namespace Motion
