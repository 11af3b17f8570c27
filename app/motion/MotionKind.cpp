// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "MotionKind.h"

#include <QCoreApplication>

namespace {
struct KindTexts
{
    Q_DECLARE_TR_FUNCTIONS(AnimationCommands)
};
} // namespace

const std::array<MotionKind, MotionKind::Count> &motionKinds()
{
    static const std::array<MotionKind, MotionKind::Count> all{{
        {"actionAnimResample", KindTexts::tr("&Resample…"), KindTexts::tr("Resample Animation"),
         KindTexts::tr("The same motion in another number of frames, or at another rate."), "pageResample"},
        {"actionAnimReverse", KindTexts::tr("Re&verse…"), KindTexts::tr("Reverse Animation"),
         KindTexts::tr("The last frame becomes the first. The loop frame stays."), "pageNone"},
        {"actionAnimTrim", KindTexts::tr("&Trim…"), KindTexts::tr("Trim Animation"),
         KindTexts::tr("Leaves a range of frames. Key frame actions on other frames go."), "pageTrim"},
        {"actionAnimShift", KindTexts::tr("&Shift…"), KindTexts::tr("Shift Animation"),
         KindTexts::tr("Moves all frames later, or earlier."), "pageShift"},
        {"actionAnimCloseLoop", KindTexts::tr("&Close Loop…"), KindTexts::tr("Close Animation Loop"),
         KindTexts::tr(
             "The last frames go over into the frame that the animation loops to, or into the first."),
         "pageCloseLoop"},
        {"actionAnimMirror", KindTexts::tr("&Mirror…"), KindTexts::tr("Mirror Animation"),
         KindTexts::tr(
             "Left becomes right. Sides are told by the names of bones, else by their symbols; the two sides "
             "have to stand alike in the initial pose."),
         "pageNone"},
        {"actionAnimExtractYaw", KindTexts::tr("&Extract Yaw…"), KindTexts::tr("Extract Animation Yaw"),
         KindTexts::tr(
             "What turns the root bone about the upright axis goes into the yaw of the frames, by which the "
             "game turns the model. It looks the same."),
         "pageNone"},
        {"actionAnimApplyYaw", KindTexts::tr("&Apply Yaw…"), KindTexts::tr("Apply Animation Yaw"),
         KindTexts::tr("The yaw of the frames goes into the root bone and becomes 0. It looks the same."),
         "pageNone"},
        {"actionAnimRemoveUnused", KindTexts::tr("Remove &Unused Tracks…"),
         KindTexts::tr("Remove Unused Tracks"), KindTexts::tr("Takes out the tracks that no bone follows."),
         "pageNone"},
        {"actionAnimJoinEqual", KindTexts::tr("&Join Equal Tracks…"), KindTexts::tr("Join Equal Tracks"),
         KindTexts::tr("Tracks with the same keys become one, which all their bones follow."), "pageNone"},
        {"actionAnimRenumber", KindTexts::tr("Renumber &IDs…"), KindTexts::tr("Renumber Animation IDs"),
         KindTexts::tr("Other ids. The names of animations stay with the ids that they are for."),
         "pageRenumber"},
    }};
    return all;
}
