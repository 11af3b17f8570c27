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
    ROW(UC_AnimBlockLoopFrame, Records::Block, Member<&AnimBlock::loopFrame>, "Animation Loop Frame") \
    ROW(UC_AnimNodeTransIndex, Records::BlockBone, Member<&AnimNode::translationIndex>, "Bone Translation Index") \
    ROW(UC_AnimNodeRotIndex, Records::BlockBone, Member<&AnimNode::rotationIndex>, "Bone Rotation Index") \
    ROW(UC_AnimNodeInitTrans, Records::BlockBone, Member<&AnimNode::initialPosition>, "Bone Initial Translation") \
    ROW(UC_AnimNodeInitRot, Records::BlockBone, Member<&AnimNode::initialRotation>, "Bone Initial Rotation") \
    ROW(UC_AnimFrameYaw, Records::BlockFrame, Member<&AnimFrame::yawOffset>, "Frame Yaw Offset") \
    ROW(UC_AnimTranslation, Records::TranslationKey, Itself, "Translation") \
    ROW(UC_AnimRotation, Records::RotationKey, Itself, "Rotation") \
    ROW(UC_AnimActionFrame, Records::BlockAction, Member<&AnimAction::frame>, "Key Frame Action Frame") \
    ROW(UC_AnimActionNode, Records::BlockAction, Member<&AnimAction::node>, "Key Frame Action Bone") \
    ROW(UC_AnimActionOffset, Records::BlockAction, Member<&AnimAction::offset>, "Key Frame Action Offset") \
    ROW(UC_AnimActionEventType, Records::BlockAction, Member<&AnimAction::eventType>, "Key Frame Action Event Type") \
    ROW(UC_AnimActionArgs, Records::BlockAction, Member<&AnimAction::args>, "Key Frame Action Args")
// clang-format on

KORVANE_ANIM_FIELDS(KORVANE_FIELD_COMMAND)

/// Every command of the animation stack.
inline constexpr auto animCommands = std::tuple_cat(KORVANE_ANIM_FIELDS(KORVANE_COMMAND_TAG) std::tuple<>());
