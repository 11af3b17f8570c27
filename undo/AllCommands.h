// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "AnimCommands.h"
#include "SkinnedMeshCommands.h"
#include "StaticMeshCommands.h"

/// Every command of the program, as CommandTags.
inline constexpr auto allCommands = std::tuple_cat(skinnedMeshCommands, animCommands, staticMeshCommands);
