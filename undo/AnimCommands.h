// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "BlockBones.h"
#include "ExchangeCommand.h"
#include "FieldCommand.h"
#include "KeysCommand.h"
#include "ReplaceCommand.h"
#include "StructureCommand.h"
#include "Tracks.h"
#include "WholeBlock.h"

// clang-format off
#define KORVANE_ANIM_COMMANDS(ROW) \
    ROW(UC_AnimUpdate, ReplaceCommand, QT_TRANSLATE_NOOP("UndoCommands", "Update from %1"), Records::AnimFileRoot) \
    ROW(UC_AnimTakeTheirs, ReplaceCommand, QT_TRANSLATE_NOOP("UndoCommands", "Take from %1"), Records::AnimFileRoot) \
    ROW(UC_AnimBlockAnimID, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation AnimID"), Records::Block, Member<&AnimBlock::animId>) \
    ROW(UC_AnimBlockFrameScale, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation Frame Scale"), Records::Block, Member<&AnimBlock::frameScale>) \
    ROW(UC_AnimBlockBlendLength, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation Blend Length"), Records::Block, Member<&AnimBlock::blendLength>) \
    ROW(UC_AnimBlockBlendStart, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation Blend Start"), Records::Block, Member<&AnimBlock::blendStart>) \
    ROW(UC_AnimBlockBlendEnd, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation Blend End"), Records::Block, Member<&AnimBlock::blendEnd>) \
    ROW(UC_AnimBlockAnimSpeed, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation Speed"), Records::Block, Member<&AnimBlock::speed>) \
    ROW(UC_AnimBlockLoopFrame, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation Loop Frame"), Records::Block, Member<&AnimBlock::loopFrame>) \
    ROW(UC_AnimNodeTransIndex, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Translation Index"), Records::BlockBone, Member<&AnimNode::translationIndex>) \
    ROW(UC_AnimNodeRotIndex, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Rotation Index"), Records::BlockBone, Member<&AnimNode::rotationIndex>) \
    ROW(UC_AnimNodeInitTrans, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Initial Translation"), Records::BlockBone, Member<&AnimNode::initialPosition>) \
    ROW(UC_AnimNodeInitRot, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bone Initial Rotation"), Records::BlockBone, Member<&AnimNode::initialRotation>) \
    ROW(UC_AnimFrameYaw, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Frame Yaw Offset"), Records::BlockFrame, Member<&AnimFrame::yawOffset>) \
    ROW(UC_AnimTranslation, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Translation"), Records::TranslationKey, Itself) \
    ROW(UC_AnimRotation, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Rotation"), Records::RotationKey, Itself) \
    ROW(UC_AnimActionFrame, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Key Frame Action Frame"), Records::BlockAction, Member<&AnimAction::frame>) \
    ROW(UC_AnimActionNode, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Key Frame Action Bone"), Records::BlockAction, Member<&AnimAction::node>) \
    ROW(UC_AnimActionOffset, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Key Frame Action Offset"), Records::BlockAction, Member<&AnimAction::offset>) \
    ROW(UC_AnimActionEventType, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Key Frame Action Event Type"), Records::BlockAction, Member<&AnimAction::eventType>) \
    ROW(UC_AnimActionArgs, FieldCommand, QT_TRANSLATE_NOOP("UndoCommands", "Key Frame Action Args"), Records::BlockAction, Member<&AnimAction::args>) \
    ROW(UC_AnimAddAction, InsertCommand, QT_TRANSLATE_NOOP("UndoCommands", "Add Key Frame Action"), Records::BlockAction, RecordKind::AnimActions) \
    ROW(UC_AnimRemoveAction, RemoveCommand, QT_TRANSLATE_NOOP("UndoCommands", "Remove Key Frame Action"), Records::BlockAction, RecordKind::AnimActions) \
    ROW(UC_AnimBlockAdd, InsertCommand, QT_TRANSLATE_NOOP("UndoCommands", "Add Animation"), Records::Block, RecordKind::AnimFile) \
    ROW(UC_AnimBlockRemove, RemoveCommand, QT_TRANSLATE_NOOP("UndoCommands", "Remove Animation"), Records::Block, RecordKind::AnimFile) \
    ROW(UC_AnimBlockPaste, InsertCommand, QT_TRANSLATE_NOOP("UndoCommands", "Paste Animation"), Records::Block, RecordKind::AnimFile) \
    ROW(UC_AnimBlockMotion, ExchangeCommand, QT_TRANSLATE_NOOP("UndoCommands", "Animation Command"), Records::Block, WholeBlock) \
    ROW(UC_AnimKeys, KeysCommand, QT_TRANSLATE_NOOP("UndoCommands", "Keys"), Records::Block) \
    ROW(UC_AnimTranslationTracks, ExchangeCommand, QT_TRANSLATE_NOOP("UndoCommands", "Translation Tracks"), Records::Block, TranslationTracks) \
    ROW(UC_AnimBones, ExchangeCommand, QT_TRANSLATE_NOOP("UndoCommands", "Bones"), Records::AnimFileRoot, BlockBones) \
    ROW(UC_AnimRotationTracks, ExchangeCommand, QT_TRANSLATE_NOOP("UndoCommands", "Rotation Tracks"), Records::Block, RotationTracks)
// clang-format on

KORVANE_ANIM_COMMANDS(KORVANE_COMMAND)

/// Every command of the animation stack.
inline constexpr auto animCommands =
    std::tuple_cat(KORVANE_ANIM_COMMANDS(KORVANE_COMMAND_TAG) std::tuple<>());
