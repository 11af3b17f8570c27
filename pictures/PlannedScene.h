// SPDX-FileCopyrightText: The Korvane developers
// SPDX-License-Identifier: MIT
#pragma once

#include "PicturePlan.h"
#include "Playback.h"
#include "Pose.h"
#include "SceneFrame.h"

#include <QColor>
#include <QImage>

class GLMesh;
class OffscreenScene;

/// What the pictures of a plan have in common. Models are borrowed.
struct PlannedScene
{
    SceneFrame frame; ///< as it is before the camera turns, but for the pose
    QVector3D pivot;  ///< what the camera turns around, in the view's y-up space
    Playback state;   ///< what a skinned mesh is posed by; StillPose is the pose of this state
    QSize size;       ///< pixels
    QColor background;
    bool isOpaque = false; ///< pictures have no alpha, whatever was painted
};

/// Poses the model on the card, and what of the frame depends on that, as a frame of the state's block has
/// it, or as the state does for PicturePlan::StillPose. Without a block to play nothing happens.
void poseFrame(GLMesh &model, SceneFrame &frame, Playback state, int number, PoseEvaluator &poses);

/// Paints one of them, of the model that the scene has. Null when the graphics driver has no memory for it.
QImage paintShot(OffscreenScene &scene, const PlannedScene &planned, const PicturePlan::Shot &shot,
                 PoseEvaluator &poses);
