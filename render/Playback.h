// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

struct AnimFile;
struct SkinnedMesh;

enum class PlayState { InitialPose = 0, Playing = 1, Paused = 2 };

/// What plays, where and how: shared by the track controls and the viewport.
struct Playback
{
    const SkinnedMesh *mesh = nullptr;
    const AnimFile *anim = nullptr;
    int blockIndex = 0;
    PlayState playState = PlayState::InitialPose;
    float time = 0.0f;      ///< seconds
    bool forceLoop = false; ///< "Force Loop beginning to end"
};

/// The one playback state of the process. GUI thread only.
Playback &playback();
