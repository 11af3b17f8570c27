// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Hand.h"

/// Two blocks, the first with four actions in its 11 frames, two of them on one frame.
inline AnimFile fourActions()
{
    AnimFile file = twoBlocks();
    const int frames[] = {2, 5, 5, 9}, events[] = {0, 2, 22, 30};
    for (size_t i = 0; i < 4; ++i) {
        file.blocks[0].actions.emplace_back().frame = quint16(frames[i]);
        file.blocks[0].actions[i].eventType = quint16(events[i]);
    }
    file.blocks[0].blendEnd = 10;
    return file;
}
