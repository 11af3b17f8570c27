// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimFile.h"
#include "SceneSkeleton.h"

/// Makes a block of every animation of the scene. Keys are taken by number, not by time: frame f is key f,
/// and the last key of a channel goes on to the end.
void addAnimations(const SceneSource &source, const SceneSkeleton &skeleton, size_t boneCount,
                   AnimFile &file);
