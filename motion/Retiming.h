// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlockAccount.h"

/// Commands about the frames of an animation block. Each changes the block and gives an empty text, or gives
/// the reason, for the user, why that cannot be; then nothing is done. Key frame actions, loop frame and
/// blend fields follow; a blend that a round would part stays, with a note. A frame that is only moved keeps
/// its bits. Tracks are shared as before, those that no bone follows change with the others. What is beyond
/// the last frame stays as far beyond it.
namespace Motion {
/// The same motion in another number of frames.
struct Resample
{
    int frames = 0;         ///< how many; where a rate is given, the rate decides
    double rate = 0;        ///< frames per second; 0 for none
    bool keepSpeed = false; ///< of `frames`: the motion takes longer or shorter instead
};
QString apply(const Resample &how, AnimBlock &block, BlockAccount &account);

/// The last frame first. A loop frame stays: the block still ends with its last frame.
struct Reverse
{};
QString apply(const Reverse &how, AnimBlock &block, BlockAccount &account);

/// The frames from `first` to `last` alone. Actions on other frames go.
struct Trim
{
    int first = 0;
    int last = 0;
};
QString apply(const Trim &how, AnimBlock &block, BlockAccount &account);

/// All frames so many later, or earlier where it is below 0.
struct Shift
{
    enum class Around {
        Loops,  ///< blocks that loop to frame 0 go round; others, and those that name no frame to loop to,
                ///< hold their pose at the end that is laid bare
        Always, ///< what leaves at one end comes in at the other
        Never,
    };
    int frames = 0;
    Around around = Around::Loops;
};
QString apply(const Shift &how, AnimBlock &block, BlockAccount &account);

/// The last `frames` frames go over into the frame that the block loops to, or the first one where it loops
/// to none before its last: the last frame becomes that.
struct CloseLoop
{
    int frames = 0;
};
QString apply(const CloseLoop &how, AnimBlock &block, BlockAccount &account);
} // namespace Motion
