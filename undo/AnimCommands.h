// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "FieldCommand.h"
#include "StructureCommand.h"

// clang-format off
#define KORVANE_ANIM_COMMANDS(ROW) \
    ROW(UC_AnimBlockAnimID, FieldCommand, "Animation AnimID", Records::Block, Member<&AnimBlock::animId>) \
    ROW(UC_AnimBlockFrameScale, FieldCommand, "Animation Frame Scale", Records::Block, Member<&AnimBlock::frameScale>) \
    ROW(UC_AnimBlockBlendLength, FieldCommand, "Animation Blend Length", Records::Block, Member<&AnimBlock::blendLength>) \
    ROW(UC_AnimBlockBlendStart, FieldCommand, "Animation Blend Start", Records::Block, Member<&AnimBlock::blendStart>) \
    ROW(UC_AnimBlockBlendEnd, FieldCommand, "Animation Blend End", Records::Block, Member<&AnimBlock::blendEnd>) \
    ROW(UC_AnimBlockAnimSpeed, FieldCommand, "Animation Speed", Records::Block, Member<&AnimBlock::speed>) \
    ROW(UC_AnimBlockLoopFrame, FieldCommand, "Animation Loop Frame", Records::Block, Member<&AnimBlock::loopFrame>) \
    ROW(UC_AnimNodeTransIndex, FieldCommand, "Bone Translation Index", Records::BlockBone, Member<&AnimNode::translationIndex>) \
    ROW(UC_AnimNodeRotIndex, FieldCommand, "Bone Rotation Index", Records::BlockBone, Member<&AnimNode::rotationIndex>) \
    ROW(UC_AnimNodeInitTrans, FieldCommand, "Bone Initial Translation", Records::BlockBone, Member<&AnimNode::initialPosition>) \
    ROW(UC_AnimNodeInitRot, FieldCommand, "Bone Initial Rotation", Records::BlockBone, Member<&AnimNode::initialRotation>) \
    ROW(UC_AnimFrameYaw, FieldCommand, "Frame Yaw Offset", Records::BlockFrame, Member<&AnimFrame::yawOffset>) \
    ROW(UC_AnimTranslation, FieldCommand, "Translation", Records::TranslationKey, Itself) \
    ROW(UC_AnimRotation, FieldCommand, "Rotation", Records::RotationKey, Itself) \
    ROW(UC_AnimActionFrame, FieldCommand, "Key Frame Action Frame", Records::BlockAction, Member<&AnimAction::frame>) \
    ROW(UC_AnimActionNode, FieldCommand, "Key Frame Action Bone", Records::BlockAction, Member<&AnimAction::node>) \
    ROW(UC_AnimActionOffset, FieldCommand, "Key Frame Action Offset", Records::BlockAction, Member<&AnimAction::offset>) \
    ROW(UC_AnimActionEventType, FieldCommand, "Key Frame Action Event Type", Records::BlockAction, Member<&AnimAction::eventType>) \
    ROW(UC_AnimActionArgs, FieldCommand, "Key Frame Action Args", Records::BlockAction, Member<&AnimAction::args>) \
    ROW(UC_AnimAddAction, InsertCommand, "Add Key Frame Action", Records::BlockAction, RecordKind::AnimActions) \
    ROW(UC_AnimRemoveAction, RemoveCommand, "Remove Key Frame Action", Records::BlockAction, RecordKind::AnimActions) \
    ROW(UC_AnimBlockAdd, InsertCommand, "Add Animation", Records::Block, RecordKind::AnimFile) \
    ROW(UC_AnimBlockRemove, RemoveCommand, "Remove Animation", Records::Block, RecordKind::AnimFile) \
    ROW(UC_AnimBlockPaste, InsertCommand, "Paste Animation", Records::Block, RecordKind::AnimFile)
// clang-format on

KORVANE_ANIM_COMMANDS(KORVANE_COMMAND)

/// Every command of the animation stack.
inline constexpr auto animCommands =
    std::tuple_cat(KORVANE_ANIM_COMMANDS(KORVANE_COMMAND_TAG) std::tuple<>());
