// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"

// clang-format off
#define KORVANE_ANIM_FIELDS(ROW) \
    ROW(UC_AnimBlockAnimID, Records::Block, Member<&AnimBlock::animId>, "Animation AnimID") \
    ROW(UC_AnimBlockFrameScale, Records::Block, Member<&AnimBlock::frameScale>, "Animation Frame Scale") \
    ROW(UC_AnimBlockBlendLength, Records::Block, Member<&AnimBlock::blendLength>, "Animation Blend Length") \
    ROW(UC_AnimBlockBlendStart, Records::Block, Member<&AnimBlock::blendStart>, "Animation Blend Start") \
    ROW(UC_AnimBlockBlendEnd, Records::Block, Member<&AnimBlock::blendEnd>, "Animation Blend End") \
    ROW(UC_AnimBlockAnimSpeed, Records::Block, Member<&AnimBlock::speed>, "Animation Speed") \
    ROW(UC_AnimBlockLoopFrame, Records::Block, Member<&AnimBlock::loopFrame>, "Animation Loop Frame")
// clang-format on

KORVANE_ANIM_FIELDS(KORVANE_FIELD_COMMAND)

/// Every command of the animation stack.
inline constexpr auto animCommands = std::tuple_cat(KORVANE_ANIM_FIELDS(KORVANE_COMMAND_TAG) std::tuple<>());
