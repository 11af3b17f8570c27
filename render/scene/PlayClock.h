// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

struct AnimBlock;
struct Playback;

/// The frame that `block` goes on from after its end, as `state` plays it.
int restartFrame(const Playback &state, const AnimBlock &block);

/// True when the clock of `state` runs: a playable block of two or more frames in state Playing, but for one
/// that has come to stand on its last frame, or whose frames take no time.
bool clockRuns(const Playback &state);

/// Adds `dt` seconds, at the speed factor, to the play time when the clock runs, and counts its rounds.
void advanceClock(Playback &state, float dt);
