// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#include "PlannedScene.h"

#include "AnimFile.h"
#include "OffscreenScene.h"

void poseFrame(GLMesh &model, SceneFrame &frame, Playback state, int number, PoseEvaluator &poses)
{
    const AnimBlock *block = playableBlock(state);
    if (!block)
        return;
    int shown = PoseEvaluator::NoFrame;
    if (number != PicturePlan::StillPose) {
        state.playState = PlayState::Paused;
        state.time = float(number) / playRate(block->speed);
    }
    frame.yaw = {};
    if (state.playState == PlayState::InitialPose)
        poses.evaluateInitialPose(model.palette, *state.mesh, *block);
    else
        shown = poses.evaluateAnimatedPose(model.palette, *state.mesh, *block, state, frame.yaw);
    // In a video, events are seen for as long as where they play.
    if (number != PicturePlan::StillPose)
        state.playState = PlayState::Playing;
    frame.marks.events.follow(state, shown);
}

QImage paintShot(OffscreenScene &scene, const PlannedScene &planned, const PicturePlan::Shot &shot,
                 PoseEvaluator &poses)
{
    SceneFrame frame = planned.frame;
    frame.view = turnedView(frame.view, planned.pivot, shot.turn);
    poseFrame(scene.model(), frame, planned.state, shot.frame, poses);
    const QImage picture = scene.paint(frame, planned.size, planned.background);
    return planned.isOpaque && !picture.isNull() ? picture.convertToFormat(QImage::Format_RGB32) : picture;
}
