// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlockAccount.h"

/// The game turns a model by the yaw of its frames about the upright axis, beside what the root bone (bone 0)
/// does. Both commands leave what is seen at each frame as it is, and key frame actions where they happen.
namespace Motion {
/// Takes out of the root what turns it about the upright axis away from its initial rotation, and lets the
/// yaw of the frames turn the model instead.
struct ExtractYaw
{};
QString apply(const ExtractYaw &how, AnimBlock &block, BlockAccount &account);

/// The other way about: the root turns, the yaw of all frames becomes 0.
struct ApplyYaw
{};
QString apply(const ApplyYaw &how, AnimBlock &block, BlockAccount &account);
} // namespace Motion
