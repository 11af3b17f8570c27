// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "Playback.h"

/// Where the playback is: what a gesture that went elsewhere puts back when it is given up.
struct PlayPlace
{
    explicit PlayPlace(int shown)
        : frame(shown)
    {}

    int frame; ///< that is shown
    PlayState state = playback().playState;
    float time = playback().time; ///< seconds
};
